// The drawing: what a DXF file holds of it, as plain data with the few rules that keep it sound.
//
// Every object has a handle, unique in the drawing and never used again. Opening and closing, and whatever else a
// host's interface is about, belong to the database (database.h).
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "console/drawing/column.h"
#include "siblings/vexo_reaktywne_core/reaktywne_core.h"
#include "vexo_xyz_impl/host/values.h"
#include "vexo_xyz_impl/input/groups.h"

namespace console {

using Handle = std::uint64_t;
using Position = vexo_xyz_impl::host::GcGePoint3d;

/// A position in plan, drawing units.
struct PlanPoint {
  double x = 0.0;
  double y = 0.0;
};

/// Handles of the objects that every drawing has; those of everything else begin behind them.
enum class Fixed : Handle {
  vport_table = 1,
  ltype_table,
  layer_table,
  style_table,
  view_table,
  ucs_table,
  appid_table,
  dimstyle_table,
  block_record_table,
  active_vport,
  ltype_by_block,
  ltype_by_layer,
  ltype_continuous,
  layer_0,
  style_standard,
  appid_acad,
  appid_vexo,
  dimstyle_standard,
  model_space,
  paper_space,
  model_space_block,
  model_space_endblk,
  paper_space_block,
  paper_space_endblk,
  root_dictionary,
  group_dictionary,
  layout_dictionary,
  model_layout,
  paper_layout,
  plot_style_dictionary,
  plot_style_normal,
  block_table,  // of the interface only; a file shows its records
  layer_points,
  layer_labels,
  layer_heights,
  control_dictionary,
  control_list,
  first_free = 0x40,
};

constexpr Handle handle_of(Fixed object) { return static_cast<Handle>(object); }

struct PointGeometry {
  Position position;
};

struct TextGeometry {
  Position position;
  double height = 0.0;
  Handle style = handle_of(Fixed::style_standard);
  std::string_view text = {};  ///< the caller's letters until it is added, then the drawing's
};

/// A height written beside the number of its point.
struct HeightGeometry : TextGeometry {};

struct TextStyle {
  Handle handle;
  std::string name;
  std::string font_file;
};

struct Group {
  Handle handle = 0;  ///< 0 until it belongs to a drawing
  std::string name;
  std::string description;
  bool selectable = true;       ///< whether picking one member picks all, as the maker of the group says
  std::vector<Handle> members;  ///< each once
};

/// System variables that are part of the drawing.
struct SystemVariables {
  std::int16_t PDMODE = 0;
  double PDSIZE = 0.0;
};

/// What a drawing is begun with: nothing for a new one, else what the drawing that things are added to holds already.
struct Ground {
  Handle first_free = handle_of(Fixed::first_free);  ///< nothing there has it or one above it
  std::vector<std::string> group_names;
  bool holds_groups = true;
  SystemVariables variables;
};

/// Bytes of the longest label in a drawing: programs in use cut a line of a file after 255.
inline constexpr std::size_t kLongestLabel = 250;

class Drawing {
 public:
  explicit Drawing(const Ground& ground = {});

  /// Takes an entity into model space and gives it its handle; empty when a number of its geometry is not finite or
  /// beyond 1e15, where doubles no longer tell metres apart, or when a text has no height. What a text says is copied,
  /// of a text longer than `kLongestLabel` the beginning and an ellipsis. A drawing holds a billion entities of a kind
  /// at most.
  std::optional<Handle> add(const PointGeometry& point);
  std::optional<Handle> add(TextGeometry text);
  std::optional<Handle> add(HeightGeometry height);

  /// Takes the group in under its name; empty when the name is empty or taken, letter case aside.
  std::optional<Handle> add(Group group);

  /// The handle of the text style, made when the drawing has none of that name.
  Handle ensure_text_style(std::string_view name, std::string_view font_file);

  /// Keeps a control record on an entity, in the place of an earlier one.
  void keep(Handle entity, vexo_reaktywne_core::ControlRecord record);

  /// The point, text or group of that handle; nullptr when there is none.
  [[nodiscard]] const PointGeometry* point(Handle handle) const;
  [[nodiscard]] TextGeometry* text(Handle handle);
  [[nodiscard]] const TextGeometry* text(Handle handle) const;
  /// The text added right behind the point, which is its label; nullptr when there is none.
  [[nodiscard]] const TextGeometry* label_of(Handle point) const;
  [[nodiscard]] Group* group(Handle handle);
  [[nodiscard]] bool has_entity(Handle handle) const { return slot(handle).kind != Kind::none; }
  [[nodiscard]] bool has_group(std::string_view name) const;
  [[nodiscard]] bool holds_groups() const { return holds_groups_; }  ///< whether there may be any
  [[nodiscard]] const vexo_reaktywne_core::ControlRecord* control_record(Handle entity) const;

  [[nodiscard]] std::size_t entity_count() const { return points_.size() + texts_.size() + heights_.size(); }
  [[nodiscard]] std::size_t height_count() const { return heights_.size(); }
  [[nodiscard]] std::size_t control_record_count() const { return control_records_.size(); }

  /// Calls `visit(entity, record)` for each control record, by rising handles.
  template <class Visit>
  void for_each_control_record(Visit visit) const {
    for (const auto& [entity, record] : control_records_) visit(entity, record);
  }

  /// Calls `visit(handle, geometry)` for each entity in the order they were added, which is that of rising handles.
  template <class Visit>
  void for_each_entity(Visit visit) const {
    for (std::size_t i = 0; i < slots_.size(); ++i) {
      const Slot slot = slots_[i];
      if (slot.kind == Kind::point) visit(first_handle_ + i, points_[slot.index]);
      if (slot.kind == Kind::text) visit(first_handle_ + i, texts_[slot.index]);
      if (slot.kind == Kind::height) visit(first_handle_ + i, heights_[slot.index]);
    }
  }

  [[nodiscard]] const std::deque<Group>& groups() const { return groups_; }
  [[nodiscard]] std::deque<Group>& groups() { return groups_; }
  [[nodiscard]] const std::vector<TextStyle>& text_styles() const { return text_styles_; }
  [[nodiscard]] Handle next_handle() const { return next_handle_; }  ///< above every handle in use

  SystemVariables variables;

 private:
  // Where the entity of a handle stands. What is of one kind stands together, so that no point takes a text's room.
  enum class Kind : std::uint32_t { none, point, text, height };
  struct Slot {
    Kind kind : 2;
    std::uint32_t index : 30;
  };

  Handle new_handle() { return next_handle_++; }
  [[nodiscard]] Slot slot(Handle handle) const {
    return handle - first_handle_ < slots_.size() ? slots_[handle - first_handle_] : Slot{};  // wraps below the first
  }
  bool take_over(TextGeometry& text);  // its letters, when it is sound
  template <class Geometry>
  std::optional<Handle> place(Kind kind, Column<Geometry>& all, const Geometry& one);

  Handle first_handle_;
  Handle next_handle_;
  bool holds_groups_;
  std::vector<Slot> slots_;  // by handle from the first on
  Column<PointGeometry> points_;
  Column<TextGeometry> texts_;
  Column<HeightGeometry> heights_;
  vexo_xyz_impl::Groups<char> letters_;  // what the texts say
  std::deque<Group> groups_;
  std::set<std::string> group_names_;  // in lower case
  std::vector<TextStyle> text_styles_;
  std::map<Handle, vexo_reaktywne_core::ControlRecord> control_records_;
};

}  // namespace console
