// vexo_boot for scripts: notices of starts and failures, in the same log as the stand-alone program's.
#include <string>

#include <pybind11/pybind11.h>

#include "python/module_start.h"
#include "siblings/vexo_boot/boot.h"
#include "siblings/vexo_boot/log_file.h"

namespace {

namespace py = pybind11;

// An argument that must be an exception; anything else is a TypeError.
class Exception : public py::object {
 public:
  PYBIND11_OBJECT(Exception, py::object, PyExceptionInstance_Check)
};

// UTF-8 of any text: of the bytes of a path that are none, the log shows the codes.
std::string utf8_of(const py::str& text) {
  PyObject* bytes = PyUnicode_AsEncodedString(text.ptr(), "utf-8", "backslashreplace");
  if (bytes == nullptr) throw py::error_already_set();
  return py::reinterpret_steal<py::bytes>(bytes);
}

std::string text_of(const Exception& exception) {
  try {
    return utf8_of(py::str(py::handle(exception)));
  } catch (const py::error_already_set& error) {
    if (!error.matches(PyExc_Exception)) throw;
    return {};  // an exception whose text cannot be had still leaves its line
  }
}

void blad(const py::str& name, const Exception& exception) {
  const py::str kind = py::type::of(exception).attr("__name__");
  const vexo_xyz_impl::Failure failure(utf8_of(kind), text_of(exception));
  vexo_boot::Notices(vexo_boot::append_to_log).blad(utf8_of(name), failure);
}

void set_up(py::module_& m) {
  scripting::define(
      m, "zdarzenie", [](const py::str& /*name*/) {}, py::arg("name"), "Takes notice of a start, in silence.");
  scripting::define(m, "blad", blad, py::arg("name"), py::arg("exception"),
                    "Leaves one line about a failure in the log.");
}

}  // namespace

VEXO_SCRIPT_MODULE(vexo_boot, "Notices of starts and failures.", set_up)
