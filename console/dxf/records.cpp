#include "console/dxf/records.h"

#include <string>

namespace console {

void begin_record(TagWriter& tags, const DxfForm& form, std::string_view kind, const RecordHead& head,
                  int handle_code) {
  tags.text(0, kind);
  if (form.has_subclasses()) {
    tags.handle(handle_code, head.handle);
    if (form.has_owners()) tags.handle(330, head.table);
    tags.lines("100\nAcDbSymbolTableRecord\n");
    tags.text(100, head.subclass);
  }
  tags.text(2, head.name);
}

void write_layer(TagWriter& tags, const DxfForm& form, const LayerRecord& layer, Handle table,
                 std::span<const LayerPointer> pointers) {
  const std::string name = form.encoding.name(layer.name);
  begin_record(tags, form, "LAYER", {layer.handle, table, "AcDbLayerTableRecord", name});
  tags.lines("70\n0\n");
  tags.whole(62, layer.colour);
  tags.lines("6\nContinuous\n");
  if (!form.has_owners()) return;
  tags.lines("370\n-3\n");
  for (const auto& [code, object] : pointers) tags.handle(code, object);
}

void write_style(TagWriter& tags, const DxfForm& form, const TextStyle& style, Handle table) {
  const std::string name = form.encoding.name(style.name);
  begin_record(tags, form, "STYLE", {style.handle, table, "AcDbTextStyleTableRecord", name});
  tags.lines("70\n0\n40\n0.0\n41\n1.0\n50\n0.0\n71\n0\n42\n2.5\n");
  tags.text(3, style.font_file);
  tags.lines("4\n\n");
}

void write_application(TagWriter& tags, const DxfForm& form, Handle handle, std::string_view name, Handle table) {
  begin_record(tags, form, "APPID", {handle, table, "AcDbRegAppTableRecord", name});
  tags.lines("70\n0\n");
}

void begin_table(TagWriter& tags, const DxfForm& form, std::string_view name, Handle table, std::size_t records) {
  tags.lines("0\nTABLE\n");
  tags.text(2, name);
  if (form.has_subclasses()) tags.handle(5, table);
  if (form.has_owners()) tags.lines("330\n0\n");
  if (form.has_subclasses()) tags.lines("100\nAcDbSymbolTable\n");
  tags.whole(70, static_cast<long long>(records));
}

void begin_owned(TagWriter& tags, const DxfForm& form, std::string_view kind, Handle handle, Handle owner) {
  tags.text(0, kind);
  tags.handle(5, handle);
  if (owner != 0) {
    tags.lines("102\n{ACAD_REACTORS\n");
    tags.handle(330, owner);
    tags.lines("102\n}\n");
  }
  if (form.has_owners()) tags.handle(330, owner);
}

void begin_dictionary(TagWriter& tags, const DxfForm& form, Handle dictionary, Handle owner, std::string_view kind) {
  begin_owned(tags, form, kind, dictionary, owner);
  tags.lines("100\nAcDbDictionary\n");
  if (form.has_owners()) tags.lines("281\n1\n");  // on a clash while merging drawings the present entry stays
}

void write_entry(TagWriter& tags, std::string_view name, Handle object, int code) {
  tags.text(3, name);
  tags.handle(code, object);
}

void write_group(TagWriter& tags, const DxfForm& form, const Group& group, Handle dictionary) {
  begin_owned(tags, form, "GROUP", group.handle, dictionary);
  tags.lines("100\nAcDbGroup\n");
  std::string changed;
  tags.text(300, form.encoding.label(group.description, changed));
  tags.lines("70\n0\n");  // named
  tags.whole(71, group.selectable ? 1 : 0);
  for (const Handle member : group.members) tags.handle(340, member);
}

}  // namespace console
