#include "siblings/vexo_boot/log_file.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "siblings/vexo_boot/user_folder.h"

namespace vexo_boot {
namespace {

// Empty when the system names none.
#ifdef _WIN32
std::filesystem::path state_folder() {
  const wchar_t* folder = _wgetenv(L"LOCALAPPDATA");  // in narrow characters it would be in the system's code page
  return folder == nullptr ? std::filesystem::path() : folder;
}
#else
std::filesystem::path state_folder() { return user_folder("XDG_STATE_HOME", ".local/state"); }
#endif

}  // namespace

void append_to_log(std::string_view line) {
  const auto state = state_folder();
  if (state.empty()) return;
  std::error_code ignored;
  std::filesystem::create_directories(state / "vexo-xyz", ignored);
  std::ofstream(state / "vexo-xyz" / "log", std::ios::app) << line << '\n';
}

}  // namespace vexo_boot
