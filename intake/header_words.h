// What a column's name says of the column: a vocabulary in Polish, German, Romanian and English and of what instruments
// and maps' programs write. Names only; what the values say is `columns.h`'s business.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace intake {

enum class Named {
  nothing,   ///< no name at all
  number,    ///< a point's number or name
  counter,   ///< a running number of the rows, which is no point's where another column has that
  easting,   ///< also a name that says both: "Rechtswert (Y)"
  northing,  ///< also "Hochwert/X", "X (north)"
  x,         ///< its axis not told
  y,         ///< its axis not told
  pair,      ///< both coordinates in one column
  height,
  latitude,
  longitude,
  code,  ///< a code or a description
  zone,
  error,         ///< a standard error or the like
  date,          ///< a date or a time
  other_value,   ///< a known quantity that none of these is: an angle, a length, an image's coordinate
  maybe_height,  ///< a height of a kind that may be wanted or not: normalized or normal, a depth
  unknown,
};

struct HeaderName {
  Named named = Named::nothing;
  std::size_t unknown_words = 0;  ///< beside those that say it; the plainer of two names of one kind has fewer
};

/// What a name says; letter case, diacritics, punctuation and units do not matter.
[[nodiscard]] HeaderName header_name(std::string_view name);

/// Whether it names a coordinate or a height.
[[nodiscard]] constexpr bool names_a_coordinate(Named named) {
  return (named >= Named::easting && named <= Named::longitude);
}

/// Whether `word` is a unit of lengths or angles, with or without brackets.
[[nodiscard]] bool is_unit(std::string_view word);

/// Whether the cells are names of columns: words, of which enough are known, and hardly a number.
[[nodiscard]] bool is_header(std::span<const std::string_view> cells);

}  // namespace intake
