#include "python/module_start.h"

#include "python/exceptions.h"

namespace scripting {

namespace py = pybind11;

// A reload executes a module again only when it has no state, and one of size 0 is a state too; a size below 0, which
// is none, may not be declared beforehand.
PyObject* create_module(PyObject* spec, PyModuleDef* definition) {
  definition->m_size = -1;
  PyObject* const name = PyObject_GetAttrString(spec, "name");
  PyObject* const module = name != nullptr ? PyModule_NewObject(name) : nullptr;
  Py_XDECREF(name);
  return module;
}

int execute_module(PyObject* module, void (*set_up)(py::module_&)) {
  if (PyInterpreterState_Get() != PyInterpreterState_Main()) {
    PyErr_SetString(PyExc_ImportError, "the module works in the main interpreter only, not in a subinterpreter");
    return -1;
  }
  try {
    py::detail::get_internals();
    auto own = py::reinterpret_borrow<py::module_>(module);
    set_up(own);
    return 0;
  } catch (...) {
    raise_current();
    return -1;
  }
}

}  // namespace scripting
