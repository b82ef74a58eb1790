#include "console/check/control_check.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "console/check/by_place.h"

namespace console {
namespace {

double strayed(const PointInDrawing& point) { return length(between(point.registered, point.now)); }

// What is left of a shift's last digits at so great coordinates: one as long as the tolerance may not be told by it.
double noise_at(const Position& place) {
  constexpr double kSteps = 4.0 * std::numeric_limits<double>::epsilon();
  return kSteps * std::max({std::abs(place.x), std::abs(place.y), std::abs(place.z)});
}

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
    ByPlace open(&PointInDrawing::registered);
    for (const PointInDrawing& point : points_)
      if (point.has_record && !is_taken(&point) && (are_handles_new_ || point.recorded == 0)) open.add(point);
    for (std::size_t i = 0; i < listed_.size(); ++i)
      if (const auto* point = point_of_[i] == nullptr ? nearest(open, &PointInDrawing::registered, i) : nullptr)
        take(i, point);
  }

  // Of points at the listed place the one that comes nearest to it, of equals the one that strayed least from it.
  const PointInDrawing* nearest(ByPlace& at, Position PointInDrawing::*place, std::size_t entry) {
    const Position& listed = listed_[entry].registered;
    const PointInDrawing* best = nullptr;
    std::pair<double, double> least;
    at.for_each_near(listed, [&](const PointInDrawing* point) {
      if (is_taken(point)) return true;
      const std::pair rank(length(between(point->*place, listed)), strayed(*point));
      if (best == nullptr || rank < least) {
        best = point;
        least = rank;
      }
      return false;
    });
    return best;
  }

  // Points that lost their records but not their handles; or both, where there is no record at all.
  void find_without_record() {
    std::unordered_map<Handle, const PointInDrawing*> of_handle;
    ByPlace at(&PointInDrawing::now);
    for (const PointInDrawing& point : points_) {
      if (point.has_record) continue;
      if (point.own != 0) of_handle.emplace(point.own, &point);
      if (records_ == 0) at.add(point);
    }
    for (std::size_t i = 0; i < listed_.size(); ++i) {
      if (point_of_[i] != nullptr) continue;
      const auto same_handle = of_handle.find(listed_[i].handle);
      if (same_handle != of_handle.end() && !is_taken(same_handle->second) &&
          (!are_handles_new_ || is_same(same_handle->second->now, listed_[i].registered))) {
        take(i, same_handle->second);
      } else if (const auto* point = nearest(at, &PointInDrawing::now, i)) {
        take(i, point);
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
    ByPlace left(&PointInDrawing::registered);
    for (const PointInDrawing& point : points_) {
      if (!point.has_record || is_taken(&point)) continue;
      if (point.recorded != 0) copies[point.recorded].push_back(&point);
      left.add(point);
    }
    findings_.controlled = listed_.size();
    for (std::size_t i = 0; i < listed_.size(); ++i) {
      const ListedPoint& entry = listed_[i];
      if (point_of_[i] == nullptr) {
        tell({Change::deleted, nullptr, &entry});
      } else {
        tell_present(point_of_[i], &entry);
      }
      const auto tell_copy = [&](const PointInDrawing* point) {
        if (!is_taken(point)) tell({Change::copied, point, &entry});
        is_taken(point) = true;
        return true;
      };
      if (const auto own = copies.find(entry.handle); own != copies.end())
        std::erase_if(own->second, [&](const PointInDrawing* point) {
          return is_taken(point) || (is_same(point->registered, entry.registered) && tell_copy(point));
        });
      left.for_each_near(entry.registered, tell_copy);
    }
  }

  // Points whose import left no list: those registered at one place are one point and its copies, unless they stand
  // there still and name different handles, as imported ones may.
  void tell_unlisted() {
    ByPlace left(&PointInDrawing::registered);
    for (const PointInDrawing& point : points_)
      if (point.has_record && !is_taken(&point)) left.add(point);
    for (const PointInDrawing& point : points_) {
      if (!point.has_record || is_taken(&point)) continue;
      Points group;
      left.for_each_near(point.registered, [&group](const PointInDrawing* near) {
        group.push_back(near);
        return true;
      });
      tell_group(group);
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
