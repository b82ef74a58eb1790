// What a prepared text file states of its columns in its first line, a comment to every reader:
//
//     # columns: number;E;N;Z
//
// in this very form, but that `number;` and `;Z` may be missing and X;Y may stand for E;N, whose axes are not known
// then.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace vexo_xyz_impl {

struct DeclaredColumns {
  bool number = false;      ///< the first column is the point number
  bool east_north = false;  ///< the coordinates are E and N, in this order; else X and Y
  bool height = false;      ///< the last column is the height

  [[nodiscard]] std::size_t count() const { return (number ? 1U : 0U) + 2U + (height ? 1U : 0U); }
};

/// What the first line of a file's text states, a byte order mark aside; empty when it is of any other form.
[[nodiscard]] std::optional<DeclaredColumns> declared_columns(std::string_view text);

/// The line that states them, without its end.
[[nodiscard]] std::string line_of_columns(const DeclaredColumns& columns);

}  // namespace vexo_xyz_impl
