#include "vexo_xyz_impl/input/text_reader.h"

#include <algorithm>
#include <cstring>
#include <string_view>
#include <utility>

#include "vexo_xyz_impl/input/code_pages.h"
#include "vexo_xyz_impl/input/file_bytes.h"
#include "vexo_xyz_impl/text/lines.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace vexo_xyz_impl {
namespace {

// The lines of a text without their ends. Each kind of line end is looked for once, so that a file of lone carriage
// returns is not searched for line feeds at every line.
class Lines {
 public:
  explicit Lines(std::string_view text) : rest_(text), line_feed_(find('\n')), carriage_return_(find('\r')) {}

  std::optional<std::string_view> next() {
    if (rest_.empty()) return std::nullopt;
    const char* end = std::min(line_feed_, carriage_return_);
    const std::string_view line = rest_.substr(0, static_cast<std::size_t>(end - rest_.data()));
    rest_.remove_prefix(std::min(line.size() + 1, rest_.size()));
    // The line feed of a CR LF makes an empty line of its own, which gives no row.
    if (end == line_feed_) line_feed_ = find('\n');
    if (end == carriage_return_) carriage_return_ = find('\r');
    return line;
  }

 private:
  [[nodiscard]] const char* find(char byte) const {
    const void* found = rest_.empty() ? nullptr : std::memchr(rest_.data(), byte, rest_.size());
    return found != nullptr ? static_cast<const char*>(found) : rest_.data() + rest_.size();
  }

  std::string_view rest_;
  const char* line_feed_;
  const char* carriage_return_;
};

// Where the first delimiter stands, npos without one.
std::size_t find_delimiter(std::string_view line) {
  const auto* found = std::find_if(line.begin(), line.end(), [](char c) { return c == ';' || c == '\t'; });
  return found == line.end() ? std::string_view::npos : static_cast<std::size_t>(found - line.begin());
}

void add_piece(Table& wiersze, std::string_view piece) {
  if (const std::string_view cell = text::trim(piece); !cell.empty()) wiersze.add_cell(cell);
}

void split_at_delimiters(Table& wiersze, std::string_view line, std::size_t first) {
  for (std::size_t end = first; end != std::string_view::npos; end = find_delimiter(line)) {
    add_piece(wiersze, line.substr(0, end));
    line.remove_prefix(end + 1);
  }
  add_piece(wiersze, line);
}

void split_at_white_space(Table& wiersze, std::string_view line) {
  std::size_t start = 0;
  for (std::size_t at = 0; at < line.size();) {
    const std::size_t blank = text::white_space_at(line, at);
    if (blank != 0) {
      if (at > start) wiersze.add_cell(line.substr(start, at - start));
      start = at + blank;
    }
    at += blank != 0 ? blank : 1;  // a trailing byte of a character is white space to nobody
  }
  if (start < line.size()) wiersze.add_cell(line.substr(start));
}

void add_line(Table& wiersze, std::string_view raw) {
  const std::string_view line = text::trim(raw);
  if (line.empty() || text::begins_comment(line)) return;
  if (const std::size_t first = find_delimiter(line); first != std::string_view::npos) {
    split_at_delimiters(wiersze, line, first);
  } else {
    split_at_white_space(wiersze, line);
  }
  wiersze.end_row();
}

// The bytes as UTF-8, with the name of the encoding that they were in.
std::pair<std::vector<char>, std::string_view> to_utf8(std::vector<char> bytes) {
  if (text::is_valid({bytes.data(), bytes.size()})) return {std::move(bytes), "utf-8-sig"};
  if (auto decoded = cp1250_to_utf8(bytes)) return {std::move(*decoded), "cp1250"};
  return {latin1_to_utf8(bytes), "latin-1"};
}

}  // namespace

Table table_from_bytes(std::vector<char> bytes) {
  Table wiersze;
  auto [utf8, encoding] = to_utf8(std::move(bytes));
  wiersze.note_encoding(encoding);
  std::string_view utf8_text = wiersze.adopt(std::move(utf8));
  text::take_byte_order_mark(utf8_text);
  Lines lines(utf8_text);
  while (const auto line = lines.next()) add_line(wiersze, *line);
  return wiersze;
}

std::optional<Table> _czytaj_tekst(const std::string& path) {
  auto bytes = all_bytes(path);
  if (!bytes) return std::nullopt;
  return table_from_bytes(std::move(*bytes));
}

}  // namespace vexo_xyz_impl
