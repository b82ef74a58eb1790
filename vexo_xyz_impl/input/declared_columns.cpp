#include "vexo_xyz_impl/input/declared_columns.h"

#include "vexo_xyz_impl/input/file_bytes.h"

namespace vexo_xyz_impl {
namespace {

constexpr std::size_t kLongest = 64;  // bytes; more than any such line with its end
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

bool take(std::string_view& line, std::string_view beginning) {
  if (!line.starts_with(beginning)) return false;
  line.remove_prefix(beginning.size());
  return true;
}

}  // namespace

std::optional<DeclaredColumns> columns_of_line(std::string_view line) {
  if (!take(line, "# columns: ")) return std::nullopt;
  DeclaredColumns columns;
  columns.number = take(line, "number;");
  columns.east_north = take(line, "E;N");
  if (!columns.east_north && !take(line, "X;Y")) return std::nullopt;
  columns.height = take(line, ";Z");
  return line.empty() ? std::optional(columns) : std::nullopt;
}

std::optional<DeclaredColumns> declared_columns(const std::string& path) {
  const auto head = first_bytes(path, kLongest);
  if (!head) return std::nullopt;
  std::string_view text(head->data(), head->size());
  take(text, kByteOrderMark);
  return columns_of_line(text.substr(0, text.find_first_of("\r\n")));
}

}  // namespace vexo_xyz_impl
