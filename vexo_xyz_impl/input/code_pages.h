// Single-byte encodings to UTF-8.
#pragma once

#include <optional>
#include <span>
#include <vector>

namespace vexo_xyz_impl {

/// Windows code page 1250 to UTF-8; empty when a byte is undefined there (81, 83, 88, 90, 98 hexadecimal).
[[nodiscard]] std::optional<std::vector<char>> cp1250_to_utf8(std::span<const char> bytes);

/// ISO 8859-1 to UTF-8; any byte sequence is valid.
[[nodiscard]] std::vector<char> latin1_to_utf8(std::span<const char> bytes);

}  // namespace vexo_xyz_impl
