#include "console/dxf/dictionaries.h"

#include <utility>

#include "console/dxf/sections.h"

namespace console {
namespace {

struct Dictionary {
  DictionaryOutline outline;
  Handle owner = 0;
};

// Reads the dictionary whose first tag was read; leaves the tag behind it.
Dictionary read_dictionary(TagReader& reader, Tag& tag) {
  Dictionary read;
  std::string_view name;
  bool is_named = false;
  bool is_braced = false;
  bool is_extended = false;
  bool is_followed = false;
  while ((is_followed = reader.next(tag)) && tag.code != 0) {
    if (is_extended || tag.code == 999) continue;
    if (tag.code == 102) is_braced = tag.value.starts_with('{');
    if (is_braced) continue;
    if (tag.code == 5 && read.outline.handle == 0) read.outline.handle = tag.handle().value_or(0);
    if (tag.code == 330 && read.owner == 0) read.owner = tag.handle().value_or(0);
    if (tag.code == 280 && tag.whole() == 1) read.outline.entry_code = 360;
    is_extended = tag.code == 1001;
    if (is_extended) read.outline.entries_end = tag.begin;
    if ((tag.code == 350 || tag.code == 360) && is_named) {
      read.outline.entry_code = tag.code;
      read.outline.entries.push_back({name, tag});
    }
    is_named = tag.code == 3;
    if (is_named) name = tag.trimmed();
  }
  if (!is_extended) read.outline.entries_end = is_followed ? tag.begin : tag.end;
  return read;
}

// Shows each dictionary to `visit` until that says so.
template <class Visit>
void visit_dictionaries(std::string_view bytes, const Stretch& objects, Visit visit) {
  TagReader reader(bytes.substr(0, objects.end), objects.first);
  Tag tag;
  bool is_read = reader.next(tag);
  while (is_read) {
    if (tag.code == 0 && tag.says("DICTIONARY")) {
      Dictionary read = read_dictionary(reader, tag);
      if (visit(read)) return;
      is_read = tag.code == 0 && tag.begin < objects.end;
    } else {
      is_read = reader.next(tag);
    }
  }
}

std::optional<Tag> pointer_in(const DictionaryOutline& dictionary, std::string_view name) {
  const DictionaryEntry* const entry = dictionary.entry(name);
  return entry == nullptr ? std::nullopt : std::optional(entry->pointer);
}

}  // namespace

void find_dictionaries(std::string_view bytes, const Stretch& objects, Outline& outline) {
  std::optional<Dictionary> root;
  visit_dictionaries(bytes, objects, [&root](Dictionary& read) {
    const bool is_root = read.owner == 0;
    if (is_root || !root) root = std::move(read);
    return is_root;
  });
  if (!root) return;
  outline.root = std::move(root->outline);
  outline.groups_entry = pointer_in(*outline.root, kGroupDictionary);
  outline.control_entry = pointer_in(*outline.root, kControlDictionary);
  const auto is_at = [](const std::optional<Tag>& pointer, Handle handle) {
    return pointer && handle != 0 && pointer->handle() == handle;
  };
  visit_dictionaries(bytes, objects, [&](Dictionary& read) {
    if (is_at(outline.groups_entry, read.outline.handle)) outline.groups = read.outline;
    if (is_at(outline.control_entry, read.outline.handle)) outline.control = read.outline;
    return (outline.groups || !outline.groups_entry) && (outline.control || !outline.control_entry);
  });
}

}  // namespace console
