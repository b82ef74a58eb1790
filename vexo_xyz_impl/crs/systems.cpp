#include "vexo_xyz_impl/crs/systems.h"

#include <numbers>
#include <string>

#include "vexo_xyz_impl/failure.h"
#include "vexo_xyz_impl/host/bindings.h"

namespace vexo_xyz_impl {

const host::CoordinateSystem& system_record(int srid) {
  const auto found = _D->UKLADY.find(srid);
  if (found == _D->UKLADY.end()) throw KeyError("the market has no coordinate system " + std::to_string(srid));
  return found->second;
}

ZoneParameters unpack_zone(const host::CoordinateSystem& record) {
  if (record.items.size() != 4) {
    throw UnpackError("a coordinate system of tag '" + record.tag + "' has " + std::to_string(record.items.size() + 1) +
                      " items instead of 5");
  }
  return {record.items[0], record.items[1], record.items[2], record.items[3]};
}

double radians(double degrees) { return degrees * (std::numbers::pi / 180.0); }
double degrees(double radians) { return radians * (180.0 / std::numbers::pi); }

}  // namespace vexo_xyz_impl
