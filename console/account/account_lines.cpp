#include "console/account/account_lines.h"

#include <algorithm>
#include <array>
#include <vector>

#include "vexo_xyz_impl/messages.h"

namespace console {
namespace {

constexpr std::size_t kLinesListed = 10;
constexpr std::size_t kRowsShown = 5;

constexpr std::array kReasons = {Why::too_few_columns, Why::no_number, Why::refused, Why::not_imported};

long long count_of(std::size_t count) { return static_cast<long long>(count); }

std::vector<const RowWithoutPoint*> rows_without_point(const Account& account) {
  std::vector<const RowWithoutPoint*> rows;
  for (const auto* list : {&account.left_out, &account.skipped})
    for (const RowWithoutPoint& row : *list) rows.push_back(&row);
  std::stable_sort(rows.begin(), rows.end(), [](const auto* a, const auto* b) { return a->line < b->line; });
  return rows;
}

}  // namespace

std::string reason_of(Why why) {
  switch (why) {
    case Why::too_few_columns:
      return vexo_xyz_impl::T("konsola.czemu_za_malo_kolumn");
    case Why::no_number:
      return vexo_xyz_impl::T("konsola.czemu_brak_liczby");
    case Why::refused:
      return vexo_xyz_impl::T("konsola.czemu_odrzucony");
    case Why::not_imported:
      break;
  }
  return vexo_xyz_impl::T("konsola.czemu_nie_wczytano");
}

std::string listed(std::span<const std::size_t> lines) {
  std::string text;
  const auto shown = lines.first(std::min(lines.size(), kLinesListed));
  for (std::size_t i = 0; i < shown.size(); ++i) {
    if (i > 0) text += i + 1 == lines.size() ? vexo_xyz_impl::T("konsola.i") : ", ";
    text += std::to_string(shown[i]);
  }
  return lines.size() > kLinesListed ? text + " …" : text;
}

void print_account(const Account& account) {
  const auto rows = rows_without_point(account);
  for (const Why why : kReasons) {
    std::vector<std::size_t> lines;
    for (const RowWithoutPoint* row : rows)
      if (row->why == why) lines.push_back(row->line);
    if (lines.empty()) continue;
    const std::string reason = reason_of(why);
    const std::string places = listed(lines);
    if (lines.size() == 1) {
      vexo_xyz_impl::print("konsola.bez_punktu_jeden", {std::string_view(reason), std::string_view(places)});
    } else {
      vexo_xyz_impl::print("konsola.bez_punktu",
                           {count_of(lines.size()), std::string_view(reason), std::string_view(places)});
    }
  }
  for (const RowWithoutPoint* row : std::span(rows).first(std::min(rows.size(), kRowsShown))) {
    vexo_xyz_impl::print("konsola.bez_punktu_wiersz", {count_of(row->line), std::string_view(row->text)});
  }
  if (rows.size() > kRowsShown) vexo_xyz_impl::print("konsola.bez_punktu_dalsze", {count_of(rows.size() - kRowsShown)});
}

}  // namespace console
