#include "console/drawing/drawing.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "vexo_xyz_impl/text/ascii.h"

namespace console {
namespace {

constexpr Handle kFirstFree = handle_of(Fixed::first_free);

// Programs in use cut a line of a drawing after 255 bytes, and a number cut short is another number. Far below what a
// double holds, so that sums of coordinates stay finite.
constexpr double kFarthest = 1e250;

bool is_sound(double value) { return std::abs(value) <= kFarthest; }  // false for a nan

bool is_sound(const Position& position) { return is_sound(position.x) && is_sound(position.y) && is_sound(position.z); }

struct IsSound {
  bool operator()(const PointGeometry& point) const { return is_sound(point.position); }
  bool operator()(const TextGeometry& text) const {
    return is_sound(text.position) && is_sound(text.height) && text.height > 0.0;
  }
};

std::string lower_case(std::string_view name) {
  std::string lower(name);
  std::transform(lower.begin(), lower.end(), lower.begin(), vexo_xyz_impl::text::ascii_lower);
  return lower;
}

}  // namespace

std::optional<Handle> Drawing::add(Entity entity) {
  if (!std::visit(IsSound(), entity.geometry)) return std::nullopt;
  entity.handle = new_handle();
  entities_.push_back(std::move(entity));
  entity_slots_.resize(next_handle_ - kFirstFree);
  entity_slots_.back() = static_cast<std::uint32_t>(entities_.size());
  return entities_.back().handle;
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

std::optional<std::size_t> Drawing::entity_index(Handle handle) const {
  if (handle < kFirstFree || handle - kFirstFree >= entity_slots_.size()) return std::nullopt;
  const std::uint32_t slot = entity_slots_[handle - kFirstFree];
  return slot == 0 ? std::nullopt : std::optional<std::size_t>(slot - 1);
}

const Entity* Drawing::entity(Handle handle) const {
  const auto index = entity_index(handle);
  return index ? &entities_[*index] : nullptr;
}

Entity* Drawing::entity(Handle handle) {
  const auto index = entity_index(handle);
  return index ? &entities_[*index] : nullptr;
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
