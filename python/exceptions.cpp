#include "python/exceptions.h"

#include <string>
#include <string_view>

#include "python/lock.h"
#include "python/values.h"

namespace scripting {
namespace {

namespace py = pybind11;

// The text of an exception; none when it cannot be had. An interruption that comes in its place is thrown.
std::string text_of(const py::error_already_set& error) {
  try {
    return from_script(error.value());
  } catch (py::error_already_set& another) {
    if (!another.matches(PyExc_Exception)) throw Interruption(std::move(another));
    return {};
  }
}

// The class that carries a kind in scripts.
py::object class_of(const std::string& kind) {
  if (kind == "BadZipFile") return py::module_::import("zipfile").attr("BadZipFile");
  const py::object builtins = py::module_::import("builtins");
  const py::object found = py::getattr(builtins, kind.c_str(), py::none());
  const bool is_exception = PyExceptionClass_Check(found.ptr()) != 0;
  return is_exception ? found : py::reinterpret_borrow<py::object>(PyExc_RuntimeError);
}

void set_as_exception(const std::exception& failure) {
  const py::object exception = exception_of(failure);
  PyErr_SetObject(reinterpret_cast<PyObject*>(Py_TYPE(exception.ptr())), exception.ptr());
}

void translate(std::exception_ptr failure) {  // NOLINT(performance-unnecessary-value-param): as pybind11 wants it
  try {
    if (failure) std::rethrow_exception(failure);
  } catch (Interruption& interruption) {
    interruption.restore();
  } catch (const py::cast_error& wrong) {  // a value of the wrong type inside what a script passed
    PyErr_SetString(PyExc_TypeError, wrong.what());
  } catch (const vexo_xyz_impl::Failure& own) {
    set_as_exception(own);
  }
}

}  // namespace

bool ScriptFailure::is(std::string_view kind) const {
  const Locked lock;
  return error_.matches(class_of(std::string(kind)));
}

void rethrow(py::error_already_set error) {
  if (!error.matches(PyExc_Exception)) throw Interruption(std::move(error));
  // Not by the attribute, which may be a script's.
  const std::string_view name = reinterpret_cast<PyTypeObject*>(error.type().ptr())->tp_name;
  std::string kind(name.substr(name.rfind('.') + 1));
  std::string text = text_of(error);
  throw ScriptFailure(std::move(kind), std::move(text), std::move(error));
}

py::object exception_of(const std::exception& failure) {
  if (const auto* script = dynamic_cast<const ScriptFailure*>(&failure)) return script->exception();
  const auto [kind, text] = vexo_xyz_impl::describe(failure);
  return class_of(kind)(to_script(text));
}

void register_translation() {
  static const bool registered = [] {
    py::register_local_exception_translator(translate);
    return true;
  }();
  static_cast<void>(registered);
}

void raise_current() {
  try {
    try {
      throw;
    } catch (py::error_already_set& error) {
      error.restore();
    } catch (const py::builtin_exception& failure) {
      failure.set_error();
    } catch (const Interruption&) {
      translate(std::current_exception());
    } catch (const std::exception& failure) {
      set_as_exception(failure);
    }
  } catch (...) {
    PyErr_SetString(PyExc_SystemError, "a failure of an unknown kind");
  }
}

}  // namespace scripting
