#include "vexo_xyz_impl/input/file_bytes.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <limits>
#include <memory>
#include <system_error>

#include "vexo_xyz_impl/text/paths.h"

namespace vexo_xyz_impl {
namespace {

constexpr std::size_t kBlock = std::size_t{1} << 20U;  // growth step for a file that grows while it is read

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }  // NOLINT(cppcoreguidelines-owning-memory)
};

using File = std::unique_ptr<std::FILE, CloseFile>;

File open(const std::filesystem::path& path) {
#ifdef _WIN32
  return File(_wfopen(path.c_str(), L"rb"));
#else
  return File(std::fopen(path.c_str(), "rb"));
#endif
}

std::optional<std::vector<char>> read(const std::string& path, std::size_t expected, std::size_t most) {
  std::error_code ignored;
  // A path with a NUL would open the file named by what stands before it.
  if (path.find('\0') != std::string::npos) return std::nullopt;
  const std::filesystem::path name = text::path_of(path);
  if (!std::filesystem::is_regular_file(name, ignored)) return std::nullopt;
  const File file = open(name);
  if (!file) return std::nullopt;
  std::vector<char> bytes(std::min(expected, most));
  std::size_t filled = 0;
  while (true) {
    filled += std::fread(bytes.data() + filled, 1, bytes.size() - filled, file.get());
    if (filled < bytes.size() || filled == most) break;
    bytes.resize(std::min(most, bytes.size() + kBlock));
  }
  if (std::ferror(file.get()) != 0) return std::nullopt;
  bytes.resize(filled);
  return bytes;
}

}  // namespace

std::optional<std::vector<char>> first_bytes(const std::string& path, std::size_t most) {
  return read(path, most, most);
}

std::optional<std::vector<char>> all_bytes(const std::string& path) {
  std::error_code unknown;
  const auto size = std::filesystem::file_size(text::path_of(path), unknown);
  // One byte more than the size, so that the end shows without growing.
  const std::size_t expected = unknown ? kBlock : static_cast<std::size_t>(size) + 1;
  return read(path, expected, std::numeric_limits<std::size_t>::max());
}

}  // namespace vexo_xyz_impl
