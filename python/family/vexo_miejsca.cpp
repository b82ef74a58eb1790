// vexo_miejsca for scripts: the town or village nearest to a position.
#include <string>

#include <pybind11/pybind11.h>

#include "python/module_start.h"
#include "python/values.h"
#include "siblings/vexo_miejsca/miejsca.h"

namespace {

namespace py = pybind11;

py::object najblizsze_miejsce(const py::object& lat, const py::object& lon) {
  const std::string market = scripting::from_script(py::module_::import("vexo_rynek").attr("rynek")());
  const double north = scripting::number_from_script(lat);
  const auto place = vexo_miejsca::nearest_place(market, north, scripting::number_from_script(lon));
  if (!place) return py::none();
  return py::make_tuple(scripting::to_script(place->name), place->distance, place->bearing);
}

void set_up(py::module_& m) {
  scripting::define(m, "najblizsze_miejsce", najblizsze_miejsce, py::arg("lat"), py::arg("lon"),
                    "The place of the market of vexo_rynek nearest to a latitude and longitude in degrees: (name, "
                    "distance in km, bearing from the place in degrees clockwise from north), None when all are far.");
}

}  // namespace

VEXO_SCRIPT_MODULE(vexo_miejsca, "Towns and villages, to tell where a position is.", set_up)
