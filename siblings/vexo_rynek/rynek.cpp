#include "siblings/vexo_rynek/rynek.h"

#include <algorithm>
#include <cstdlib>

#include "vexo_xyz_impl/text/ascii.h"

namespace vexo_rynek {

std::string Market::rynek() const {
  if (!chosen_.empty()) return chosen_;
  const char* from_environment = std::getenv("VEXO_RYNEK");  // NOLINT(concurrency-mt-unsafe): one thread
  std::string code = from_environment == nullptr || *from_environment == '\0' ? "PL" : from_environment;
  std::transform(code.begin(), code.end(), code.begin(), vexo_xyz_impl::text::ascii_upper);
  return code;
}

}  // namespace vexo_rynek
