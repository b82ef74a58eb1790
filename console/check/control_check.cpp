#include "console/check/control_check.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace console {
namespace {

constexpr double kSamePlace = 0.001;  // metres that programs may round a registered place by

Position between(const Position& from, const Position& to) { return {to.x - from.x, to.y - from.y, to.z - from.z}; }

double length(const Position& way) { return std::hypot(way.x, way.y, way.z); }

bool is_same(const Position& one, const Position& other) { return length(between(one, other)) <= kSamePlace; }

double strayed(const PointInDrawing& point) { return length(between(point.registered, point.now)); }

// What is left of a shift's last digits at so great coordinates: one as long as the tolerance may not be told by it.
double noise_at(const Position& place) {
  constexpr double kSteps = 4.0 * std::numeric_limits<double>::epsilon();
  return kSteps * std::max({std::abs(place.x), std::abs(place.y), std::abs(place.z)});
}

// Places that agree to a tenth of a millimetre.
using PlaceKey = std::array<double, 3>;
PlaceKey key_of(const Position& place) {
  constexpr double kSteps = 10000.0;  // a metre
  const auto rounded = [](double value) { return std::round(value * kSteps) + 0.0; };
  return {rounded(place.x), rounded(place.y), rounded(place.z)};
}
struct PlaceHash {
  std::size_t operator()(const PlaceKey& key) const {
    std::size_t hash = 0;
    for (const double part : key) hash = hash * 1000003U ^ std::hash<double>()(part);
    return hash;
  }
};

class Check {
 public:
  Check(const DrawingPoints& drawing, double tolerance)
      : points_(drawing.points),
        listed_(drawing.listed),
        tolerance_(tolerance),
        taken_(points_.size()),
        point_of_(listed_.size(), nullptr) {
    for (const PointInDrawing& point : points_) {
      if (!point.has_record) continue;
      ++records_;
      by_recorded_[point.recorded].push_back(&point);
    }
    are_handles_new_ = handles_are_new();  // NOLINT(cppcoreguidelines-prefer-member-initializer): of what was gathered
  }

  ControlFindings run() {
    find_by_own_handle();
    find_by_recorded_handle();
    find_by_place();
    find_without_record();
    tell_listed();
    tell_unlisted();
    return std::move(findings_);
  }

 private:
  using Points = std::vector<const PointInDrawing*>;

  // A program that gives handles anew leaves hardly a record that names its own point.
  bool handles_are_new() const {
    std::size_t told = 0;
    std::size_t kept = 0;
    for (const auto& [recorded, points] : by_recorded_) {
      if (recorded == 0) continue;
      ++told;
      const auto has_own = [recorded = recorded](const auto* point) { return point->own == recorded; };
      kept += std::any_of(points.begin(), points.end(), has_own) ? 1 : 0;
    }
    return kept * 2 < told;
  }

  std::vector<bool>::reference is_taken(const PointInDrawing* point) {
    return taken_[static_cast<std::size_t>(point - points_.data())];
  }

  void take(std::size_t entry, const PointInDrawing* point) {
    point_of_[entry] = point;
    is_taken(point) = true;
  }

  void find_by_own_handle() {
    std::unordered_map<Handle, std::size_t> entries;
    for (std::size_t i = 0; i < listed_.size(); ++i) entries.emplace(listed_[i].handle, i);
    for (const PointInDrawing& point : points_) {
      const auto entry = point.has_record && point.own != 0 ? entries.find(point.own) : entries.end();
      if (entry == entries.end() || point_of_[entry->second] != nullptr) continue;
      if (is_same(point.registered, listed_[entry->second].registered)) take(entry->second, &point);
    }
  }

  void find_by_recorded_handle() {
    if (!are_handles_new_) return;  // then whatever names another point is a copy of it
    for (std::size_t i = 0; i < listed_.size(); ++i) {
      const auto found = by_recorded_.find(listed_[i].handle);
      if (point_of_[i] != nullptr || found == by_recorded_.end()) continue;
      const PointInDrawing* nearest = nullptr;
      for (const PointInDrawing* point : found->second) {
        if (is_taken(point) || !is_same(point->registered, listed_[i].registered)) continue;
        if (nearest == nullptr || strayed(*point) < strayed(*nearest)) nearest = point;
      }
      if (nearest != nullptr) take(i, nearest);
    }
  }

  void find_by_place() {
    std::unordered_map<PlaceKey, Points, PlaceHash> at;
    for (const PointInDrawing& point : points_) {
      const bool is_open = point.has_record && !is_taken(&point) && (are_handles_new_ || point.recorded == 0);
      if (is_open) at[key_of(point.registered)].push_back(&point);
    }
    for (auto& [place, points] : at)  // the nearest last, to be taken first
      std::stable_sort(points.begin(), points.end(), [](auto* a, auto* b) { return strayed(*a) > strayed(*b); });
    for (std::size_t i = 0; i < listed_.size(); ++i) {
      const auto found = point_of_[i] == nullptr ? at.find(key_of(listed_[i].registered)) : at.end();
      if (found == at.end() || found->second.empty()) continue;
      take(i, found->second.back());
      found->second.pop_back();
    }
  }

  // Points that lost their records but not their handles; or both, where there is no record at all.
  void find_without_record() {
    std::unordered_map<Handle, const PointInDrawing*> of_handle;
    std::unordered_map<PlaceKey, Points, PlaceHash> at;
    for (const PointInDrawing& point : points_) {
      if (point.has_record) continue;
      if (point.own != 0) of_handle.emplace(point.own, &point);
      if (records_ == 0) at[key_of(point.now)].push_back(&point);
    }
    for (std::size_t i = 0; i < listed_.size(); ++i) {
      if (point_of_[i] != nullptr) continue;
      const auto same_handle = of_handle.find(listed_[i].handle);
      const auto there = at.find(key_of(listed_[i].registered));
      if (same_handle != of_handle.end() && !is_taken(same_handle->second) &&
          (!are_handles_new_ || is_same(same_handle->second->now, listed_[i].registered))) {
        take(i, same_handle->second);
      } else if (there != at.end()) {
        while (!there->second.empty() && is_taken(there->second.back())) there->second.pop_back();
        if (!there->second.empty()) take(i, there->second.back());
      }
    }
  }

  void tell(ChangedPoint changed) { findings_.changed.push_back(changed); }

  void tell_present(const PointInDrawing* point, const ListedPoint* listed) {
    const ChangedPoint moved = {Change::moved, point, listed};
    if (moved.distance() > tolerance_ + noise_at(point->now)) {
      tell(moved);
    } else {
      ++findings_.in_place;
    }
  }

  // Each listed point, its copies right behind it.
  void tell_listed() {
    std::unordered_map<Handle, Points> copies;
    std::unordered_map<PlaceKey, Points, PlaceHash> at;
    for (const PointInDrawing& point : points_) {
      if (!point.has_record || is_taken(&point)) continue;
      if (point.recorded != 0) copies[point.recorded].push_back(&point);
      at[key_of(point.registered)].push_back(&point);
    }
    findings_.controlled = listed_.size();
    for (std::size_t i = 0; i < listed_.size(); ++i) {
      const ListedPoint& entry = listed_[i];
      if (point_of_[i] == nullptr) {
        tell({Change::deleted, nullptr, &entry});
      } else {
        tell_present(point_of_[i], &entry);
      }
      if (const auto own = copies.find(entry.handle); own != copies.end()) tell_copies(own->second, entry);
      if (const auto there = at.find(key_of(entry.registered)); there != at.end()) tell_copies(there->second, entry);
    }
  }

  void tell_copies(Points& points, const ListedPoint& entry) {
    std::erase_if(points, [&](const PointInDrawing* point) {
      if (is_taken(point)) return true;
      if (!is_same(point->registered, entry.registered)) return false;
      is_taken(point) = true;
      tell({Change::copied, point, &entry});
      return true;
    });
  }

  // Points whose import left no list: those registered at one place are one point and its copies, unless they stand
  // there still and name different handles, as imported ones may.
  void tell_unlisted() {
    std::unordered_map<PlaceKey, Points, PlaceHash> at;
    for (const PointInDrawing& point : points_)
      if (point.has_record && !is_taken(&point)) at[key_of(point.registered)].push_back(&point);
    for (const PointInDrawing& point : points_) {
      const auto group = point.has_record && !is_taken(&point) ? at.find(key_of(point.registered)) : at.end();
      if (group != at.end()) tell_group(group->second);
    }
  }

  void tell_group(Points& points) {
    const auto rank = [this](const PointInDrawing* point) {
      const bool is_own = point->own != 0 && point->own == point->recorded;
      return std::pair(!is_own && !are_handles_new_ && point->recorded != 0, strayed(*point));
    };
    std::stable_sort(points.begin(), points.end(), [&](auto* a, auto* b) { return rank(a) < rank(b); });
    std::unordered_set<Handle> originals;
    const PointInDrawing* first = nullptr;
    for (const PointInDrawing* point : points) {
      is_taken(point) = true;
      const bool names_another = rank(point).first;
      const bool is_first =
          originals.empty() || (strayed(*point) <= tolerance_ && !originals.contains(point->recorded));
      if (names_another || !is_first) {
        tell({Change::copied, point, nullptr, first});
        continue;
      }
      if (first == nullptr) first = point;
      originals.insert(point->recorded);
      ++findings_.controlled;
      ++findings_.unlisted;
      tell_present(point, nullptr);
    }
  }

  const std::vector<PointInDrawing>& points_;
  const std::vector<ListedPoint>& listed_;
  double tolerance_;
  std::vector<bool> taken_;                         // points that are accounted for
  std::vector<const PointInDrawing*> point_of_;     // each listed point's
  std::unordered_map<Handle, Points> by_recorded_;  // points with records
  std::size_t records_ = 0;
  bool are_handles_new_ = false;
  ControlFindings findings_;
};

}  // namespace

Position ChangedPoint::shift() const { return between(registered(), point->now); }

double ChangedPoint::distance() const { return length(shift()); }

std::string_view ChangedPoint::label() const {
  if (listed != nullptr) return listed->label;
  return original != nullptr ? original->label : point->label;
}

ControlFindings check_control(const DrawingPoints& drawing, double tolerance) {
  return Check(drawing, tolerance).run();
}

}  // namespace console
