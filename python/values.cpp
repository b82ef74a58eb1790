#include "python/values.h"

namespace scripting {

namespace py = pybind11;

py::str to_script(std::string_view utf8) {
  PyObject* text = PyUnicode_DecodeUTF8(utf8.data(), static_cast<Py_ssize_t>(utf8.size()), "surrogateescape");
  if (text == nullptr) throw py::error_already_set();
  return py::reinterpret_steal<py::str>(text);
}

std::string from_script(py::handle text) {
  const py::str own = py::isinstance<py::str>(text) ? py::reinterpret_borrow<py::str>(text) : py::str(text);
  Py_ssize_t size = 0;
  if (const char* utf8 = PyUnicode_AsUTF8AndSize(own.ptr(), &size)) return {utf8, static_cast<std::size_t>(size)};
  // Lone surrogates: mostly the bytes of a path that are no UTF-8; any other is kept as no UTF-8, and is no number.
  for (const char* errors : {"surrogateescape", "surrogatepass"}) {
    PyErr_Clear();
    const auto bytes = py::reinterpret_steal<py::bytes>(PyUnicode_AsEncodedString(own.ptr(), "utf-8", errors));
    if (bytes) return bytes;
  }
  throw py::error_already_set();
}

std::string path_from_script(py::handle path) {
  PyObject* bytes = nullptr;
  if (PyUnicode_FSConverter(path.ptr(), &bytes) == 0) throw py::error_already_set();
  return py::reinterpret_steal<py::bytes>(bytes);
}

double number_from_script(py::handle number) {
  const double value = PyFloat_AsDouble(number.ptr());
  if (value == -1.0 && PyErr_Occurred() != nullptr) throw py::error_already_set();
  return value;
}

bool truth_of(py::handle value) {
  const int truth = PyObject_IsTrue(value.ptr());
  if (truth < 0) throw py::error_already_set();
  return truth != 0;
}

py::list items_of(py::handle sequence, std::size_t count) {
  py::list items;
  for (const py::handle item : py::iter(sequence)) {
    if (items.size() == count) {
      PyErr_Format(PyExc_ValueError, "too many values to unpack (expected %zu)", count);
      throw py::error_already_set();
    }
    items.append(item);
  }
  if (items.size() != count) {
    PyErr_Format(PyExc_ValueError, "not enough values to unpack (expected %zu, got %zu)", count, items.size());
    throw py::error_already_set();
  }
  return items;
}

}  // namespace scripting
