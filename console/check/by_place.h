// Points of a drawing by a place of theirs, found by places that programs may have rounded.
#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <functional>
#include <unordered_map>
#include <vector>

#include "console/check/points_in_drawing.h"

namespace console {

inline constexpr double kSamePlace = 0.001;  // metres that programs may round a registered place by

inline Position between(const Position& from, const Position& to) {
  return {to.x - from.x, to.y - from.y, to.z - from.z};
}

inline double length(const Position& way) { return std::hypot(way.x, way.y, way.z); }

inline bool is_same(const Position& one, const Position& other) { return length(between(one, other)) <= kSamePlace; }

class ByPlace {
 public:
  /// `place` is the one that points are found by.
  explicit ByPlace(Position PointInDrawing::*place) : place_(place) {}

  void add(const PointInDrawing& point) { cells_[cell_of(point.*place_)].push_back(&point); }

  /// Shows `visit` the points whose place is the same; those that it returns true for are not found again.
  template <class Visit>
  void for_each_near(const Position& place, Visit visit) {
    const Cell middle = cell_of(place);
    for_each_beside(middle[0], [&](double x) {
      for_each_beside(middle[1], [&](double y) {
        for_each_beside(middle[2], [&](double z) {
          if (const auto found = cells_.find({x, y, z}); found != cells_.end())
            std::erase_if(found->second,
                          [&](const auto* point) { return is_same(point->*place_, place) && visit(point); });
        });
      });
    });
  }

 private:
  using Cell = std::array<double, 3>;
  struct Hash {
    std::size_t operator()(const Cell& cell) const {
      std::size_t hash = 0;
      for (const double part : cell) hash = hash * 1000003U ^ std::hash<double>()(part);
      return hash;
    }
  };

  // Wider than what is the same, so that what is stands one cell away at most, however the quotients are rounded.
  static Cell cell_of(const Position& place) {
    const auto at = [](double value) { return std::floor(value / (2.0 * kSamePlace)) + 0.0; };
    return {at(place.x), at(place.y), at(place.z)};
  }

  // Far out, where numbers are more than a cell apart, the cell beside is the cell itself.
  template <class Visit>
  static void for_each_beside(double cell, Visit visit) {
    visit(cell);
    for (const double beside : {cell - 1.0, cell + 1.0})
      if (beside != cell) visit(beside);
  }

  Position PointInDrawing::*place_;
  std::unordered_map<Cell, std::vector<const PointInDrawing*>, Hash> cells_;
};

}  // namespace console
