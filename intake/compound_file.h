// Compound files, the containers of old office programs: whether one holds a stream of a name.
//
// Only the directory is read, by the chain of its sectors; a chain that leads astray ends the search.
#pragma once

#include <initializer_list>
#include <iosfwd>
#include <string_view>

namespace intake {

inline constexpr std::string_view kCompoundFile = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1";  ///< what one begins with

/// Whether the directory of the compound file names an entry as one of `names`, which are ASCII.
[[nodiscard]] bool has_entry(std::istream& file, std::initializer_list<std::string_view> names);

}  // namespace intake
