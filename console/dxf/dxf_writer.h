// A new drawing as a DXF file.
//
// The file holds what CAD programs need to open it without repair: all tables, both block records with their layouts,
// handles that are unique, owners and reactors that exist, the points in view. Entities are written in their order in
// the drawing; each member of a group names the group among its reactors.
#pragma once

#include <string_view>

#include "console/byte_sink.h"
#include "console/drawing/drawing.h"
#include "console/drawing/wishes.h"

namespace console {

/// Writes the whole file, in a version from 2000 on. `code_page` is the drawing's $DWGCODEPAGE, "ANSI_1250" or the
/// like: text is in it below version 2007; from there on the bytes are UTF-8, though some converters obey it even then.
void write_dxf(const Drawing& drawing, const DrawingWishes& wishes, std::string_view code_page, ByteSink& sink);

}  // namespace console
