// Reading bytes of a regular file. What cannot be opened or read is an empty result, and so is a directory, a pipe or
// a device: an import reads its file twice, and a pipe would have lost its first bytes at the second reading.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace vexo_xyz_impl {

/// The first `most` bytes of the file, fewer when it is shorter.
[[nodiscard]] std::optional<std::vector<char>> first_bytes(const std::string& path, std::size_t most);

/// All bytes of the file.
[[nodiscard]] std::optional<std::vector<char>> all_bytes(const std::string& path);

}  // namespace vexo_xyz_impl
