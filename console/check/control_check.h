// What became of the points under control since their import: moved, deleted, copied.
//
// A point is the one of its record when it has the handle that stands there; everything else with that record is a
// copy. Where a program gave all handles anew, points and records are brought together by the places at import.
// Deletions are known where there is the list of an import.
#pragma once

#include <cstddef>
#include <vector>

#include "console/check/points_in_drawing.h"

namespace console {

enum class Change { moved, deleted, copied };

struct ChangedPoint {
  Change change = Change::moved;
  const PointInDrawing* point = nullptr;     ///< none when it was deleted
  const ListedPoint* listed = nullptr;       ///< none when no list has it
  const PointInDrawing* original = nullptr;  ///< of a copy that no list has, where it is there

  [[nodiscard]] const Position& registered() const {
    return listed != nullptr ? listed->registered : point->registered;
  }
  /// From the place at import to the one now, metres; of a point that is there.
  [[nodiscard]] Position shift() const;
  [[nodiscard]] double distance() const;
  [[nodiscard]] std::string_view label() const;
};

struct ControlFindings {
  std::size_t controlled = 0;         ///< points under control, those deleted among them, copies not
  std::size_t in_place = 0;           ///< of these
  std::size_t unlisted = 0;           ///< of these, those of imports without a list
  std::vector<ChangedPoint> changed;  ///< in the order of the lists, then of the drawing
};

/// Points further than `tolerance` metres from where they were imported are moved. The findings point into `drawing`.
[[nodiscard]] ControlFindings check_control(const DrawingPoints& drawing, double tolerance);

}  // namespace console
