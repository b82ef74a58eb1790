// Paths as texts: UTF-8 inside the module, whatever the system has them in.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace vexo_xyz_impl::text {

/// The path that `utf8` names: its bytes as they are where paths are bytes, else decoded. Fails as
/// std::filesystem::path does where it must be decoded and is no UTF-8.
[[nodiscard]] inline std::filesystem::path path_of(std::string_view utf8) {
#ifdef _WIN32
  return std::u8string(utf8.begin(), utf8.end());
#else
  return utf8;
#endif
}

}  // namespace vexo_xyz_impl::text
