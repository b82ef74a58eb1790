#include "vexo_xyz_impl/table/text_height.h"

#include <cmath>

#include "vexo_xyz_impl/failure.h"

namespace vexo_xyz_impl {
namespace {

constexpr double kOrdinaryHeight = 2.5;

}  // namespace

double _rowna_wysokosc(double h) {
  if (h <= 0.0) return kOrdinaryHeight;
  if (h > _ROWNE_WYSOKOSCI.back()) {
    if (std::isinf(h))
      throw OverflowError("the label height is infinite: coordinates of the file are infinite or too far apart");
    return std::nearbyint(h / 10.0) * 10.0;  // the default rounding mode takes halves to the even neighbour
  }
  double nearest = _ROWNE_WYSOKOSCI.front();
  for (const double w : _ROWNE_WYSOKOSCI)
    if (std::abs(w - h) < std::abs(nearest - h)) nearest = w;
  return nearest;
}

}  // namespace vexo_xyz_impl
