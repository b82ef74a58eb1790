#include "console/drawing/drawing.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "vexo_xyz_impl/text/ascii.h"

namespace console {
namespace {

constexpr double kFarthest = 1e15;   // metres
constexpr double kNearest = 1e-100;  // metres; what is less is 0: its decimals would be longer than lines may be

bool is_near(double value) { return std::abs(value) <= kFarthest; }  // false for a nan

bool is_sound(const Position& position) { return is_near(position.x) && is_near(position.y) && is_near(position.z); }

bool is_tiny(double value) { return std::abs(value) < kNearest && value != 0.0; }

Position without_tiny(const Position& position) {
  const auto rounded = [](double value) { return is_tiny(value) ? 0.0 : value; };
  return {rounded(position.x), rounded(position.y), rounded(position.z)};
}

bool has_tiny(const Position& position) { return is_tiny(position.x) || is_tiny(position.y) || is_tiny(position.z); }

// The text, or of a long one its beginning and an ellipsis, which `shortened` then holds.
std::string_view bounded(std::string_view text, std::string& shortened) {
  constexpr std::string_view kEllipsis = "…";
  if (text.size() <= kLongestLabel) return text;
  std::size_t end = kLongestLabel - kEllipsis.size();
  while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U) --end;  // no half characters
  shortened = text.substr(0, end);
  shortened += kEllipsis;
  return shortened;
}

std::string lower_case(std::string_view name) {
  std::string lower(name);
  std::transform(lower.begin(), lower.end(), lower.begin(), vexo_xyz_impl::text::ascii_lower);
  return lower;
}

}  // namespace

// Ids of the interface are handles too, so those of new drawings' own objects are not given to others.
Drawing::Drawing(const Ground& ground)
    : variables(ground.variables),
      first_handle_(std::max(ground.first_free, handle_of(Fixed::first_free))),
      next_handle_(first_handle_),
      holds_groups_(ground.holds_groups) {
  for (const std::string& name : ground.group_names) group_names_.insert(lower_case(name));
}

template <class Geometry>
std::optional<Handle> Drawing::place(Kind kind, Column<Geometry>& all, const Geometry& one) {
  constexpr std::uint32_t kMost = 1U << 30U;  // what a slot can number
  if (all.size() == kMost) return std::nullopt;
  all.push_back(one);
  const Handle handle = new_handle();
  slots_.resize(handle - first_handle_);  // styles and groups have handles too
  slots_.emplace_back().kind = kind;
  slots_.back().index = static_cast<std::uint32_t>(all.size() - 1) & (kMost - 1);
  return handle;
}

std::optional<Handle> Drawing::add(const PointGeometry& point) {
  if (!is_sound(point.position)) return std::nullopt;
  if (has_tiny(point.position)) return place(Kind::point, points_, PointGeometry{without_tiny(point.position)});
  return place(Kind::point, points_, point);
}

bool Drawing::take_over(TextGeometry& text) {
  if (!is_sound(text.position) || !is_near(text.height) || !(text.height > kNearest)) return false;
  if (has_tiny(text.position)) text.position = without_tiny(text.position);
  std::string shortened;
  const std::span<const char> kept = letters_.keep(bounded(text.text, shortened));
  text.text = {kept.data(), kept.size()};
  return true;
}

std::optional<Handle> Drawing::add(TextGeometry text) {
  return take_over(text) ? place(Kind::text, texts_, text) : std::nullopt;
}

std::optional<Handle> Drawing::add(HeightGeometry height) {
  return take_over(height) ? place(Kind::height, heights_, height) : std::nullopt;
}

std::optional<Handle> Drawing::add(Group group) {
  if (group.name.empty() || has_group(group.name)) return std::nullopt;
  group.handle = new_handle();
  group_names_.insert(lower_case(group.name));
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

const TextGeometry* Drawing::text(Handle handle) const {
  const Slot found = slot(handle);
  return found.kind == Kind::text ? &texts_[found.index] : nullptr;
}

TextGeometry* Drawing::text(Handle handle) {
  const Slot found = slot(handle);
  return found.kind == Kind::text ? &texts_[found.index] : nullptr;
}

const TextGeometry* Drawing::label_of(Handle point) const {
  Handle behind = point + 1;
  while (behind < next_handle_ && slot(behind).kind == Kind::none) ++behind;  // the text style's, made with the first
  return text(behind);
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
