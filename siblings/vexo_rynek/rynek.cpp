#include "siblings/vexo_rynek/rynek.h"

#include <cstdlib>

namespace vexo_rynek {

std::string Market::rynek() const {
  if (!chosen_.empty()) return chosen_;
  const char* from_environment = std::getenv("VEXO_RYNEK");  // NOLINT(concurrency-mt-unsafe): one thread
  return from_environment != nullptr && *from_environment != '\0' ? from_environment : "PL";
}

}  // namespace vexo_rynek
