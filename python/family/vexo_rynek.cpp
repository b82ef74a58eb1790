// vexo_rynek for scripts: which market the family works for.
#include <pybind11/pybind11.h>

#include "siblings/vexo_rynek/rynek.h"

PYBIND11_MODULE(vexo_rynek, m) {
  m.doc() = "The market whose coordinate systems and language are used.";
  m.def(
      "rynek", [] { return vexo_rynek::Market().rynek(); },
      "Market code: the environment variable VEXO_RYNEK in capitals, else PL.");
}
