// How a foreign text writes its table: what separates, quotes and marks decimals. The evidence is counted for each
// separator on a sample of lines, apart from the decision, so that it can be shown and asked about.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>
#include <utility>
#include <vector>

namespace intake {

/// Runs of blanks and tabs stand for the blank.
inline constexpr std::array kSeparators = {'\t', ';', '|', ',', ' '};

/// What a sample's lines become with one separator. Empty cells at a line's end do not count.
struct SeparatorEvidence {
  char separator = ' ';
  std::size_t lines = 0;     ///< lines of at least two cells
  std::size_t numbers = 0;   ///< lines of at least two cells that are numbers
  std::size_t width = 0;     ///< commonest number of cells among those, the greater of equals
  std::size_t of_width = 0;  ///< how many of those have it
};

struct Dialect {
  char separator = ' ';
  bool is_decided = false;  ///< some separator gives at least two numbers a line
  bool quoted = false;      ///< cells stand between quotes
  bool decimal_comma = false;
  bool mixed = false;        ///< some lines have the separator, others numbers between blanks or tabs alone
  bool has_comments = true;  ///< lines that "#" or "//" begins are none of the table's
  std::array<SeparatorEvidence, kSeparators.size()> evidence;  ///< in the order of kSeparators
  /// Of blanks, where the columns stand, from and to in characters, when rows lack values and the columns tell which;
  /// else empty.
  std::vector<std::pair<std::size_t, std::size_t>> places;
};

/// "comma", "semicolon", "tab", "pipe" or "blanks".
[[nodiscard]] std::string_view separator_name(char separator);

/// The dialect of a text in UTF-8.
[[nodiscard]] Dialect dialect_of(std::string_view utf8);

}  // namespace intake
