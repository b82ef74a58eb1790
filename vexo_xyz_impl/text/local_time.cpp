#include "vexo_xyz_impl/text/local_time.h"

#include <array>
#include <ctime>

namespace vexo_xyz_impl::text {

std::string local_time(const char* format) {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  std::array<char, 64> text{};
  return {text.data(), std::strftime(text.data(), text.size(), format, &local)};
}

}  // namespace vexo_xyz_impl::text
