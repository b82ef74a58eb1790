#include "intake/raster.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>

#include "vexo_xyz_impl/table/numbers.h"
#include "vexo_xyz_impl/text/ascii.h"
#include "vexo_xyz_impl/text/lines.h"

namespace intake {
namespace {

// The words before the values, one a line with a number, in any order and letter case.
constexpr auto kGridWords = std::to_array<std::string_view>({
    "ncols",
    "nrows",
    "xllcorner",
    "yllcorner",
    "xllcenter",
    "yllcenter",
    "cellsize",
    "dx",
    "dy",
    "nodata_value",  //
    "north:",
    "south:",
    "east:",
    "west:",
    "rows:",
    "cols:",
});
constexpr std::size_t kEnoughWords = 4;
constexpr auto kSignatures = std::to_array<std::string_view>({"DSAA", "DSBB", "DSRB"});

using vexo_xyz_impl::text::take_line;

constexpr std::string_view kBetween = " \t,;\r";
constexpr std::size_t kFewestColumns = 100;  // more than any list of points has numbers in a row
constexpr int kLinesLookedAt = 12;

std::string_view take_word(std::string_view& line) {
  line.remove_prefix(std::min(line.size(), line.find_first_not_of(kBetween)));
  const std::string_view word = line.substr(0, line.find_first_of(kBetween));
  line.remove_prefix(word.size());
  return word;
}

bool is_grid_word(std::string_view word) {
  std::string lower(word);
  std::transform(lower.begin(), lower.end(), lower.begin(), vexo_xyz_impl::text::ascii_lower);
  return std::find(kGridWords.begin(), kGridWords.end(), lower) != kGridWords.end();
}

bool begins_with_grid_words(std::string_view text) {
  std::size_t words = 0;
  for (int lines = 0; lines < kLinesLookedAt && !text.empty(); ++lines) {
    std::string_view line = take_line(text);
    const bool known = is_grid_word(take_word(line));
    if (known && vexo_xyz_impl::parse_number(take_word(line))) ++words;
  }
  return words >= kEnoughWords;
}

// The last line of the head may be cut, and with it its last number, which does not matter.
bool has_wide_lines_of_numbers(std::string_view text) {
  bool any = false;
  for (int lines = 0; lines < kLinesLookedAt && !text.empty(); ++lines) {
    std::string_view line = take_line(text);
    const bool whole = !text.empty();
    std::size_t numbers = 0;
    for (std::string_view word = take_word(line); !word.empty(); word = take_word(line)) {
      if (!vexo_xyz_impl::parse_number(word) && !line.empty()) return false;
      ++numbers;
    }
    if (numbers >= kFewestColumns)
      any = true;
    else if (numbers > 0 && whole)
      return false;
  }
  return any;
}

}  // namespace

bool is_raster(std::string_view head) {
  const bool signed_so = std::any_of(kSignatures.begin(), kSignatures.end(),
                                     [&](std::string_view word) { return head.starts_with(word); });
  return signed_so || begins_with_grid_words(head) || has_wide_lines_of_numbers(head);
}

}  // namespace intake
