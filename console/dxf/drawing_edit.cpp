#include "console/dxf/drawing_edit.h"

#include "console/dxf/drawing_edit_parts.h"
#include "console/dxf/sections.h"

namespace console {

DxfForm form_of(const Outline& outline) {
  DxfForm form{static_cast<DxfVersion>(outline.version), {}};
  const Tag* const told = outline.variable("$DWGCODEPAGE");
  const std::string_view code_page = told == nullptr ? std::string_view() : told->trimmed();
  if (!form.is_utf8()) form.encoding = TextEncoding(code_page.empty() ? "ASCII" : code_page);
  return form;
}

DrawingEdit::DrawingEdit(std::string_view bytes, const Outline& outline, const Drawing& drawing, const Layers& layers)
    : outline_(outline),
      drawing_(drawing),
      layers_(layers),
      form_(form_of(outline)),
      edits_(bytes, outline.crlf),
      next_handle_(drawing.next_handle()) {
  edit_header();
  edit_tables();
  edit_entities();
  if (form_.has_subclasses()) edit_objects();
}

void DrawingEdit::edit_entities() {
  in_section("ENTITIES", [this](std::size_t end) {
    edits_.insert(end, [this](TagWriter& tags) {
      write_entities(tags, drawing_, {form_, layers_, outline_.model_space});
    });
  });
}

Ground ground_of(const Outline& outline) {
  Ground ground;
  ground.first_free = outline.first_free;
  ground.holds_groups = form_of(outline).has_subclasses();
  if (outline.groups)
    for (const DictionaryEntry& group : outline.groups->entries) ground.group_names.emplace_back(group.name);
  if (const Tag* const mode = outline.variable("$PDMODE"))
    ground.variables.PDMODE = static_cast<std::int16_t>(mode->whole().value_or(0));
  if (const Tag* const size = outline.variable("$PDSIZE")) ground.variables.PDSIZE = size->real().value_or(0.0);
  return ground;
}

void write_added(std::string_view bytes, const Outline& outline, const Drawing& drawing, const Layers& layers,
                 ByteSink& sink) {
  DrawingEdit(bytes, outline, drawing, layers).write(sink);
}

}  // namespace console
