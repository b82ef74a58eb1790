// The edit of a drawing, its parts apart: header, tables, entities, objects.
#pragma once

#include <algorithm>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "console/drawing/drawing.h"
#include "console/drawing/wishes.h"
#include "console/dxf/edit_list.h"
#include "console/dxf/form.h"
#include "console/dxf/outline.h"
#include "console/dxf/tag_writer.h"

namespace console {

class DrawingEdit {
 public:
  DrawingEdit(std::string_view bytes, const Outline& outline, const Drawing& drawing, const Layers& layers);

  void write(ByteSink& sink) { edits_.write(sink); }

 private:
  using RecordWriter = std::function<void(TagWriter&, Handle table)>;
  struct NewRecords {
    std::string_view table;
    std::vector<RecordWriter> records;
  };
  using Entries = std::vector<std::pair<std::string, Handle>>;
  struct Named {
    std::string_view name;
    Handle dictionary;  // 0: not needed
    const std::optional<Tag>& entry;
    bool is_there;
  };

  Handle new_handle() { return next_handle_++; }

  [[nodiscard]] const Stretch* section(std::string_view name) const {
    const auto found = outline_.sections.find(name);
    return found == outline_.sections.end() ? nullptr : &found->second;
  }

  // What `there` holds of those behind `name` in their usual order; `otherwise` where it holds none.
  template <class Order, class There>
  static std::size_t place_of(std::string_view name, const Order& order, const There& there, std::size_t otherwise) {
    std::size_t place = otherwise;
    for (auto later = std::find(order.begin(), order.end(), name); later != order.end(); ++later)
      if (const auto found = there.find(*later); found != there.end()) place = std::min(place, found->second.begin);
    return place;
  }

  // Shows `add` the offset at which tags end a section, which is made where there is none.
  template <class Add>
  void in_section(std::string_view name, Add add) {
    if (const Stretch* const there = section(name)) return add(there->end);
    const std::size_t place = place_of(name, kSections, outline_.sections, outline_.end);
    edits_.insert(place, "0\nSECTION\n2\n" + std::string(name) + "\n");
    add(place);
    edits_.insert(place, "0\nENDSEC\n");
  }

  // header_edit.cpp
  void edit_header();
  void edit_whole(std::size_t end, std::string_view name, int value);
  void edit_size(std::size_t end);
  void edit_seed(std::size_t end);
  void widen_extents();
  template <class Beyond>
  void widen(std::string_view name, const Position& wanted, Beyond beyond);

  // tables_edit.cpp
  [[nodiscard]] bool has(std::string_view table, std::string_view name) const;
  void edit_tables();
  void add_to_table(const NewRecords& added, std::size_t section_end);
  void add_table(const NewRecords& added, std::size_t place);
  std::vector<RecordWriter> new_layers();
  std::vector<RecordWriter> new_styles();
  std::vector<RecordWriter> new_applications();

  // objects_edit.cpp
  void edit_objects();
  Handle handle_of_dictionary(const std::optional<DictionaryOutline>& there);
  void add_named(Handle root, std::size_t end, const std::vector<Named>& all);
  void add_entries(const DictionaryOutline& there, const Entries& entries);
  void add_dictionary(std::size_t place, Handle dictionary, Handle owner, const Entries& entries);
  void add_to_dictionary(const std::optional<DictionaryOutline>& there, std::size_t place, Handle dictionary,
                         Handle owner, const Entries& entries);
  void add_groups(Handle groups, Handle root, std::size_t end);
  void add_control_list(Handle control, Handle root, std::size_t end);
  [[nodiscard]] std::string free_list_name() const;

  void edit_entities();

  const Outline& outline_;
  const Drawing& drawing_;
  const Layers& layers_;
  DxfForm form_;
  EditList edits_;
  Handle next_handle_;
};

}  // namespace console
