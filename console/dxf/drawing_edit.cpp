#include "console/dxf/drawing_edit.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <span>
#include <utility>
#include <vector>

#include "console/drawing/database.h"
#include "console/dxf/edit_list.h"
#include "console/dxf/form.h"
#include "console/dxf/numerals.h"
#include "console/dxf/records.h"
#include "console/dxf/sections.h"

namespace console {
namespace {

using Writer = EditList::Writer;

std::string spelled(double value) {
  std::array<char, kLongestNumeral> text{};
  return {text.data(), put_real(text.data(), value)};
}

DxfForm form_of(const Outline& outline) {
  DxfForm form{static_cast<DxfVersion>(outline.version), {}};
  const Tag* const told = outline.variable("$DWGCODEPAGE");
  const std::string_view code_page = told == nullptr ? std::string_view() : told->trimmed();
  if (!form.is_utf8()) form.encoding = TextEncoding(code_page.empty() ? "ASCII" : code_page);
  return form;
}

class DrawingEdit {
 public:
  DrawingEdit(std::string_view bytes, const Outline& outline, const Drawing& drawing, const Layers& layers)
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

  void write(ByteSink& sink) { edits_.write(sink); }

 private:
  Handle new_handle() { return next_handle_++; }

  // ---- Where things go

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

  // ---- Header: what stands there is changed in its place, what does not is added at its end.

  void edit_header() {
    in_section("HEADER", [this](std::size_t end) {
      if (section("HEADER") == nullptr) edits_.insert(end, "9\n$ACADVER\n1\nAC1009\n");
      edit_whole(end, "$PDMODE", drawing_.variables.PDMODE);
      edit_size(end);
      edit_seed(end);
    });
    const Tag* const handling = outline_.variable("$HANDLING");
    if (handling != nullptr && handling->whole() == 0) edits_.replace(*handling, "1");
    widen_extents();
  }

  void edit_whole(std::size_t end, std::string_view name, int value) {
    const Tag* const there = outline_.variable(name);
    if (there == nullptr) {
      edits_.insert(end, "9\n" + std::string(name) + "\n70\n" + std::to_string(value) + "\n");
    } else if (there->whole() != value) {
      edits_.replace(*there, std::to_string(value));
    }
  }

  void edit_size(std::size_t end) {
    const double value = drawing_.variables.PDSIZE;
    const Tag* const there = outline_.variable("$PDSIZE");
    if (there == nullptr) {
      edits_.insert(end, "9\n$PDSIZE\n40\n" + spelled(value) + "\n");
    } else if (there->real() != value) {
      edits_.replace(*there, spelled(value));
    }
  }

  // The next handle is known when all new objects are.
  void edit_seed(std::size_t end) {
    const auto seed = [this](TagWriter& tags) { tags.lines(handle_text(next_handle_)); };
    if (const Tag* const there = outline_.variable("$HANDSEED")) return edits_.replace(*there, seed);
    edits_.insert(end, "9\n$HANDSEED\n5\n");
    edits_.insert(end, seed);
    edits_.insert(end, "\n");
  }

  void widen_extents() {
    const Extents extents = extents_of(drawing_);
    widen("$EXTMIN", extents.smallest, [](double there, double wanted) { return wanted < there; });
    widen("$EXTMAX", extents.largest, [](double there, double wanted) { return wanted > there; });
  }

  template <class Beyond>
  void widen(std::string_view name, const Position& wanted, Beyond beyond) {
    constexpr double kNoExtents = 1e20;  // what empty drawings say, with either sign
    const auto found = outline_.header.find(name);
    if (found == outline_.header.end()) return;
    for (const Tag& tag : found->second) {
      const double value = tag.code == 10 ? wanted.x : tag.code == 20 ? wanted.y : wanted.z;
      const auto there = tag.real();
      if (there && std::abs(*there) < kNoExtents && beyond(*there, value)) edits_.replace(tag, spelled(value));
    }
  }

  // ---- Tables

  using RecordWriter = std::function<void(TagWriter&, Handle table)>;

  struct NewRecords {
    std::string_view table;
    std::vector<RecordWriter> records;
  };

  [[nodiscard]] bool has(std::string_view table, std::string_view name) const {
    const auto found = outline_.tables.find(table);
    return found != outline_.tables.end() && found->second.names.contains(name);
  }

  void edit_tables() {
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

  void add_to_table(const NewRecords& added, std::size_t section_end) {
    const auto found = outline_.tables.find(added.table);
    if (found == outline_.tables.end()) {
      const std::size_t place = place_of(added.table, kTables, outline_.tables, section_end);
      return add_table(added, place);
    }
    const TableOutline& there = found->second;
    for (const RecordWriter& record : added.records)
      edits_.insert(there.end, [record, table = there.handle](TagWriter& tags) { record(tags, table); });
    const auto told = static_cast<long long>(there.records);
    const auto now = static_cast<long long>(there.records + added.records.size());
    if (there.count && there.count->whole() == told) edits_.replace(*there.count, std::to_string(now));
  }

  void add_table(const NewRecords& added, std::size_t place) {
    const Handle table = form_.has_subclasses() ? new_handle() : 0;
    edits_.insert(place, [=, this](TagWriter& tags) {
      tags.lines("0\nTABLE\n");
      tags.text(2, added.table);
      if (form_.has_subclasses()) tags.handle(5, table);
      if (form_.has_owners()) tags.lines("330\n0\n");
      if (form_.has_subclasses()) tags.lines("100\nAcDbSymbolTable\n");
      tags.whole(70, static_cast<long long>(added.records.size()));
      for (const RecordWriter& record : added.records) record(tags, table);
      tags.lines("0\nENDTAB\n");
    });
  }

  std::vector<RecordWriter> new_layers() {
    std::vector<LayerPointer> pointers;
    for (const Tag& tag : outline_.plot_styles) pointers.emplace_back(tag.code, tag.handle().value_or(0));
    std::vector<RecordWriter> records;
    for (LayerRecord layer : layers_of(drawing_, layers_)) {
      if (has("LAYER", form_.encoding.name(layer.name))) continue;
      layer.handle = new_handle();
      records.push_back([=, this](TagWriter& tags, Handle table) { write_layer(tags, form_, layer, table, pointers); });
    }
    return records;
  }

  std::vector<RecordWriter> new_styles() {
    std::vector<RecordWriter> records;
    for (const TextStyle& style : drawing_.text_styles()) {
      if (has("STYLE", form_.encoding.name(style.name))) continue;
      records.push_back([&style, this](TagWriter& tags, Handle table) { write_style(tags, form_, style, table); });
    }
    return records;
  }

  std::vector<RecordWriter> new_applications() {
    constexpr std::string_view kName = vexo_reaktywne_core::kApplication;
    if (drawing_.control_record_count() == 0 || has("APPID", kName)) return {};
    return {[this, handle = new_handle()](TagWriter& tags, Handle table) {
      write_application(tags, form_, handle, kName, table);
    }};
  }

  // ---- Entities

  void edit_entities() {
    in_section("ENTITIES", [this](std::size_t end) {
      edits_.insert(end, [this](TagWriter& tags) {
        write_entities(tags, drawing_, {form_, layers_, outline_.model_space});
      });
    });
  }

  // ---- Objects

  using Entries = std::vector<std::pair<std::string, Handle>>;

  void edit_objects() {
    const bool is_listed = drawing_.control_record_count() > 0;
    if (drawing_.groups().empty() && !is_listed) return;
    in_section("OBJECTS", [&](std::size_t end) {
      const Handle root = outline_.root ? outline_.root->handle : new_handle();
      const Handle groups = drawing_.groups().empty() ? 0 : handle_of_dictionary(outline_.groups);
      const Handle control = is_listed ? handle_of_dictionary(outline_.control) : 0;
      add_named(root, end,
                {{kGroupDictionaryName, groups, outline_.groups_entry, outline_.groups.has_value()},
                 {kControlDictionaryName, control, outline_.control_entry, outline_.control.has_value()}});
      if (groups != 0) add_groups(groups, root, end);
      if (control != 0) add_control_list(control, root, end);
    });
  }

  Handle handle_of_dictionary(const std::optional<DictionaryOutline>& there) {
    return there ? there->handle : new_handle();
  }

  struct Named {
    std::string_view name;
    Handle dictionary;  // 0: not needed
    const std::optional<Tag>& entry;
    bool is_there;
  };

  // The root's entries for dictionaries that it lacks; one that points at none is given the new one.
  void add_named(Handle root, std::size_t end, const std::vector<Named>& all) {
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

  void add_entries(const DictionaryOutline& there, const Entries& entries) {
    for (const auto& [name, object] : entries)
      edits_.insert(there.entries_end, [name = name, object = object, code = there.entry_code](TagWriter& tags) {
        write_entry(tags, name, object, code);
      });
  }

  void add_dictionary(std::size_t place, Handle dictionary, Handle owner, const Entries& entries) {
    edits_.insert(place, [=, this](TagWriter& tags) {
      if (owner == 0) {
        tags.lines("0\nDICTIONARY\n");
        tags.handle(5, dictionary);
        if (form_.has_owners()) tags.lines("330\n0\n");
      } else {
        begin_owned(tags, form_, "DICTIONARY", dictionary, owner);
      }
      begin_entries(tags, form_);
      for (const auto& [name, object] : entries) write_entry(tags, name, object);
    });
  }

  void add_to_dictionary(const std::optional<DictionaryOutline>& there, std::size_t place, Handle dictionary,
                         Handle owner, const Entries& entries) {
    if (there) return add_entries(*there, entries);
    add_dictionary(place, dictionary, owner, entries);
  }

  void add_groups(Handle groups, Handle root, std::size_t end) {
    Entries entries;
    for (const Group& group : drawing_.groups()) entries.emplace_back(group.name, group.handle);
    add_to_dictionary(outline_.groups, end, groups, root, entries);
    for (const Group& group : drawing_.groups())
      edits_.insert(end, [&group, groups, this](TagWriter& tags) { write_group(tags, form_, group, groups); });
  }

  void add_control_list(Handle control, Handle root, std::size_t end) {
    const Handle list = new_handle();
    add_to_dictionary(outline_.control, end, control, root, {{free_list_name(), list}});
    edits_.insert(end, [=, this](TagWriter& tags) { write_control_list(tags, drawing_, form_, list, control); });
  }

  [[nodiscard]] std::string free_list_name() const {
    const std::string stem(control_list_name(drawing_));
    std::string name = stem;
    for (int number = 2; outline_.control && outline_.control->names.contains(name); ++number)
      name = stem + "_" + std::to_string(number);
    return name;
  }

  const Outline& outline_;
  const Drawing& drawing_;
  const Layers& layers_;
  DxfForm form_;
  EditList edits_;
  Handle next_handle_;
};

}  // namespace

Ground ground_of(const Outline& outline) {
  Ground ground;
  ground.first_free = outline.first_free;
  ground.holds_groups = form_of(outline).has_subclasses();
  if (outline.groups) ground.group_names.assign(outline.groups->names.begin(), outline.groups->names.end());
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
