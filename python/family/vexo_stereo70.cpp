// vexo_stereo70 for scripts: the Romanian projection Stereo 70.
#include <pybind11/pybind11.h>

#include "python/module_start.h"
#include "siblings/vexo_stereo70/stereo70.h"

namespace {

void set_up(pybind11::module_& m) {
  scripting::define(
      m, "stereo70_do_geo", [](double E, double N) { return vexo_stereo70::Projection().stereo70_do_geo(E, N); },
      pybind11::arg("E"), pybind11::arg("N"), "Easting and northing in metres to (latitude, longitude) in radians.");
}

}  // namespace

VEXO_SCRIPT_MODULE(vexo_stereo70, "The Romanian projection Stereo 70.", set_up)
