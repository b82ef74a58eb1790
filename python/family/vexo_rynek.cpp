// vexo_rynek for scripts: which market the family works for.
#include <pybind11/pybind11.h>

#include "python/module_start.h"
#include "siblings/vexo_rynek/rynek.h"

namespace {

void set_up(pybind11::module_& m) {
  scripting::define(
      m, "rynek", [] { return vexo_rynek::Market().rynek(); },
      "Market code: the environment variable VEXO_RYNEK in capitals, else PL.");
}

}  // namespace

VEXO_SCRIPT_MODULE(vexo_rynek, "The market whose coordinate systems and language are used.", set_up)
