// How a module of ours begins for scripts: set up at each import and at each reload, in the main interpreter only.
#pragma once

#include <utility>

#include <pybind11/pybind11.h>

namespace scripting {

/// Makes the module object; for the table of `VEXO_SCRIPT_MODULE` only.
[[nodiscard]] PyObject* create_module(PyObject* spec, PyModuleDef* definition);

/// Runs `set_up` on it; 0, or -1 with the scripting layer's exception set.
[[nodiscard]] int execute_module(PyObject* module, void (*set_up)(pybind11::module_&));

/// Sets `name` of the module to a function. One that stands there already is replaced, not overloaded.
template <class Function, class... Extra>
void define(pybind11::module_& m, const char* name, Function&& function, const Extra&... extra) {
  m.attr(name) =
      pybind11::cpp_function(std::forward<Function>(function), pybind11::name(name), pybind11::scope(m), extra...);
}

}  // namespace scripting

/// Defines the extension module `name`, which `set_up`, a function of the `pybind11::module_&`, fills.
// NOLINTBEGIN: the interpreter's C tables
#define VEXO_SCRIPT_MODULE(name, doc, set_up)                                                                          \
  extern "C" PYBIND11_EXPORT PyObject* PyInit_##name() {                                                               \
    static int (*const execute)(PyObject*) = [](PyObject* m) { return scripting::execute_module(m, set_up); };         \
    static PyModuleDef_Slot slots[] = {{Py_mod_create, reinterpret_cast<void*>(scripting::create_module)},             \
                                       {Py_mod_exec, reinterpret_cast<void*>(execute)},                                \
                                       {0, nullptr}};                                                                  \
    static PyModuleDef definition = {PyModuleDef_HEAD_INIT, #name, doc, 0, nullptr, slots, nullptr, nullptr, nullptr}; \
    definition.m_size = 0;                                                                                             \
    return PyModuleDef_Init(&definition);                                                                              \
  }
// NOLINTEND
