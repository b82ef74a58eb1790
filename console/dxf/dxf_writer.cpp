#include "console/dxf/dxf_writer.h"

#include "console/dxf/sections.h"

namespace console {

void write_dxf(const Drawing& drawing, const DrawingWishes& wishes, std::string_view code_page, ByteSink& sink) {
  DxfForm form{wishes.version, {}};
  if (!form.is_utf8()) form.encoding = TextEncoding(code_page);
  const NewDrawing file{drawing, form, wishes.layers, code_page, extents_of(drawing)};
  TagWriter tags(sink);
  write_header(tags, file);
  write_classes(tags, file);
  write_tables(tags, file);
  write_blocks(tags);
  tags.lines("0\nSECTION\n2\nENTITIES\n");
  write_entities(tags, drawing, {form, wishes.layers, handle_of(Fixed::model_space)});
  tags.lines("0\nENDSEC\n");
  write_objects(tags, file);
  tags.lines("0\nEOF\n");
  tags.flush();
}

}  // namespace console
