// A drawing as a DXF file, version AC1021 (2007), UTF-8.
//
// The file holds what CAD programs need to open it without repair: all tables, both block records with their layouts,
// handles that are unique, owners and reactors that exist, the points in view. Entities are written in their order in
// the drawing; each member of a group names the group among its reactors.
#pragma once

#include <string>
#include <string_view>

#include "console/drawing/drawing.h"
#include "console/dxf/tag_writer.h"

namespace console {

/// Writes the whole file. `code_page` is the drawing's $DWGCODEPAGE, "ANSI_1250" or the like, which some converters
/// obey though the bytes are UTF-8.
void write_dxf(const Drawing& drawing, std::string_view code_page, ByteSink& sink);

/// A text as group 1 of a TEXT holds it, so that it shows as typed: what CAD programs would read as a code of theirs
/// (%%d, ^J, \U+0041 …) is spelled so that they do not; control characters become blanks. The view is of the label
/// itself when that needs no change, else of `changed`.
[[nodiscard]] std::string_view encoded_label(std::string_view label, std::string& changed);

}  // namespace console
