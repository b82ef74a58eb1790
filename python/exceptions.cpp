#include "python/exceptions.h"

#include <string>

namespace scripting {
namespace {

namespace py = pybind11;

std::string kind_of(const py::error_already_set& error) { return py::str(error.type().attr("__name__")); }

std::string text_of(const py::error_already_set& error) {
  try {
    return py::str(error.value());
  } catch (const py::error_already_set&) {  // an exception whose text cannot be had still has a name
    return {};
  }
}

// The class that carries a kind in scripts.
py::object class_of(const std::string& kind) {
  if (kind == "BadZipFile") return py::module_::import("zipfile").attr("BadZipFile");
  if (kind == "UnpackError")
    return py::reinterpret_borrow<py::object>(PyExc_ValueError);  // what unpacking raises there
  const py::object builtins = py::module_::import("builtins");
  const py::object found = py::getattr(builtins, kind.c_str(), py::none());
  const bool is_exception = PyExceptionClass_Check(found.ptr()) != 0;
  return is_exception ? found : py::reinterpret_borrow<py::object>(PyExc_RuntimeError);
}

void translate(std::exception_ptr failure) {  // NOLINT(performance-unnecessary-value-param): as pybind11 wants it
  try {
    if (failure) std::rethrow_exception(failure);
  } catch (Interruption& interruption) {
    interruption.restore();
  } catch (ScriptFailure& script) {
    script.restore();
  } catch (const py::cast_error& wrong) {  // a value of the wrong type inside what a script passed
    PyErr_SetString(PyExc_TypeError, wrong.what());
  } catch (const vexo_xyz_impl::Failure& own) {
    const py::object exception = exception_of(own);
    PyErr_SetObject(reinterpret_cast<PyObject*>(Py_TYPE(exception.ptr())), exception.ptr());
  }
}

}  // namespace

ScriptFailure::ScriptFailure(py::error_already_set error)
    : Failure(kind_of(error), text_of(error)), error_(std::move(error)) {}

void rethrow(py::error_already_set error) {
  if (error.matches(PyExc_Exception)) throw ScriptFailure(std::move(error));
  throw Interruption(std::move(error));
}

py::object exception_of(const std::exception& failure) {
  if (const auto* script = dynamic_cast<const ScriptFailure*>(&failure)) return script->exception();
  const auto [kind, text] = vexo_xyz_impl::describe(failure);
  return class_of(kind)(text);
}

void register_translation() {
  static const bool registered = [] {
    py::register_exception_translator(translate);
    return true;
  }();
  static_cast<void>(registered);
}

void raise_current() {
  try {
    throw;
  } catch (py::error_already_set& error) {
    error.restore();
  } catch (const vexo_xyz_impl::Failure&) {
    translate(std::current_exception());
  } catch (const Interruption&) {
    translate(std::current_exception());
  } catch (const std::exception& failure) {
    PyErr_SetString(PyExc_RuntimeError, failure.what());
  }
}

}  // namespace scripting
