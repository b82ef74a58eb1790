// The points of a drawing as a check of it needs them: where they stand, the records of control on them, and the lists
// of what was imported. Views of the drawing's bytes.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "console/drawing/drawing.h"
#include "console/dxf/outline.h"

namespace console {

struct PointInDrawing {
  Handle own = 0;  ///< 0 where the file has no handles
  Position now;
  bool has_record = false;
  Handle recorded = 0;          ///< the handle at import, 0 where the record has lost it
  Position registered;          ///< the place at import
  std::string_view label = {};  ///< of the TEXT right behind the point, as the file spells it
  std::string_view block = {};  ///< the block that the point belongs to; empty in model and paper space
};

/// A point as the list of its import has it.
struct ListedPoint {
  Handle handle = 0;
  Position registered;
  std::string_view label;  ///< as the file spells it
  std::size_t list = 0;
};

struct DrawingPoints {
  std::vector<PointInDrawing> points;
  std::vector<ListedPoint> listed;  ///< list by list, in the order of the import
  std::vector<std::string_view> lists;
};

/// All points of a drawing whose outline is known. Throws DrawingFault.
[[nodiscard]] DrawingPoints points_in(std::string_view bytes, const Outline& outline);

}  // namespace console
