// The sections of a DXF file, each written whole, in the order in which a file has them.
#pragma once

#include <string_view>

#include "console/drawing/drawing.h"
#include "console/dxf/tag_writer.h"

namespace console {

/// The box around all entities' positions; a unit square at the origin for a drawing without any.
struct Extents {
  Position smallest;
  Position largest;
};

[[nodiscard]] Extents extents_of(const Drawing& drawing);

void write_header(TagWriter& tags, const Drawing& drawing, const Extents& extents, std::string_view code_page);
void write_classes(TagWriter& tags);
void write_tables(TagWriter& tags, const Drawing& drawing, const Extents& extents);
void write_blocks(TagWriter& tags);
void write_entities(TagWriter& tags, const Drawing& drawing);
void write_objects(TagWriter& tags, const Drawing& drawing, const Extents& extents);

}  // namespace console
