// The module's operations as its attributes, callable with the arguments that a script would pass.
#pragma once

#include <memory>

#include <pybind11/pybind11.h>

#include "python/run.h"

namespace scripting {

/// Files, numbers, rows, points.
void define_input_and_table(pybind11::module_& m, const std::shared_ptr<const ScriptModule>& module);

/// Projections, plausibility, detection, names.
void define_coordinate_systems(pybind11::module_& m, const std::shared_ptr<const ScriptModule>& module);

/// Questions, model space, groups, control records.
void define_dialogue_and_drawing(pybind11::module_& m, const std::shared_ptr<const ScriptModule>& module);

}  // namespace scripting
