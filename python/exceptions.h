// Failures across the language border, both ways, under their own names.
//
// A script's exception keeps its very object through the module; the module's kinds become the scripting layer's
// exceptions of the same name. What is no ordinary error there (KeyboardInterrupt, SystemExit) is no std::exception
// here, so that no guard meant for ordinary failures stops it.
#pragma once

#include <exception>
#include <string>
#include <string_view>
#include <utility>

#include <pybind11/pybind11.h>

#include "vexo_xyz_impl/failure.h"

namespace scripting {

/// A script's ordinary exception on its way through the module.
class ScriptFailure : public vexo_xyz_impl::Failure {
 public:
  /// `kind` and `text` as the exception's class and text form have them.
  ScriptFailure(std::string kind, std::string text, pybind11::error_already_set error)
      : Failure(std::move(kind), std::move(text)), error_(std::move(error)) {}
  /// Subclasses of the exception of that name count as it.
  [[nodiscard]] bool is(std::string_view kind) const override;
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

/// Calls into scripts with the lock held: their exceptions come out as ScriptFailure or Interruption, a value of the
/// wrong type as TypeError.
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

/// Makes the functions of this extension, and of no other, raise the module's failures as the scripting layer's
/// exceptions.
void register_translation();

/// Sets the current failure as the interpreter's exception; for use in a catch block of a C function.
void raise_current();

}  // namespace scripting
