#include "vexo_xyz_impl/command/report.h"

#include <algorithm>
#include <exception>

#include "vexo_xyz_impl/drawing/control.h"
#include "vexo_xyz_impl/drawing/group.h"
#include "vexo_xyz_impl/failure.h"
#include "vexo_xyz_impl/messages.h"
#include "vexo_xyz_impl/table/repeated_numbers.h"

namespace vexo_xyz_impl {
namespace {

constexpr std::size_t kSkippedShown = 5;

long long count_of(std::size_t count) { return static_cast<long long>(count); }

}  // namespace

void announce_layout(Layout fmt, std::string_view opis) {
  print("xyz.rozpoznany_format", {layout_code(fmt), opis});
  print(has_heights(fmt) ? "xyz.z_wczytuje" : "xyz.z_brak");
}

void print_skipped(const std::vector<SkippedLine>& pominiete, std::size_t most) {
  for (const SkippedLine& line : std::span(pominiete).first(std::min(most, pominiete.size()))) {
    const std::string reason = reason_text(line);
    const std::string text = row_text(line.cells);
    print("xyz.linia_pominieta", {count_of(line.row), std::string_view(reason), std::string_view(text)});
  }
}

void mark_and_report(std::span<const host::GcDbObjectId> oidy_punktow) {
  const MarkingResult marked = _oznacz_do_kontroli(oidy_punktow);
  if (marked.ile > 0) print("xyz.kontrola_ok", {count_of(marked.ile)});
  if (!marked.message.empty()) command_line().gcutPrintf(marked.message);
}

void group_and_report(host::GcDbDatabase& db, const host::GcDbObjectIdArray& oidy, const std::string& path) {
  std::string nazwa;
  GroupingResult grouped;
  try {
    nazwa = _nazwa_grupy(db, path);
    grouped = _grupuj(db, oidy, nazwa);
  } catch (const std::exception& failure) {
    print("xyz.grupa_pominieta", {std::string_view(describe(failure).kind)});
    return;
  }
  if (!grouped.ok) {
    print("xyz.grupa_blad", {std::string_view(grouped.message)});
    print("xyz.grupa_reczne");
    return;
  }
  print("xyz.grupa_ok", {std::string_view(nazwa)});
  print("xyz.grupa_hint_1");
  print("xyz.grupa_hint_2");
}

std::size_t report_rest(const Decomposition& read) {
  print("xyz.punkty_sa");
  if (!read.pominiete.empty()) print("xyz.pominieto_naglowek");
  print_skipped(read.pominiete, kSkippedShown);
  if (read.pominiete.size() > kSkippedShown) {
    print("xyz.pominieto_dalsze", {count_of(read.pominiete.size() - kSkippedShown)});
  }
  const std::size_t dubli = repeated_numbers(read.punkty);
  if (dubli != 0) print("xyz.dubli", {count_of(dubli)});
  print("xyz.zoom_hint");
  return dubli;
}

}  // namespace vexo_xyz_impl
