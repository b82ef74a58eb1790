#include "vexo_xyz_impl/crs/systems.h"

#include "vexo_xyz_impl/bindings.h"
#include "vexo_xyz_impl/crs/transverse_mercator.h"

namespace vexo_xyz_impl {

std::pair<double, double> _do_geo(double E, double N, int srid) {
  if (const auto zone = _D->UKLADY(srid)) return inverse(*zone, E, N);
  return host::load_sibling<host::Stereo70>(bound().host.siblings, "vexo_stereo70")->stereo70_do_geo(E, N);
}

std::string _uklad_nazwa(int srid) { return _D->NAZWY(srid).value_or("EPSG:" + std::to_string(srid)); }

}  // namespace vexo_xyz_impl
