#include "console/dxf/dxf_writer.h"

#include "console/dxf/sections.h"

namespace console {

void write_dxf(const Drawing& drawing, std::string_view code_page, ByteSink& sink) {
  TagWriter tags(sink);
  const Extents extents = extents_of(drawing);
  write_header(tags, drawing, extents, code_page);
  write_classes(tags);
  write_tables(tags, drawing, extents);
  write_blocks(tags);
  write_entities(tags, drawing);
  write_objects(tags, drawing, extents);
  tags.lines("0\nEOF\n");
  tags.flush();
}

}  // namespace console
