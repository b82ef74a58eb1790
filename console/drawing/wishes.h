// How the user wants drawings: layers, heights beside the numbers, the size of letters, the version of the file.
#pragma once

#include <optional>
#include <string>

#include "console/dxf/version.h"

namespace console {

/// Layers by what stands on them.
struct Layers {
  std::string points = "PIKIETY";
  std::string labels = "PIKIETY_NR";
  std::string heights = "PIKIETY_H";
};

struct DrawingWishes {
  Layers layers;
  std::optional<int> height_decimals;  ///< heights are written below the numbers, with so many decimals
  std::optional<double> text_height;   ///< metres; without it a round value near 2 % of the points' extent
  bool group_selectable = true;        ///< whether picking one point picks its whole group
  DxfVersion version = DxfVersion::r2007;
};

}  // namespace console
