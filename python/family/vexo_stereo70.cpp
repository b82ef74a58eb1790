// vexo_stereo70 for scripts: the Romanian projection Stereo 70.
#include <pybind11/pybind11.h>

#include "python/module_start.h"
#include "python/values.h"
#include "siblings/vexo_stereo70/stereo70.h"

namespace {

void set_up(pybind11::module_& m) {
  scripting::define(
      m, "stereo70_do_geo",
      [](const pybind11::object& E, const pybind11::object& N) {
        const double east = scripting::number_from_script(E);
        return vexo_stereo70::Projection().stereo70_do_geo(east, scripting::number_from_script(N));
      },
      pybind11::arg("E"), pybind11::arg("N"), "Easting and northing in metres to (latitude, longitude) in radians.");
}

}  // namespace

VEXO_SCRIPT_MODULE(vexo_stereo70, "The Romanian projection Stereo 70.", set_up)
