// Doubts about workbooks: another sheet than the one a person sees, and what a person sees otherwise than the reader.
#include "intake/workbook.h"

#include <algorithm>
#include <exception>
#include <iterator>
#include <string_view>
#include <utility>

#include "console/doubts/doubts.h"
#include "vexo_xyz_impl/messages.h"

namespace console {
namespace {

using vexo_xyz_impl::filled;
using vexo_xyz_impl::ImportSeen;

void add_rows(std::vector<Doubt>& doubts, std::string_view code, std::string_view key, std::vector<std::size_t> rows) {
  if (auto doubt = doubt_at(code, key, std::move(rows))) doubts.push_back(std::move(*doubt));
}

void add_sheet_choice(std::vector<Doubt>& doubts, const intake::Workbook& workbook) {
  const intake::Sheet* const read = workbook.imported();
  const intake::Sheet* const seen = workbook.seen_first();
  if (read == nullptr || seen == nullptr || read == seen) return;
  doubts.push_back({"sheet_choice",
                    filled("konsola.watp_arkusz", {std::string_view(read->name), std::string_view(seen->name)}),
                    {}});
}

// "&amp;", "&#243;" and the like.
bool holds_entity(std::string_view label) {
  constexpr std::size_t kLongest = 10;
  const std::size_t begin = label.find('&');
  if (begin == std::string_view::npos) return false;
  const std::size_t end = label.find(';', begin);
  return end != std::string_view::npos && end > begin + 1 && end - begin <= kLongest;
}

std::vector<std::size_t> rows_with_entities(const ImportSeen& seen, RowPlaces& places) {
  std::vector<std::size_t> rows;
  if (!has_number(*seen.verdict.fmt)) return rows;
  for (std::size_t i = 0; i < seen.read.punkty.size(); ++i)
    if (holds_entity(seen.read.punkty[i].nr)) rows.push_back(places.line_of_point(i));
  return rows;
}

// Rows with cells that the reader does not see.
std::vector<std::size_t> not_seen(const intake::Flaws& flaws) {
  std::vector<std::size_t> rows;
  std::set_union(flaws.cells_without_reference.begin(), flaws.cells_without_reference.end(), flaws.prefixed.begin(),
                 flaws.prefixed.end(), std::back_inserter(rows));
  return rows;
}

// Whether the end of a worksheet's XML is missing.
bool breaks_off(std::string_view xml) {
  constexpr std::size_t kTail = 256;
  const std::string_view tail = xml.substr(xml.size() - std::min(xml.size(), kTail));
  return !xml.empty() && tail.find("worksheet>") == std::string_view::npos;
}

}  // namespace

std::vector<Doubt> doubts_of_workbook(const ImportSeen& seen, RowPlaces* places) {
  std::vector<Doubt> doubts;
  if (breaks_off(seen.loaded.rows->text()))
    doubts.push_back({"rows_left_out", vexo_xyz_impl::T("konsola.watp_urwany"), {}});
  try {
    intake::Workbook workbook(seen.path);
    add_sheet_choice(doubts, workbook);
    if (workbook.imported() != nullptr && workbook.may_be_flawed(seen.loaded.rows->text())) {
      intake::Flaws flaws = workbook.inspect(*workbook.imported());
      add_rows(doubts, "formula_without_value", "konsola.watp_formula", std::move(flaws.formulas_without_value));
      add_rows(doubts, "date", "konsola.watp_data", std::move(flaws.dates));
      add_rows(doubts, "rows_left_out", "konsola.watp_komorki", not_seen(flaws));
      add_rows(doubts, "filtered_rows", "konsola.watp_filtr", std::move(flaws.hidden_rows));
    }
  } catch (const std::exception&) {  // NOLINT(bugprone-empty-catch): the importer read what a parser does not
  }
  if (places != nullptr) add_rows(doubts, "entity", "konsola.watp_encja", rows_with_entities(seen, *places));
  return doubts;
}

}  // namespace console
