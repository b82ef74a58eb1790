// vexo_teksty for scripts: the message catalogue in the language of the market, which is asked for at each set-up.
#include <algorithm>
#include <cstdlib>
#include <string>

#include <pybind11/pybind11.h>

#include "python/module_start.h"
#include "python/values.h"
#include "siblings/vexo_teksty/teksty.h"
#include "vexo_xyz_impl/text/ascii.h"

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
  std::transform(code.begin(), code.end(), code.begin(), vexo_xyz_impl::text::ascii_upper);
  return code;
}

py::str text_of(const vexo_teksty::Catalogue& catalogue, const py::str& key) {
  const std::string own = scripting::from_script(key);
  const std::string text = catalogue.T(own);
  return text == own ? key : scripting::to_script(text);
}

void set_up(py::module_& m) {
  const vexo_teksty::Catalogue catalogue(vexo_teksty::language_of(language()).entries);
  scripting::define(
      m, "T", [catalogue](const py::str& key) { return text_of(catalogue, key); }, py::arg("key"),
      "The text of a key in the language of the market, the key itself when there is none.");
}

}  // namespace

VEXO_SCRIPT_MODULE(vexo_teksty, "The texts that the user reads.", set_up)
