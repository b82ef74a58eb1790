// What an import has reason to doubt: small functions from what was seen to nothing or one finding each.
//
// A new doubt is one function, one line of the table in doubts.cpp and four texts (console/texts/doubt.cpp).
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "console/account/account.h"
#include "intake/header_words.h"
#include "vexo_xyz_impl/command/import_seen.h"

namespace console {

/// A finding: where it shows, what it means and what to do about it.
struct Doubt {
  std::string_view code;           ///< the same in every language and version
  std::string text;                ///< one line in the user's language: what, where, what to do
  std::vector<std::size_t> lines;  ///< physical lines where it shows; empty when it is about all
};

/// The line of column names above the data, when it has as many cells as they do.
struct Header {
  std::size_t line = 0;
  std::vector<std::string_view> cells;
  std::vector<intake::Named> names;
};

/// The order of the axes that the names of the two coordinates say.
struct NamedAxes {
  vexo_xyz_impl::host::AxisOrder order;
  std::size_t line;  ///< of the header
  std::string first;
  std::string second;
};

/// What doubts are drawn from.
struct Evidence {
  const vexo_xyz_impl::ImportSeen& seen;
  RowPlaces& places;
  std::optional<Header> header;
  std::optional<double> from_drawing;  ///< least distance of the points to what the drawing held before, metres
};

/// The doubt that shows in these lines, told by the text of `key`, which takes their count and the lines; nothing
/// without a line.
[[nodiscard]] std::optional<Doubt> doubt_at(std::string_view code, std::string_view key,
                                            std::vector<std::size_t> lines);

/// The lines of points.
[[nodiscard]] std::vector<std::size_t> lines_of(RowPlaces& places, std::span<const std::size_t> points);

using DoubtFunction = std::optional<Doubt> (*)(Evidence&);

/// The header among the rows left out; none when no row is one.
[[nodiscard]] std::optional<Header> header_of(const vexo_xyz_impl::ImportSeen& seen, RowPlaces& places);

/// None when the names do not say which coordinate is the northing.
[[nodiscard]] std::optional<NamedAxes> named_axes(const Header& header, vexo_xyz_impl::Layout fmt);

/// Doubts about rows and columns, for when the table still has its rows.
[[nodiscard]] std::vector<Doubt> doubts_of_rows(Evidence& evidence);

/// Doubts about the whole import, for when it has ended.
[[nodiscard]] std::vector<Doubt> doubts_of_import(Evidence& evidence);

/// Doubts about a workbook that was read, for when its import has ended; `places` null when no points were made.
[[nodiscard]] std::vector<Doubt> doubts_of_workbook(const vexo_xyz_impl::ImportSeen& seen, RowPlaces* places);

/// Columns of the layout, 0 for the first of the file.
[[nodiscard]] inline std::size_t x_column(vexo_xyz_impl::Layout fmt) { return has_number(fmt) ? 1 : 0; }
[[nodiscard]] inline std::size_t height_column(vexo_xyz_impl::Layout fmt) { return x_column(fmt) + 2; }

// degrees.cpp
std::optional<Doubt> doubt_degrees(Evidence& evidence);

// far_away.cpp
std::optional<Doubt> doubt_not_finite(Evidence& evidence);
std::optional<Doubt> doubt_far_away(Evidence& evidence);
std::optional<Doubt> doubt_far_from_drawing(Evidence& evidence);
[[nodiscard]] bool is_far_from_drawing(double distance);

// heights.cpp
std::optional<Doubt> doubt_height(Evidence& evidence);

// header_names.cpp
std::optional<Doubt> doubt_header_columns(Evidence& evidence);
std::optional<Doubt> doubt_header_axes(Evidence& evidence);
std::optional<Doubt> doubt_axes_unconfirmed(Evidence& evidence);

// numbers.cpp
std::optional<Doubt> doubt_repeated_number(Evidence& evidence);
std::optional<Doubt> doubt_same_place(Evidence& evidence);
std::optional<Doubt> doubt_comma_in_label(Evidence& evidence);
std::optional<Doubt> doubt_long_label(Evidence& evidence);

// rows.cpp
std::optional<Doubt> doubt_rows_left_out(Evidence& evidence);

}  // namespace console
