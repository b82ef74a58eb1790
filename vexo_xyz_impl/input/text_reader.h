// Reads delimited text into the table of rows, without asking about its dialect.
//
// Encodings are tried in the order utf-8-sig, cp1250, latin-1; a line ends at LF, CR LF or a lone CR. Lines that are
// blank or begin with "#" or "//" give no row. A line with a semicolon or tab is split at runs of these, any other
// line at runs of white space; a comma never separates. Empty pieces are dropped, so columns behind an empty field
// move left. Cells are not interpreted.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "vexo_xyz_impl/input/table.h"

namespace vexo_xyz_impl {

/// The rows of the file at `path`; empty when it cannot be read.
[[nodiscard]] std::optional<Table> _czytaj_tekst(const std::string& path);

/// The rows of a file's bytes, in the first encoding that can hold them.
[[nodiscard]] Table table_from_bytes(std::vector<char> bytes);

}  // namespace vexo_xyz_impl
