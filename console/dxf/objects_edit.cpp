// Objects: groups and the list of points under control, with the dictionaries that lead to them.
#include "console/drawing/database.h"
#include "console/dxf/drawing_edit_parts.h"
#include "console/dxf/records.h"
#include "console/dxf/sections.h"

namespace console {

void DrawingEdit::edit_objects() {
  const bool is_listed = drawing_.control_record_count() > 0;
  if (drawing_.groups().empty() && !is_listed) return;
  in_section("OBJECTS", [&](std::size_t end) {
    const Handle root = outline_.root ? outline_.root->handle : new_handle();
    const Handle groups = drawing_.groups().empty() ? 0 : handle_of_dictionary(outline_.groups);
    const Handle control = is_listed ? handle_of_dictionary(outline_.control) : 0;
    add_named(root, end,
              {{kGroupDictionary, groups, outline_.groups_entry, outline_.groups.has_value()},
               {kControlDictionary, control, outline_.control_entry, outline_.control.has_value()}});
    if (groups != 0) add_groups(groups, root, end);
    if (control != 0) add_control_list(control, root, end);
  });
}

Handle DrawingEdit::handle_of_dictionary(const std::optional<DictionaryOutline>& there) {
  return there ? there->handle : new_handle();
}

// The root's entries for dictionaries that it lacks; one that points at none is given the new one.
void DrawingEdit::add_named(Handle root, std::size_t end, const std::vector<Named>& all) {
  Entries entries;
  for (const Named& one : all) {
    if (one.dictionary == 0 || one.is_there) continue;
    if (one.entry) {
      edits_.replace(*one.entry, handle_text(one.dictionary));
    } else {
      entries.emplace_back(one.name, one.dictionary);
    }
  }
  if (outline_.root) {
    add_entries(*outline_.root, entries);
  } else {
    const Stretch* const objects = section("OBJECTS");
    add_dictionary(objects == nullptr ? end : objects->first, root, 0, entries);
  }
}

void DrawingEdit::add_entries(const DictionaryOutline& there, const Entries& entries) {
  for (const auto& [name, object] : entries)
    edits_.insert(there.entries_end, [name = name, object = object, code = there.entry_code](TagWriter& tags) {
      write_entry(tags, name, object, code);
    });
}

void DrawingEdit::add_dictionary(std::size_t place, Handle dictionary, Handle owner, const Entries& entries) {
  edits_.insert(place, [=, this](TagWriter& tags) {
    begin_dictionary(tags, form_, dictionary, owner);
    for (const auto& [name, object] : entries) write_entry(tags, name, object);
  });
}

void DrawingEdit::add_to_dictionary(const std::optional<DictionaryOutline>& there, std::size_t place, Handle dictionary,
                                    Handle owner, const Entries& entries) {
  if (there) return add_entries(*there, entries);
  add_dictionary(place, dictionary, owner, entries);
}

void DrawingEdit::add_groups(Handle groups, Handle root, std::size_t end) {
  Entries entries;
  for (const Group& group : drawing_.groups()) entries.emplace_back(group.name, group.handle);
  add_to_dictionary(outline_.groups, end, groups, root, entries);
  for (const Group& group : drawing_.groups())
    edits_.insert(end, [&group, groups, this](TagWriter& tags) { write_group(tags, form_, group, groups); });
}

void DrawingEdit::add_control_list(Handle control, Handle root, std::size_t end) {
  const Handle list = new_handle();
  add_to_dictionary(outline_.control, end, control, root, {{free_list_name(), list}});
  edits_.insert(end, [=, this](TagWriter& tags) { write_control_list(tags, drawing_, form_, list, control); });
}

std::string DrawingEdit::free_list_name() const {
  const std::string stem(control_list_name(drawing_));
  std::string name = stem;
  for (int number = 2; outline_.control && outline_.control->entry(name) != nullptr; ++number)
    name = stem + "_" + std::to_string(number);
  return name;
}

}  // namespace console
