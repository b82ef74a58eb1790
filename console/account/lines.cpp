#include "console/account/lines.h"

#include <algorithm>
#include <cstring>

#include "vexo_xyz_impl/text/lines.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace console {
namespace {

using vexo_xyz_impl::Cell;
using vexo_xyz_impl::Row;
namespace text = vexo_xyz_impl::text;

// How often `byte` stands in the text, and for which of these `counts(place)` holds.
template <class Counts>
std::size_t count_bytes(std::string_view text, char byte, Counts counts) {
  std::size_t count = 0;
  const char* const end = text.data() + text.size();
  for (const char* at = text.data(); at != end; ++at) {
    at = static_cast<const char*>(std::memchr(at, byte, static_cast<std::size_t>(end - at)));
    if (at == nullptr) break;
    count += counts(at) ? 1 : 0;
  }
  return count;
}

// Ends of lines among the first `size` characters; that of a CR LF is its LF.
std::size_t line_ends(std::string_view text, std::size_t size) {
  const char* const end = text.data() + text.size();
  const std::string_view first = text.substr(0, size);
  const auto is_alone = [end](const char* place) { return place + 1 == end || place[1] != '\n'; };
  return count_bytes(first, '\n', [](const char*) { return true; }) + count_bytes(first, '\r', is_alone);
}

std::size_t line_count(std::string_view text) {
  if (text.empty()) return 0;
  return line_ends(text, text.size()) + (text::is_line_end(text.back()) ? 0 : 1);
}

bool is_comment(std::string_view line) { return text::begins_comment(text::trim(line)); }

bool is_blank(std::string_view line) {
  while (!line.empty()) {
    const std::string_view piece = line.substr(0, line.find_first_of(";\t"));
    if (!text::trim(piece).empty()) return false;
    line.remove_prefix(std::min(piece.size() + 1, line.size()));
  }
  return true;
}

std::size_t comments_in(std::string_view lines) {
  std::size_t comments = 0;
  while (!lines.empty()) comments += is_comment(text::take_line(lines)) ? 1 : 0;
  return comments;
}

// Without the beginning of a line behind them.
std::string_view whole_lines(std::string_view text) { return text.substr(0, text.find_last_of("\r\n") + 1); }

}  // namespace

LineCounts count_lines(std::string_view text, std::span<const Row> rows) {
  LineCounts counts;
  const auto add_lines = [&counts](std::string_view lines) {
    const std::size_t comments = comments_in(lines);
    counts.comments += comments;
    counts.blank += line_count(lines) - comments;
  };
  text::take_byte_order_mark(text);
  const char* after = text.data();  // the line of the row before
  const char* const end = text.data() + text.size();
  for (const Row row : rows) {
    const char* const begin = row[0].data();
    if (begin != after) add_lines(whole_lines({after, begin}));
    const Cell last = row[row.size() - 1];
    after = last.data() + last.size();
    if (after != end && *after != '\n') after = std::find_if(after, end, text::is_line_end);
    if (after != end) after += std::string_view(after, end).starts_with("\r\n") ? 2 : 1;
  }
  add_lines({after, end});
  counts.lines = rows.size() + counts.comments + counts.blank;
  return counts;
}

std::vector<Line> lines_with_rows(std::string_view text) {
  std::vector<Line> lines;
  text::take_byte_order_mark(text);
  for (std::size_t number = 1; !text.empty(); ++number) {
    const std::string_view line = text::take_line(text);
    if (!is_comment(line) && !is_blank(line)) lines.push_back({number, line});
  }
  return lines;
}

std::size_t LineFinder::line_of(const char* place) {
  const auto wanted = static_cast<std::size_t>(place - text_.data());
  if (wanted < at_) at_ = 0, line_ = 1;
  line_ += line_ends(text_.substr(at_), wanted - at_);
  at_ = wanted;
  return line_;
}

}  // namespace console
