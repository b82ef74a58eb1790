#include "python/family/market_tables.h"

#include <pybind11/stl.h>

namespace family {
namespace {

namespace py = pybind11;

// A tuple of the tag and its numbers.
py::tuple record_of(const std::optional<vexo_xyz_impl::host::ZoneParameters>& zone) {
  if (!zone) return py::make_tuple("stereo70");
  return py::make_tuple("TM", zone->lon0, zone->k0, zone->FE, zone->FN);
}

}  // namespace

void add_tables(py::module_& m, const vexo_xyz_dane::MarketData& tables) {
  py::dict systems;
  for (const auto& [code, system] : tables.UKLADY) systems[py::int_(code)] = record_of(system);
  m.attr("UKLADY") = systems;
  m.attr("KOLEJNOSC") = tables.KOLEJNOSC;
  m.attr("NAZWY") = tables.NAZWY;
  m.attr("KRAJ_LAT") = tables.KRAJ_LAT;
  m.attr("KRAJ_LON") = tables.KRAJ_LON;
  m.attr("ZONE_EXEMPT") = py::frozenset(py::cast(tables.ZONE_EXEMPT));
  m.attr("EASTING_HALF") = tables.EASTING_HALF;
  m.attr("LON_HALF") = tables.LON_HALF;
}

}  // namespace family
