// Doubts that the columns' names give rise to, and the order of axes that nobody confirmed.

#include "console/doubts/doubts.h"
#include "vexo_xyz_impl/crs/systems.h"
#include "vexo_xyz_impl/messages.h"

namespace console {
namespace {

using intake::Named;
using vexo_xyz_impl::filled;
using vexo_xyz_impl::host::AxisOrder;

bool is_no_coordinate(Named name) {
  switch (name) {
    case Named::number:
    case Named::height:
    case Named::maybe_height:
    case Named::code:
    case Named::zone:
    case Named::error:
    case Named::date:
    case Named::other_value:
      return true;
    default:
      return false;
  }
}

// The first column whose name says that it holds something else than it was read as.
std::optional<std::size_t> contradicted_column(const Header& header, vexo_xyz_impl::Layout fmt) {
  const std::size_t x = x_column(fmt);
  if (header.names.size() < x + 2) return std::nullopt;
  if (has_number(fmt) && names_a_coordinate(header.names[0])) return 0;
  for (const std::size_t column : {x, x + 1})
    if (is_no_coordinate(header.names[column])) return column;
  return std::nullopt;
}

// Whether the names say that the first coordinate is the northing; nothing when they do not say which is.
std::optional<bool> names_north_first(Named first, Named second) {
  if (first == Named::northing && second != Named::northing) return true;
  if (second == Named::easting && first != Named::easting) return true;
  if (first == Named::easting || second == Named::northing)
    return first == second ? std::nullopt : std::optional(false);
  return std::nullopt;
}

}  // namespace

std::optional<NamedAxes> named_axes(const Header& header, vexo_xyz_impl::Layout fmt) {
  const std::size_t x = x_column(fmt);
  if (header.names.size() < x + 2) return std::nullopt;
  const auto north_first = names_north_first(header.names[x], header.names[x + 1]);
  if (!north_first) return std::nullopt;
  return NamedAxes{*north_first ? AxisOrder::north_first : AxisOrder::east_first, header.line,
                   std::string(header.cells[x]), std::string(header.cells[x + 1])};
}

std::optional<Doubt> doubt_header_columns(Evidence& evidence) {
  if (!evidence.header) return std::nullopt;
  const auto column = contradicted_column(*evidence.header, *evidence.seen.verdict.fmt);
  if (!column) return std::nullopt;
  const std::string_view name = evidence.header->cells[*column];
  return Doubt{"header_columns",
               filled("konsola.watp_naglowek",
                      {static_cast<long long>(evidence.header->line), static_cast<long long>(*column + 1), name,
                       vexo_xyz_impl::layout_code(*evidence.seen.verdict.fmt)}),
               {evidence.header->line}};
}

// The order that the file's first line states, where the numbers fit the other one alone.
std::optional<Doubt> doubt_declared_axes(const vexo_xyz_impl::SettledAxes& axes) {
  const auto agrees = [&axes](const auto& reading) { return reading.swap == axes.swap; };
  if (axes.how != vexo_xyz_impl::AxesBy::declared || axes.candidates.empty()) return std::nullopt;
  if (std::any_of(axes.candidates.begin(), axes.candidates.end(), agrees)) return std::nullopt;
  const std::string name = vexo_xyz_impl::_uklad_nazwa(axes.candidates.front().srid);
  return Doubt{"header_axes", filled("konsola.watp_osie_liczby", {std::string_view(name)}), {}};
}

std::optional<Doubt> doubt_header_axes(Evidence& evidence) {
  const auto& axes = evidence.seen.axes;
  if (auto doubt = doubt_declared_axes(axes)) return doubt;
  if (!evidence.header || axes.how == vexo_xyz_impl::AxesBy::told) return std::nullopt;
  const std::size_t x = x_column(*evidence.seen.verdict.fmt);
  if (evidence.header->names.size() < x + 2) return std::nullopt;
  const auto named = named_axes(*evidence.header, *evidence.seen.verdict.fmt);
  const bool y_first = evidence.header->names[x] == Named::y && evidence.header->names[x + 1] == Named::x;
  const bool contradicted =
      named ? (named->order == AxisOrder::north_first) != axes.swap : y_first && axes.candidates.empty();
  if (!contradicted) return std::nullopt;
  return Doubt{"header_axes",
               filled("konsola.watp_osie_naglowek", {static_cast<long long>(evidence.header->line),
                                                     evidence.header->cells[x], evidence.header->cells[x + 1]}),
               {evidence.header->line}};
}

std::optional<Doubt> doubt_axes_unconfirmed(Evidence& evidence) {
  if (evidence.seen.axes.how != vexo_xyz_impl::AxesBy::unconfirmed) return std::nullopt;
  return Doubt{"axes_unconfirmed", vexo_xyz_impl::T("konsola.watp_osie"), {}};
}

}  // namespace console
