#include "vexo_xyz_impl/input/workbook_reader.h"

#include <algorithm>
#include <charconv>
#include <span>
#include <system_error>
#include <utility>
#include <vector>

#include "vexo_xyz_impl/failure.h"
#include "vexo_xyz_impl/input/package.h"
#include "vexo_xyz_impl/input/pattern.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace vexo_xyz_impl {
namespace {

constexpr std::string_view kSharedStrings = "xl/sharedStrings.xml";

// An element that is picked out of a text: its pattern, and what must stand there before the pattern is worth trying.
//
// Left to itself, a pattern that finds an opening tag without its closing one would read to the end of the text, and
// again from the next opening tag: quadratic time for a hostile worksheet. So each opening is tried at its place
// only, and only when the tag ends and a closing tag is left behind it.
struct Element {
  Pattern pattern;
  std::string_view opening;
  std::string_view closing;
  bool is_cell = false;  // the opening must be followed by white space, and the tag may close itself
};

const Element& shared_string_item() {
  static const Element element{Pattern("<si>(.*?)</si>", Pattern::dot_matches_line_ends | Pattern::anchored), "<si>",
                               "</si>"};
  return element;
}

const Element& text_run() {
  static const Element element{Pattern("<t[^>]*>([^<]*)</t>", Pattern::anchored), "<t", "</t>"};
  return element;
}

const Element& row_element() {
  static const Element element{Pattern("<row[^>]*>(.*?)</row>", Pattern::dot_matches_line_ends | Pattern::anchored),
                               "<row", "</row>"};
  return element;
}

const Element& cell_element() {
  static const Element element{
      Pattern("<c\\s([^>]*?)(?:/>|>(.*?)</c>)", Pattern::dot_matches_line_ends | Pattern::anchored), "<c", "</c>",
      true};
  return element;
}

// The matches of an element's pattern in a text, first to last, in time that grows with the text.
class Matches {
 public:
  Matches(const Element& element, std::string_view text)
      : element_(element), text_(text), last_closing_(text.rfind(element.closing)) {}

  std::optional<Pattern::Match> next() {
    while (true) {
      at_ = text_.find(element_.opening, at_);
      if (at_ == std::string_view::npos || !find_tag_end()) break;
      if (!opening_is_whole()) {
        ++at_;
        continue;
      }
      if (const auto match = may_match() ? element_.pattern.find(text_, at_) : std::nullopt) {
        at_ = match->end;
        return match;
      }
      at_ = tag_end_;  // another opening before the end of this tag would have the same end and fail as this one did
    }
    at_ = text_.size();
    return std::nullopt;
  }

 private:
  // Where the tag opened at `at_` ends; false when it never does, and no later one either.
  bool find_tag_end() {
    const std::size_t from = at_ + element_.opening.size() - 1;
    if (tag_end_ < from || tag_end_ == 0) tag_end_ = text_.find('>', from);
    return tag_end_ != std::string_view::npos;
  }

  // "<c" may begin "<cols" as well.
  [[nodiscard]] bool opening_is_whole() const {
    return !element_.is_cell || kWhiteSpace.find(text_[at_ + element_.opening.size()]) != std::string_view::npos;
  }

  [[nodiscard]] bool may_match() const {
    if (element_.is_cell && text_[tag_end_ - 1] == '/') return true;
    return last_closing_ != std::string_view::npos && last_closing_ > tag_end_;
  }

  static constexpr std::string_view kWhiteSpace = " \t\n\v\f\r";

  const Element& element_;
  std::string_view text_;
  std::size_t last_closing_;
  std::size_t at_ = 0;
  std::size_t tag_end_ = 0;
};

std::string_view first_group(const Pattern& pattern, std::string_view text) {
  const auto match = pattern.find(text);
  return match ? match->group1 : std::string_view();
}

// A member as valid UTF-8: each maximal invalid part becomes one U+FFFD.
std::vector<char> decoded(std::vector<char> bytes) {
  const std::string_view text(bytes.data(), bytes.size());
  if (text::is_valid(text)) return bytes;
  const std::string replaced = text::with_replacements(text);
  return {replaced.begin(), replaced.end()};
}

// The text of all runs in `content`: a view of it when there is one run, a copy in the table when there are more.
std::string_view joined_runs(Table& table, std::string_view content) {
  Matches runs(text_run(), content);
  const auto first = runs.next();
  if (!first) return {};
  auto next = runs.next();
  if (!next) return first->group1;
  std::string joined(first->group1);
  for (; next; next = runs.next()) joined += next->group1;
  return table.keep(joined);
}

std::vector<std::string_view> shared_strings(Table& table, std::string_view xml) {
  std::vector<std::string_view> shared;
  Matches items(shared_string_item(), xml);
  while (const auto item = items.next()) shared.push_back(joined_runs(table, item->group1));
  return shared;
}

// The entry that an index names, counted from the end when negative; empty for anything that names none.
std::string_view shared_string(std::span<const std::string_view> shared, std::string_view index_text) {
  std::string_view digits = text::trim(index_text);
  const bool negative = digits.starts_with('-');
  if (negative || digits.starts_with('+')) digits.remove_prefix(1);
  std::uint64_t index = 0;
  const char* end = digits.data() + digits.size();
  const auto [stopped, error] = std::from_chars(digits.data(), end, index);
  if (digits.empty() || stopped != end || error != std::errc()) return {};
  if (negative && index != 0) return index <= shared.size() ? shared[shared.size() - index] : std::string_view();
  return index < shared.size() ? shared[index] : std::string_view();
}

class WorksheetReader {
 public:
  WorksheetReader(Table& table, std::span<const std::string_view> shared) : table_(table), shared_(shared) {}

  void read(std::string_view xml) {
    Matches rows(row_element(), xml);
    while (const auto row = rows.next()) {
      Matches cells(cell_element(), row->group1);
      while (const auto cell = cells.next()) read_cell(cell->group1, cell->group2);
      table_.end_row();
    }
  }

 private:
  void read_cell(std::string_view attributes, std::string_view content) {
    const auto reference = reference_.find(attributes);
    if (!reference) return;
    const std::uint64_t column = column_of(reference->group1);
    const auto type = type_.find(attributes);
    table_.set_cell(static_cast<std::size_t>(column), text_of(type ? type->group1 : "n", content));
  }

  [[nodiscard]] std::uint64_t column_of(std::string_view reference) const {
    const auto too_far = [&] {
      return MemoryError("cell " + std::string(reference.substr(0, 40)) +
                         ": a row that reaches there needs more memory " + "than the table may take (" +
                         std::to_string(kMostCells) + " cells); delete what stands there");
    };
    std::uint64_t column = 0;
    try {
      column = _kol_nr(reference).value_or(0);  // the pattern saw a letter
    } catch (const OverflowError&) {
      throw too_far();
    }
    const std::uint64_t finished = table_.cell_count() - table_.current_size();
    if (column >= kMostCells || finished + column >= kMostCells) throw too_far();
    return column;
  }

  std::string_view text_of(std::string_view type, std::string_view content) {
    if (type == "inlineStr") return joined_runs(table_, content);
    const std::string_view value = first_group(value_, content);
    return type == "s" ? shared_string(shared_, value) : value;
  }

  Pattern reference_{R"re(r="([A-Z]+\d+)")re"};
  Pattern type_{R"re(t="(\w+)")re"};
  Pattern value_{"<v>([^<]*)</v>"};
  Table& table_;
  std::span<const std::string_view> shared_;
};

// The worksheet member whose name sorts first; empty when there is none.
std::string_view first_worksheet(const Package& package) {
  const Pattern worksheet(R"(xl/worksheets/sheet\d+\.xml$)", Pattern::anchored | Pattern::unicode);
  for (const std::string_view name : package.names())
    if (text::is_valid(name) && worksheet.find(name)) return name;
  return {};
}

}  // namespace

std::optional<std::uint64_t> _kol_nr(std::string_view ref) {
  static const Pattern letters("([A-Z]+)", Pattern::anchored);
  const auto match = letters.find(ref);
  if (!match) return std::nullopt;
  constexpr std::uint64_t kBase = 26;
  constexpr std::uint64_t kStillFits = (UINT64_MAX - kBase) / kBase;
  std::uint64_t n = 0;
  for (const char letter : match->group1) {
    if (n > kStillFits) throw OverflowError("column " + std::string(ref.substr(0, 40)) + " is beyond any number");
    n = n * kBase + static_cast<std::uint64_t>(letter - 'A' + 1);
  }
  return n - 1;
}

Table _czytaj_xlsx(const std::string& path) {
  const Package package(path);
  Table wiersze;
  const std::string_view arkusz = first_worksheet(package);
  if (arkusz.empty()) return wiersze;
  std::vector<std::string_view> shared;
  if (package.has(kSharedStrings)) {
    shared = shared_strings(wiersze, wiersze.adopt(decoded(package.read(kSharedStrings))));
  }
  WorksheetReader(wiersze, shared).read(wiersze.adopt(decoded(package.read(arkusz))));
  return wiersze;
}

}  // namespace vexo_xyz_impl
