#include "vexo_xyz_impl/text/local_time.h"

#include <array>
#include <ctime>

namespace vexo_xyz_impl::text {
namespace {

// The zone is asked for anew each time: a host may run for weeks, and change it.
bool fill_local(std::time_t time, std::tm& local) {
#ifdef _WIN32
  _tzset();
  return localtime_s(&local, &time) == 0;
#else
  tzset();
  return localtime_r(&time, &local) != nullptr;
#endif
}

}  // namespace

std::string local_time(const char* format) {
  std::tm local{};
  if (!fill_local(std::time(nullptr), local)) return {};
  std::array<char, 64> text{};
  return {text.data(), std::strftime(text.data(), text.size(), format, &local)};
}

}  // namespace vexo_xyz_impl::text
