#include "siblings/vexo_boot/user_folder.h"

#include <cstdlib>

namespace vexo_boot {
namespace {

std::filesystem::path named_by(const char* variable) {
  const char* const value = std::getenv(variable);  // NOLINT(concurrency-mt-unsafe): nothing here changes them
  std::filesystem::path folder(value == nullptr ? "" : value);
  return folder.is_absolute() ? folder : std::filesystem::path();
}

}  // namespace

std::filesystem::path user_folder(const char* variable, const std::filesystem::path& in_home) {
  if (auto own = named_by(variable); !own.empty()) return own;
  const auto home = named_by("HOME");
  return home.empty() ? home : home / in_home;
}

}  // namespace vexo_boot
