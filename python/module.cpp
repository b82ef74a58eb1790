// The extension module: loading it performs the module set-up, and every operation is one of its attributes.
#include "vexo_xyz_impl/command/module.h"

#include <memory>

#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include "python/exceptions.h"
#include "python/loading.h"
#include "python/module_start.h"
#include "python/operations.h"
#include "vexo_xyz_impl/crs/transverse_mercator.h"
#include "vexo_xyz_impl/drawing/control.h"
#include "vexo_xyz_impl/table/text_height.h"

namespace scripting {
namespace {

namespace py = pybind11;
namespace xyz = vexo_xyz_impl;

void define_constants(py::module_& m) {
  m.attr("_A_GRS80") = xyz::_A_GRS80;
  m.attr("_F_GRS80") = xyz::_F_GRS80;
  m.attr("_A_K") = xyz::_A_K;
  m.attr("_BETA") = py::cast(xyz::_BETA);
  m.attr("_DELTA") = py::cast(xyz::_DELTA);
  m.attr("_ROWNE_WYSOKOSCI") = py::tuple(py::cast(xyz::_ROWNE_WYSOKOSCI));
  m.attr("_MAX_KONTROLA") = xyz::_MAX_KONTROLA;
}

void set_up(py::module_& m) {
  register_translation();
  const auto module = std::make_shared<ScriptModule>();
  for (const char* facility : {"re", "os", "sys", "math", "time", "zipfile"}) {
    m.attr(facility) = py::module_::import(facility);
  }
  Loading loading(m, module);
  module->loaded = xyz::bind_siblings(loading);
  module->market = std::dynamic_pointer_cast<const ScriptMarket>(module->loaded.market);
  define_constants(m);
  define_input_and_table(m, module);
  define_coordinate_systems(m, module);
  define_dialogue_and_drawing(m, module);
  xyz::register_command(loading);
}

}  // namespace
}  // namespace scripting

VEXO_SCRIPT_MODULE(vexo_xyz_impl, "Imports files of surveyed points into the drawing: the command VEXO_XYZ.",
                   scripting::set_up)
