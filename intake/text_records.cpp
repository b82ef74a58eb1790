#include "intake/text_records.h"

#include <algorithm>

#include "vexo_xyz_impl/text/lines.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace intake {
namespace {

namespace text = vexo_xyz_impl::text;
using text::begins_comment;
using text::is_line_end;

constexpr std::size_t kMostQuoted = 4096;  // bytes of a quoted cell with line breaks; more is a quote left open

bool is_blank(char c) { return c == ' ' || c == '\t' || c == '\v' || c == '\f'; }

}  // namespace

std::size_t characters_in(std::string_view utf8) {
  return static_cast<std::size_t>(
      std::count_if(utf8.begin(), utf8.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

TextRecords::TextRecords(std::string_view utf8, Dialect dialect) : text_(utf8), dialect_(std::move(dialect)) {
  for (const char c : {'\n', '\r', dialect_.separator}) ends_cell_[static_cast<unsigned char>(c)] = true;
  if (dialect_.separator == ' ') {
    for (const char c : {'\t', '\v', '\f'}) ends_cell_[static_cast<unsigned char>(c)] = true;
  }
}

void TextRecords::restart(std::string_view utf8) {
  text_ = utf8;
  at_ = 0;
  line_ = 1;
  comments_ = 0;
  blank_ = 0;
}

// At a line's end or the text's: steps behind it.
void TextRecords::end_line() {
  if (at_ < text_.size()) {
    const bool carriage_return = text_[at_++] == '\r';
    if (carriage_return && at_ < text_.size() && text_[at_] == '\n') ++at_;
  }
  ++line_;
}

void TextRecords::skip_line() {
  while (at_ < text_.size() && !is_line_end(text_[at_])) ++at_;
  end_line();
}

bool TextRecords::next(Record& record) {
  while (at_ < text_.size()) {
    record.line = line_;
    record.cells.clear();
    std::size_t first = at_;
    while (first < text_.size() && is_blank(text_[first])) ++first;
    if (first == text_.size() || is_line_end(text_[first])) {
      at_ = first;
      ++blank_;
      end_line();
      continue;
    }
    if (dialect_.has_comments && begins_comment(text_.substr(first, 2))) {
      ++comments_;
      skip_line();
      continue;
    }
    escaped_.clear();
    if (dialect_.separator == ' ') {
      read_blank_separated(record);
    } else {
      read_separated(record);
    }
    end_line();
    if (!escaped_.empty()) unescape(record);
    if (std::all_of(record.cells.begin(), record.cells.end(), [](std::string_view cell) { return cell.empty(); })) {
      blank_ += line_ - record.line;
      continue;
    }
    return true;
  }
  return false;
}

void TextRecords::read_separated(Record& record) {
  while (true) {
    std::size_t begin = at_;
    while (begin < text_.size() && is_blank(text_[begin]) && text_[begin] != dialect_.separator) ++begin;
    const std::size_t from = at_;
    at_ = begin;
    if (begin >= text_.size() || text_[begin] != '"' || !read_quoted(record)) {
      at_ = from;
      read_plain(record);
    }
    if (at_ >= text_.size() || is_line_end(text_[at_])) return;
    ++at_;
  }
}

void TextRecords::read_blank_separated(Record& record) {
  const std::size_t line_begin = at_;
  while (true) {
    while (at_ < text_.size() && is_blank(text_[at_])) ++at_;
    if (at_ >= text_.size() || is_line_end(text_[at_])) break;
    if (text_[at_] == '"' && read_quoted(record)) continue;
    read_plain(record);
  }
  if (record.cells.size() < dialect_.places.size()) {
    put_in_places(record, text_.substr(line_begin, at_ - line_begin));
  }
}

void TextRecords::read_plain(Record& record) {
  const std::size_t from = at_;
  while (at_ < text_.size() && !ends_cell_[static_cast<unsigned char>(text_[at_])]) ++at_;
  record.cells.push_back(text::trim(text_.substr(from, at_ - from)));
}

// At an opening quote: the cell up to the one that closes it, behind which it must end. False, and nothing read, when
// there is none.
bool TextRecords::read_quoted(Record& record) {
  bool escaped = false;
  std::size_t breaks = 0;
  const std::size_t from = at_ + 1;
  std::size_t to = from;
  for (;; ++to) {
    if (to >= text_.size()) return false;
    const char c = text_[to];
    if (is_line_end(c)) {
      if (to - from > kMostQuoted) return false;
      breaks += c == '\n' || to + 1 >= text_.size() || text_[to + 1] != '\n' ? 1 : 0;
    }
    if (c != '"') continue;
    if (to + 1 >= text_.size() || text_[to + 1] != '"') break;
    escaped = true;
    ++to;
  }
  std::size_t behind = to + 1;
  while (behind < text_.size() && is_blank(text_[behind]) && text_[behind] != dialect_.separator) ++behind;
  const bool ends = behind >= text_.size() || ends_cell_[static_cast<unsigned char>(text_[behind])] ||
                    (dialect_.separator == ' ' && behind > to + 1);
  if (!ends) return false;
  if (escaped) escaped_.push_back(record.cells.size());
  record.cells.push_back(text::trim(text_.substr(from, to - from)));
  line_ += breaks;
  at_ = behind;
  return true;
}

void TextRecords::unescape(Record& record) {
  std::size_t size = 0;
  for (const std::size_t i : escaped_) size += record.cells[i].size();
  unescaped_.clear();
  unescaped_.reserve(size);  // so that views into it stay
  for (const std::size_t i : escaped_) {
    const std::size_t begin = unescaped_.size();
    const std::string_view cell = record.cells[i];
    for (std::size_t at = 0; at < cell.size(); ++at) {
      unescaped_ += cell[at];
      if (cell[at] == '"') ++at;
    }
    record.cells[i] = std::string_view(unescaped_).substr(begin);
  }
}

// A row that lacks values: each cell into the place that it stands in, when it stands in one only.
void TextRecords::put_in_places(Record& record, std::string_view line) {
  placed_.assign(dialect_.places.size(), {});
  std::size_t place = 0;
  for (const std::string_view cell : record.cells) {
    const auto from = characters_in(line.substr(0, static_cast<std::size_t>(cell.data() - line.data())));
    const auto to = from + characters_in(cell);
    while (place < placed_.size() && dialect_.places[place].second <= from) ++place;
    const bool fits = place < placed_.size() && dialect_.places[place].first < to && placed_[place].empty() &&
                      (place + 1 == placed_.size() || to <= dialect_.places[place + 1].first);
    if (!fits) return;
    placed_[place] = cell;
  }
  record.cells.assign(placed_.begin(), placed_.end());
}

std::vector<std::pair<std::size_t, std::string_view>> TextRecords::leading_comments() const {
  std::vector<std::pair<std::size_t, std::string_view>> comments;
  if (!dialect_.has_comments) return comments;
  std::string_view rest = text_;
  for (std::size_t line = 1; !rest.empty(); ++line) {
    std::string_view content = text::trim(text::take_line(rest));
    if (!content.empty() && !begins_comment(content)) break;
    content.remove_prefix(std::min(content.find_first_not_of("#/ \t"), content.size()));
    if (!content.empty()) comments.emplace_back(line, content);
  }
  return comments;
}

}  // namespace intake
