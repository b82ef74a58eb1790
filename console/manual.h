// The manual page and the completion of the program, made of the options as they are declared.
#pragma once

#include <string>

#include <CLI/CLI.hpp>

namespace console {

/// The manual page, in the language of man(7).
[[nodiscard]] std::string manual_page(const CLI::App& app);

/// What bash reads to complete the program's command line.
[[nodiscard]] std::string bash_completion(const CLI::App& app);

}  // namespace console
