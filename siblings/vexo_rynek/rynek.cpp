#include "siblings/vexo_rynek/rynek.h"

#include <algorithm>
#include <cstdlib>

namespace vexo_rynek {

std::string Market::rynek() const {
  if (!chosen_.empty()) return chosen_;
  const char* from_environment = std::getenv("VEXO_RYNEK");  // NOLINT(concurrency-mt-unsafe): one thread
  std::string code = from_environment == nullptr || *from_environment == '\0' ? "PL" : from_environment;
  std::transform(code.begin(), code.end(), code.begin(),
                 [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
  return code;
}

}  // namespace vexo_rynek
