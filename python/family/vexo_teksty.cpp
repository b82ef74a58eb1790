// vexo_teksty for scripts: the message catalogue in the language of the market.
//
// Initialisation is of the kind that runs at each import, so that a module dropped from the module cache and imported
// again asks for the market anew.
#include <algorithm>
#include <cstdlib>
#include <exception>
#include <string>
#include <string_view>

#include <pybind11/pybind11.h>

#include "siblings/vexo_teksty/teksty.h"

namespace {

namespace py = pybind11;

// Empty, which stands for Polish, when the market cannot be asked.
std::string language_of_market() {
  try {
    return py::module_::import("vexo_rynek").attr("rynek")().cast<std::string>();
  } catch (const py::error_already_set& error) {
    if (!error.matches(PyExc_Exception)) throw;
  } catch (const py::cast_error&) {  // NOLINT(bugprone-empty-catch): the answer is no text
  }
  return {};
}

// The language asked for by VEXO_JEZYK, in any letter case as the market may be, else the market's.
std::string language() {
  const char* asked = std::getenv("VEXO_JEZYK");  // NOLINT(concurrency-mt-unsafe): under the interpreter's lock
  if (asked == nullptr || *asked == '\0') return language_of_market();
  std::string code = asked;
  std::transform(code.begin(), code.end(), code.begin(),
                 [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
  return code;
}

py::str text_of(const vexo_teksty::Catalogue& catalogue, const py::str& key) {
  Py_ssize_t size = 0;
  const char* utf8 = PyUnicode_AsUTF8AndSize(key.ptr(), &size);
  if (utf8 == nullptr) {  // lone surrogates, which stand in no catalogue
    PyErr_Clear();
    return key;
  }
  const std::string_view text = catalogue.T({utf8, static_cast<std::size_t>(size)});
  return {text.data(), text.size()};
}

int execute(PyObject* module) {
  try {
    py::detail::get_internals();
    const vexo_teksty::Catalogue catalogue(vexo_teksty::language_of(language()).entries);
    py::reinterpret_borrow<py::module_>(module).def(
        "T", [catalogue](const py::str& key) { return text_of(catalogue, key); }, py::arg("key"),
        "The text of a key in the language of the market, the key itself when there is none.");
    return 0;
  } catch (py::error_already_set& error) {
    error.restore();
  } catch (const std::exception& failure) {
    PyErr_SetString(PyExc_ImportError, failure.what());
  }
  return -1;
}

PyModuleDef_Slot slots[] = {{Py_mod_exec, reinterpret_cast<void*>(execute)}, {0, nullptr}};  // NOLINT: a C table
PyModuleDef definition = {PyModuleDef_HEAD_INIT,
                          "vexo_teksty",
                          "The texts that the user reads.",
                          0,
                          nullptr,
                          slots,
                          nullptr,
                          nullptr,
                          nullptr};

}  // namespace

extern "C" __attribute__((visibility("default"))) PyObject* PyInit_vexo_teksty() {
  return PyModuleDef_Init(&definition);
}
