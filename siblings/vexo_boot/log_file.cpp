#include "siblings/vexo_boot/log_file.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <system_error>

namespace vexo_boot {
namespace {

std::optional<std::filesystem::path> state_folder() {
  const auto variable = [](const char* name) -> std::filesystem::path {
    const char* value = std::getenv(name);  // NOLINT(concurrency-mt-unsafe): one thread
    return value == nullptr ? "" : value;
  };
  if (const auto state = variable("XDG_STATE_HOME"); state.is_absolute()) return state;
  if (const auto home = variable("HOME"); home.is_absolute()) return home / ".local" / "state";
  return std::nullopt;
}

}  // namespace

void append_to_log(std::string_view line) {
  const auto state = state_folder();
  if (!state) return;
  std::error_code ignored;
  std::filesystem::create_directories(*state / "vexo-xyz", ignored);
  std::ofstream(*state / "vexo-xyz" / "log", std::ios::app) << line << '\n';
}

}  // namespace vexo_boot
