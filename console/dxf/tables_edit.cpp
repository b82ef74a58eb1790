// Tables: records of layers, text styles and applications that they lack.
#include "console/dxf/drawing_edit_parts.h"
#include "console/dxf/records.h"
#include "console/dxf/sections.h"

namespace console {

bool DrawingEdit::has(std::string_view table, std::string_view name) const {
  const auto found = outline_.tables.find(table);
  return found != outline_.tables.end() && found->second.names.contains(name);
}

void DrawingEdit::edit_tables() {
  std::vector<NewRecords> all = {{"LAYER", new_layers()}, {"STYLE", new_styles()}, {"APPID", new_applications()}};
  // A layer names its line type, which drawings of a later version always have.
  if (section("TABLES") == nullptr && !form_.has_subclasses())
    all.insert(all.begin(), {"LTYPE", {[](TagWriter& tags, Handle) {
                               tags.lines("0\nLTYPE\n2\nCONTINUOUS\n70\n0\n3\nSolid line\n72\n65\n73\n0\n40\n0.0\n");
                             }}});
  all.erase(std::remove_if(all.begin(), all.end(), [](const NewRecords& one) { return one.records.empty(); }),
            all.end());
  if (all.empty()) return;
  in_section("TABLES", [&](std::size_t end) {
    for (const NewRecords& one : all) add_to_table(one, end);
  });
}

void DrawingEdit::add_to_table(const NewRecords& added, std::size_t section_end) {
  const auto found = outline_.tables.find(added.table);
  if (found == outline_.tables.end()) {
    const std::size_t place = place_of(added.table, kTables, outline_.tables, section_end);
    return add_table(added, place);
  }
  const TableOutline& there = found->second;
  for (const RecordWriter& record : added.records)
    edits_.insert(there.end, [record, table = there.handle](TagWriter& tags) { record(tags, table); });
  const auto told = static_cast<long long>(there.records);
  const auto now = told + static_cast<long long>(added.records.size());
  if (there.count && there.count->whole() == told) edits_.replace(*there.count, std::to_string(now));
}

void DrawingEdit::add_table(const NewRecords& added, std::size_t place) {
  const Handle table = form_.has_subclasses() ? new_handle() : 0;
  edits_.insert(place, [=, this](TagWriter& tags) {
    begin_table(tags, form_, added.table, table, added.records.size());
    for (const RecordWriter& record : added.records) record(tags, table);
    tags.lines("0\nENDTAB\n");
  });
}

std::vector<DrawingEdit::RecordWriter> DrawingEdit::new_layers() {
  std::vector<LayerPointer> pointers;
  for (const Tag& tag : outline_.plot_styles) pointers.emplace_back(tag.code, tag.handle().value_or(0));
  std::vector<RecordWriter> records;
  for (LayerRecord layer : layers_of(drawing_, layers_)) {
    if (has("LAYER", form_.encoding.name(layer.name))) continue;
    layer.handle = new_handle();
    records.emplace_back(
        [=, this](TagWriter& tags, Handle table) { write_layer(tags, form_, layer, table, pointers); });
  }
  return records;
}

std::vector<DrawingEdit::RecordWriter> DrawingEdit::new_styles() {
  std::vector<RecordWriter> records;
  for (const TextStyle& style : drawing_.text_styles()) {
    if (has("STYLE", form_.encoding.name(style.name))) continue;
    records.emplace_back([&style, this](TagWriter& tags, Handle table) { write_style(tags, form_, style, table); });
  }
  return records;
}

std::vector<DrawingEdit::RecordWriter> DrawingEdit::new_applications() {
  if (drawing_.control_record_count() == 0 || has("APPID", vexo_reaktywne_core::kApplication)) return {};
  return {[this, handle = new_handle()](TagWriter& tags, Handle table) {
    write_application(tags, form_, handle, vexo_reaktywne_core::kApplication, table);
  }};
}

}  // namespace console
