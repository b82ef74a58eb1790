#include "console/prepare_log.h"

#include <algorithm>
#include <vector>

#include "console/dialogue/shown_text.h"
#include "intake/text_records.h"
#include "vexo_xyz_impl/messages.h"

namespace console {
namespace {

using intake::LineRun;
using intake::NotedRow;
using intake::PreparedAccount;
using intake::RowNote;
using vexo_xyz_impl::filled;
using vexo_xyz_impl::T;

long long whole(std::size_t count) { return static_cast<long long>(count); }

std::string run_text(const LineRun& run) {
  const std::size_t last = run.first_line + run.distance * (run.rows - 1);
  if (run.rows == 1) return filled("konsola.prep_log_linia", {whole(run.first_line), whole(run.first_row)});
  return filled(run.distance == 1 ? "konsola.prep_log_seria" : "konsola.prep_log_co_druga",
                {whole(run.first_line), whole(last), whole(run.first_row), whole(run.first_row + run.rows - 1)});
}

std::string sums(const intake::ForeignTable& table, const PreparedAccount& account) {
  std::string text;
  if (table.lines != nullptr) {
    const std::size_t lines = table.lines->lines();
    const std::size_t comments = table.lines->comments();
    const std::size_t blank = table.lines->blank();
    text += filled("konsola.prep_log_suma_linii", {whole(lines), whole(comments), whole(blank), whole(account.records),
                                                   whole(lines - comments - blank - account.records)});
  }
  return text + filled("konsola.prep_log_suma", {whole(account.records), whole(account.points),
                                                 whole(account.head.size()), whole(account.left_out)});
}

}  // namespace

std::string note_text(RowNote note) {
  switch (note) {
    case RowNote::too_few_cells:
      return T("konsola.prep_malo_komorek");
    case RowNote::no_coordinate:
      return T("konsola.prep_nie_liczba");
    case RowNote::not_finite:
      return T("konsola.prep_nieskonczona");
    case RowNote::moved:
      return T("konsola.prep_przesuniety");
    case RowNote::no_height:
      return T("konsola.prep_bez_wysokosci");
    case RowNote::height_set_to_zero:
      return T("konsola.prep_wysokosc_zero");
    case RowNote::number_changed:
      return T("konsola.prep_numer_zmieniony");
    case RowNote::number_made:
      return T("konsola.prep_numer_nadany");
    case RowNote::hidden:
      return T("konsola.prep_ukryty");
  }
  return {};
}

std::string prepare_log(std::string_view source, std::string_view output, const intake::ForeignTable& table,
                        const PreparedAccount& account) {
  std::string log = filled("konsola.prep_log_plik", {source, output});
  if (table.encoding && table.dialect) {
    log += filled("konsola.prep_log_tekst",
                  {intake::encoding_name(*table.encoding), intake::separator_name(table.dialect->separator)});
  }
  log += sums(table, account) + "\n";
  // Runs, head and notes in the order of lines; of one line its row before what is noted of it.
  struct Entry {
    std::size_t line;
    std::string text;
  };
  std::vector<Entry> entries;
  for (const NotedRow& row : account.head)
    entries.push_back({row.line, filled("konsola.prep_log_naglowek", {whole(row.line), std::string_view(row.text)})});
  for (const LineRun& run : account.runs) entries.push_back({run.first_line, run_text(run)});
  for (const NotedRow& row : account.noted) {
    entries.push_back(
        {row.line, filled("konsola.prep_log_uwaga",
                          {whole(row.line), std::string_view(note_text(row.note)), std::string_view(row.text)})});
  }
  std::stable_sort(entries.begin(), entries.end(), [](const Entry& a, const Entry& b) { return a.line < b.line; });
  for (const Entry& entry : entries) log += without_control_characters(entry.text);
  return log;
}

}  // namespace console
