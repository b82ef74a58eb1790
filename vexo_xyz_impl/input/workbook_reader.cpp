#include "vexo_xyz_impl/input/workbook_reader.h"

#include <algorithm>
#include <charconv>
#include <deque>
#include <new>
#include <span>
#include <system_error>
#include <utility>
#include <vector>

#include "vexo_xyz_impl/failure.h"
#include "vexo_xyz_impl/input/elements.h"
#include "vexo_xyz_impl/input/package.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace vexo_xyz_impl {
namespace {

constexpr std::string_view kSharedStrings = "xl/sharedStrings.xml";
constexpr const char* kRemedy = "keep the points alone in it, or save it as CSV";

using SharedStrings = std::deque<std::string_view>;  // which takes no more than it holds

// The part of a member that was found in it.
std::span<char> part_of(std::span<char> member, std::string_view found) {
  return found.empty() ? std::span<char>()
                       : member.subspan(static_cast<std::size_t>(found.data() - member.data()), found.size());
}

// The text of all runs in `content`, joined where the first one stands: what lies between them is of no more use.
std::string_view joined_runs(Matcher& matcher, std::span<char> content) {
  Matches runs(text_run(), {content.data(), content.size()}, matcher);
  const auto first = runs.next();
  if (!first) return {};
  const std::span<char> joined = part_of(content, {first->group1.data(), content.data() + content.size()});
  auto end = std::copy(first->group1.begin(), first->group1.end(), joined.begin());
  while (const auto next = runs.next()) end = std::copy(next->group1.begin(), next->group1.end(), end);
  return {joined.begin(), end};
}

SharedStrings shared_strings(Matcher& matcher, std::span<char> xml) {
  SharedStrings shared;
  Matches items(shared_string_item(), {xml.data(), xml.size()}, matcher);
  while (const auto item = items.next()) {
    if (shared.size() == kMostCells) throw MemoryError(std::string("too many texts in the workbook; ") + kRemedy);
    shared.push_back(joined_runs(matcher, part_of(xml, item->group1)));
  }
  return shared;
}

// The entry that an index names, counted from the end when negative; empty for anything that names none.
std::string_view shared_string(const SharedStrings& shared, std::string_view index_text) {
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

std::optional<std::size_t> column_within_limit(std::string_view reference) {
  try {
    const std::uint64_t column = _kol_nr(reference).value_or(0);  // the pattern saw a letter
    if (column < kMostColumns) return static_cast<std::size_t>(column);
  } catch (const OverflowError&) {  // further than any limit
  }
  return std::nullopt;
}

class WorksheetReader {
 public:
  WorksheetReader(Table& table, Matcher& matcher, const SharedStrings& shared, std::span<char> xml)
      : table_(table), matcher_(matcher), shared_(shared), xml_(xml) {}

  void read() {
    Matches rows(row_element(), {xml_.data(), xml_.size()}, matcher_);
    while (const auto row = rows.next()) {
      Matches cells(cell_element(), row->group1, matcher_);
      while (const auto cell = cells.next()) read_cell(cell->group1, cell->group2);
      table_.end_row();
    }
  }

 private:
  void read_cell(std::string_view attributes, std::string_view content) {
    const auto reference = matcher_.find(cell_reference(), attributes);
    if (!reference) return;
    const std::size_t column = column_of(reference->group1);
    const auto type = matcher_.find(cell_type(), attributes);
    table_.set_cell(column, text_of(type ? type->group1 : "n", content));
  }

  [[nodiscard]] std::size_t column_of(std::string_view reference) const {
    const auto refused = [&](const std::string& reason) {
      return MemoryError("cell " + std::string(reference.substr(0, 40)) + ": " + reason);
    };
    if (table_.stored_cells() >= kMostCells) {
      throw refused("a worksheet may have " + std::to_string(kMostCells) + " cells; " + kRemedy);
    }
    const auto column = column_within_limit(reference);
    if (!column) throw refused("a row may have " + std::to_string(kMostColumns) + " columns; delete what stands there");
    return *column;
  }

  std::string_view text_of(std::string_view type, std::string_view content) {
    if (type == "inlineStr") return joined_runs(matcher_, part_of(xml_, content));
    const auto stored = matcher_.find(stored_value(), content);
    const std::string_view value = stored ? stored->group1 : std::string_view();
    return type == "s" ? shared_string(shared_, value) : value;
  }

  Table& table_;
  Matcher& matcher_;
  const SharedStrings& shared_;
  std::span<char> xml_;
};

// The worksheet member whose name sorts first; empty when there is none.
std::string_view first_worksheet(const Package& package, Matcher& matcher) {
  for (const std::string_view name : package.names())
    if (text::is_valid(name) && matcher.find(worksheet_member(), name)) return name;
  return {};
}

Table read_workbook(const std::string& path) {
  Package package(path);
  Matcher matcher;
  std::vector<char> strings;
  if (package.has(kSharedStrings)) strings = package.read(kSharedStrings);
  const SharedStrings shared = shared_strings(matcher, strings);
  const std::string_view arkusz = first_worksheet(package, matcher);
  if (arkusz.empty()) return {};

  std::vector<char> xml = package.read(arkusz);
  Table wiersze;
  WorksheetReader(wiersze, matcher, shared, xml).read();
  wiersze.adopt_shared(std::move(strings));
  wiersze.adopt(std::move(xml));
  return wiersze;
}

}  // namespace

std::optional<std::uint64_t> _kol_nr(std::string_view ref) {
  constexpr std::uint64_t kBase = 26;
  constexpr std::uint64_t kStillFits = (UINT64_MAX - kBase) / kBase;
  std::uint64_t n = 0;
  for (const char letter : ref) {
    if (letter < 'A' || letter > 'Z') break;
    if (n > kStillFits) throw OverflowError("column " + std::string(ref.substr(0, 40)) + " is beyond any number");
    n = n * kBase + static_cast<std::uint64_t>(letter - 'A' + 1);
  }
  if (n == 0) return std::nullopt;
  return n - 1;
}

std::string_view worksheet_read(const Package& package) {
  Matcher matcher;
  return first_worksheet(package, matcher);
}

Table _czytaj_xlsx(const std::string& path) {
  try {
    return read_workbook(path);
  } catch (const std::bad_alloc&) {
    throw MemoryError(std::string("not enough memory to read the workbook; ") + kRemedy);
  }
}

}  // namespace vexo_xyz_impl
