#include "vexo_xyz_impl/input/declared_columns.h"

#include "vexo_xyz_impl/text/lines.h"

namespace vexo_xyz_impl {
namespace {

constexpr std::string_view kBeginning = "# columns: ";
constexpr std::string_view kNumber = "number;";
constexpr std::string_view kEastNorth = "E;N";
constexpr std::string_view kAxesNotKnown = "X;Y";
constexpr std::string_view kHeight = ";Z";

bool take(std::string_view& line, std::string_view beginning) {
  if (!line.starts_with(beginning)) return false;
  line.remove_prefix(beginning.size());
  return true;
}

}  // namespace

std::optional<DeclaredColumns> declared_columns(std::string_view text) {
  text::take_byte_order_mark(text);
  if (!text.starts_with(kBeginning)) return std::nullopt;  // as most do: their line may be long
  std::string_view line = text::take_line(text);
  take(line, kBeginning);
  DeclaredColumns columns;
  columns.number = take(line, kNumber);
  columns.east_north = take(line, kEastNorth);
  if (!columns.east_north && !take(line, kAxesNotKnown)) return std::nullopt;
  columns.height = take(line, kHeight);
  return line.empty() ? std::optional(columns) : std::nullopt;
}

std::string line_of_columns(const DeclaredColumns& columns) {
  std::string line(kBeginning);
  if (columns.number) line += kNumber;
  line += columns.east_north ? kEastNorth : kAxesNotKnown;
  if (columns.height) line += kHeight;
  return line;
}

}  // namespace vexo_xyz_impl
