#include "console/drawing/drawing.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "vexo_xyz_impl/text/ascii.h"

namespace console {
namespace {

// Programs in use cut a line of a drawing after 255 bytes, and a number cut short is another number. Far below what a
// double holds, so that sums of coordinates stay finite.
constexpr double kFarthest = 1e250;

bool is_near(double value) { return std::abs(value) <= kFarthest; }  // false for a nan

bool is_sound(const Position& position) { return is_near(position.x) && is_near(position.y) && is_near(position.z); }

std::string lower_case(std::string_view name) {
  std::string lower(name);
  std::transform(lower.begin(), lower.end(), lower.begin(), vexo_xyz_impl::text::ascii_lower);
  return lower;
}

}  // namespace

template <class Geometry>
std::optional<Handle> Drawing::place(Kind kind, Column<Geometry>& all, const Geometry& one) {
  constexpr std::uint32_t kMost = 1U << 30U;  // what a slot can number
  if (all.size() == kMost) return std::nullopt;
  all.push_back(one);
  const Handle handle = new_handle();
  slots_.resize(handle - kFirstFree);  // styles and groups have handles too
  slots_.emplace_back().kind = kind;
  slots_.back().index = static_cast<std::uint32_t>(all.size() - 1) & (kMost - 1);
  return handle;
}

std::optional<Handle> Drawing::add(const PointGeometry& point) {
  return is_sound(point.position) ? place(Kind::point, points_, point) : std::nullopt;
}

std::optional<Handle> Drawing::add(TextGeometry text) {
  if (!is_sound(text.position) || !is_near(text.height) || !(text.height > 0.0)) return std::nullopt;
  const std::span<const char> kept = letters_.keep(text.text);
  text.text = {kept.data(), kept.size()};
  return place(Kind::text, texts_, text);
}

std::optional<Handle> Drawing::add(Group group) {
  if (group.name.empty() || has_group(group.name)) return std::nullopt;
  group.handle = new_handle();
  group_names_.emplace(lower_case(group.name), group.handle);
  groups_.push_back(std::move(group));
  return groups_.back().handle;
}

Handle Drawing::ensure_text_style(std::string_view name, std::string_view font_file) {
  const auto found = std::find_if(text_styles_.begin(), text_styles_.end(),
                                  [name](const TextStyle& style) { return style.name == name; });
  if (found != text_styles_.end()) return found->handle;
  text_styles_.push_back({new_handle(), std::string(name), std::string(font_file)});
  return text_styles_.back().handle;
}

void Drawing::keep(Handle entity, vexo_reaktywne_core::ControlRecord record) {
  control_records_.insert_or_assign(entity, std::move(record));
}

const PointGeometry* Drawing::point(Handle handle) const {
  const Slot found = slot(handle);
  return found.kind == Kind::point ? &points_[found.index] : nullptr;
}

TextGeometry* Drawing::text(Handle handle) {
  const Slot found = slot(handle);
  return found.kind == Kind::text ? &texts_[found.index] : nullptr;
}

Group* Drawing::group(Handle handle) {
  const auto found =
      std::find_if(groups_.begin(), groups_.end(), [handle](const Group& group) { return group.handle == handle; });
  return found == groups_.end() ? nullptr : &*found;
}

bool Drawing::has_group(std::string_view name) const { return group_names_.contains(lower_case(name)); }

const vexo_reaktywne_core::ControlRecord* Drawing::control_record(Handle entity) const {
  const auto found = control_records_.find(entity);
  return found == control_records_.end() ? nullptr : &found->second;
}

}  // namespace console
