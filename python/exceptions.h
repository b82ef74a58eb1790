// Failures across the language border, both ways, under their own names.
//
// A script's exception keeps its very object through the module; the module's kinds become the scripting layer's
// exceptions of the same name. What is no ordinary error there (KeyboardInterrupt, SystemExit) is no std::exception
// here, so that no guard meant for ordinary failures stops it.
#pragma once

#include <exception>
#include <utility>

#include <pybind11/pybind11.h>

#include "vexo_xyz_impl/failure.h"

namespace scripting {

/// A script's ordinary exception on its way through the module.
class ScriptFailure : public vexo_xyz_impl::Failure {
 public:
  explicit ScriptFailure(pybind11::error_already_set error);
  [[nodiscard]] const pybind11::object& exception() const { return error_.value(); }
  void restore() { error_.restore(); }

 private:
  pybind11::error_already_set error_;
};

/// A script's interruption on its way through the module; deliberately no std::exception.
class Interruption {
 public:
  explicit Interruption(pybind11::error_already_set error) : error_(std::move(error)) {}
  void restore() { error_.restore(); }

 private:
  pybind11::error_already_set error_;
};

/// Throws the exception as what it is here.
[[noreturn]] void rethrow(pybind11::error_already_set error);

/// Calls into scripts: their exceptions come out as ScriptFailure or Interruption, a value of the wrong type as
/// TypeError.
template <class Call>
auto calling_script(Call call) -> decltype(call()) {
  try {
    return call();
  } catch (pybind11::error_already_set& error) {
    rethrow(error);
  } catch (const pybind11::cast_error& error) {
    throw vexo_xyz_impl::TypeError(error.what());
  }
}

/// The failure as an exception object of the scripting layer: the script's own, or a new one of the kind's class.
[[nodiscard]] pybind11::object exception_of(const std::exception& failure);

/// Makes pybind11 raise this module's failures as the scripting layer's exceptions.
void register_translation();

/// Sets the current failure as the interpreter's exception; for use in a catch block of a C function.
void raise_current();

}  // namespace scripting
