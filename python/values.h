// Plain values between scripts and the module: texts, numbers, paths.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include <pybind11/pybind11.h>

namespace scripting {

/// A text of the module for scripts. What is no UTF-8, as in a path, is kept as the scripting layer keeps it.
[[nodiscard]] pybind11::str to_script(std::string_view utf8);

/// A script's text for the module; the text form of anything that is none.
[[nodiscard]] std::string from_script(pybind11::handle text);

/// A script's path (text, bytes or path object) as the bytes that name the file. Fails with the scripting layer's
/// TypeError for anything else, ValueError for a null character.
[[nodiscard]] std::string path_from_script(pybind11::handle path);

/// A script's number; fails with the scripting layer's TypeError for anything that is none.
[[nodiscard]] double number_from_script(pybind11::handle number);

/// Whether a script's value counts as true.
[[nodiscard]] bool truth_of(pybind11::handle value);

/// The items of a script's sequence of exactly `count`; fails with TypeError for what has none, ValueError for another
/// count, in the words of an assignment to as many names.
[[nodiscard]] pybind11::list items_of(pybind11::handle sequence, std::size_t count);

}  // namespace scripting
