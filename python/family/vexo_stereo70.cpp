// vexo_stereo70 for scripts: the Romanian projection Stereo 70.
#include <pybind11/pybind11.h>

#include "siblings/vexo_stereo70/stereo70.h"

PYBIND11_MODULE(vexo_stereo70, m) {
  m.doc() = "The Romanian projection Stereo 70.";
  m.def(
      "stereo70_do_geo", [](double E, double N) { return vexo_stereo70::Projection().stereo70_do_geo(E, N); },
      pybind11::arg("E"), pybind11::arg("N"), "Easting and northing in metres to (latitude, longitude) in radians.");
}
