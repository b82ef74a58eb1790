// The report of an import as a file: JSON where its name ends with ".json", else text in the user's language.
#pragma once

#include <filesystem>
#include <string>

#include "console/report/findings.h"

namespace console {

/// Whether the file there is a report, or empty: what may be replaced by another.
[[nodiscard]] bool is_report(const std::filesystem::path& path);

/// The report as JSON, ended by a line end.
[[nodiscard]] std::string report_as_json(const Findings& findings);

/// Writes it whole or not at all, in the place of an earlier one. Fails with std::system_error.
void write_report(const Findings& findings, const std::filesystem::path& path);

}  // namespace console
