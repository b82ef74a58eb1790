#include "vexo_xyz_impl/command/questions.h"

#include <algorithm>
#include <array>
#include <tuple>
#include <utility>

#include "vexo_xyz_impl/command/keywords.h"
#include "vexo_xyz_impl/messages.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace vexo_xyz_impl {
namespace {

constexpr std::size_t kCellsShown = 4;

constexpr std::array kFirstColumnAnswers = {kNumer, kWspolrzedna};

std::string_view without_quotes(std::string_view path) {
  const std::size_t first = path.find_first_not_of('"');
  if (first == std::string_view::npos) return {};
  return path.substr(first, path.find_last_not_of('"') - first + 1);
}

std::string first_cells(Row row) {
  std::string joined;
  for (std::size_t i = 0; i < std::min(row.size(), kCellsShown); ++i) {
    if (i > 0) joined += "  ";
    joined += row[i];
  }
  return joined;
}

}  // namespace

std::string_view clean_path(std::string_view typed) { return without_quotes(text::trim(typed)); }

std::optional<std::string> ask_path() {
  host::resbuf rb;
  if (command_line().gcedGetFileD(T("xyz.dialog_wybor_pliku"), "", "xlsx;csv;txt", 0, rb) != host::RTNORM) {
    print("xyz.anulowano_brak_pliku");
    return std::nullopt;
  }
  std::string path = std::move(rb.resval.rstring);
  if (path.empty()) {
    host::PromptStatus rc{};
    std::tie(rc, path) = command_line().gcedGetString(1, T("xyz.prompt_sciezka"));
    if (rc != host::RTNORM || text::trim(path).empty()) {
      print("xyz.anulowano");
      return std::nullopt;
    }
  }
  return std::string(clean_path(path));
}

bool ask_layout(LayoutVerdict& verdict) {
  print("xyz.info_opis", {std::string_view(verdict.opis)});
  // Without a row of data neither answer could make a point, so there is nothing to ask.
  if (!verdict.dane.empty()) {
    print("xyz.pierwszy_wiersz", {std::string_view(first_cells(verdict.dane.front()))});
    print("xyz.wybor_numer");
    print("xyz.wybor_wspolrzedna");
    const auto answer = _kword(kFirstColumnAnswers, "xyz.prompt_pierwsza_kolumna_tpl");
    if (!answer) {
      print("xyz.anulowano");
      return false;
    }
    verdict.fmt = layout_of(_liczba_kolumn(verdict.dane), *answer != kWspolrzedna);
    verdict.opis = T("xyz.opis_wybor_uzytkownika");
  }
  return true;
}

std::optional<DeclaredColumns> columns_by_first_line(std::string_view text, std::span<const Row> wiersze) {
  const auto declared = declared_columns(text);
  if (!declared || wiersze.empty()) return declared;
  const std::size_t columns = _liczba_kolumn(wiersze);
  if (columns == declared->count()) return declared;
  print("xyz.kolumny_nie_pasuja", {static_cast<long long>(declared->count()), static_cast<long long>(columns)});
  return std::nullopt;
}

LayoutVerdict declared_layout(const DeclaredColumns& declared, std::span<const Row> wiersze) {
  const Layout with_number = declared.height ? Layout::NrXYZ : Layout::NrXY;
  const Layout without = declared.height ? Layout::XYZ : Layout::XY;
  return {declared.number ? with_number : without, T("xyz.opis_z_pliku"), {wiersze.begin(), wiersze.end()}};
}

}  // namespace vexo_xyz_impl
