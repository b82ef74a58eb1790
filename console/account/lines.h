// Physical lines of a text, counted from 1: a line ends at LF, CR LF or a lone CR, as for the importer's reader.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

#include "vexo_xyz_impl/input/row.h"

namespace console {

/// How many lines a text has, of which kind.
struct LineCounts {
  std::size_t lines = 0;
  std::size_t comments = 0;  ///< that begin with "#" or "//"
  std::size_t blank = 0;     ///< that hold nothing but white space and separators
};

/// Counts the lines of the text that `rows` were read of, in its order. Lines without a row are comments or blank.
[[nodiscard]] LineCounts count_lines(std::string_view text, std::span<const vexo_xyz_impl::Row> rows);

/// A line of a text, without its end.
struct Line {
  std::size_t number = 0;
  std::string_view text;
};

/// The lines that give rows, for when the rows are forgotten: all but comments and blank ones.
[[nodiscard]] std::vector<Line> lines_with_rows(std::string_view text);

/// Finds the line of places in a text. Places asked for in rising order cost one pass over the text in all.
class LineFinder {
 public:
  explicit LineFinder(std::string_view text) : text_(text) {}

  /// The line of the character at `place`, which lies in the text.
  [[nodiscard]] std::size_t line_of(const char* place);

 private:
  std::string_view text_;
  std::size_t at_ = 0;
  std::size_t line_ = 1;  // that `at_` stands in
};

}  // namespace console
