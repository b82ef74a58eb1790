#include "vexo_xyz_impl/command/questions.h"

#include <algorithm>
#include <array>
#include <tuple>
#include <utility>
#include <vector>

#include "vexo_xyz_impl/command/keywords.h"
#include "vexo_xyz_impl/crs/angles.h"
#include "vexo_xyz_impl/crs/detection.h"
#include "vexo_xyz_impl/crs/systems.h"
#include "vexo_xyz_impl/messages.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace vexo_xyz_impl {
namespace {

constexpr std::size_t kCellsShown = 4;
constexpr std::size_t kReadingsShown = 2;

constexpr std::array kFirstColumnAnswers = {kNumer, kWspolrzedna};
constexpr std::array kAxisAnswers = {kTak, kZamien};

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

void announce_reading(const Candidate& candidate, const PointRecord& first) {
  const auto [E, N] = candidate.swap ? std::pair(first.y, first.x) : std::pair(first.x, first.y);
  const auto [lat, lon] = _do_geo(E, N, candidate.srid);
  const std::string word = _slowo(candidate.swap ? kZamien : kTak);
  const std::string name = _uklad_nazwa(candidate.srid);
  print("xyz.osie_wiersz", {std::string_view(word), std::string_view(name), degrees(lat), degrees(lon)});
}

bool ask_swap(std::span<const Candidate> kand, const PointRecord& first) {
  print("xyz.osie_niejednoznaczne");
  for (const Candidate& candidate : kand.first(kReadingsShown)) announce_reading(candidate, first);
  const std::string keep = _slowo(kTak);
  const std::string exchange = _slowo(kZamien);
  print("xyz.osie_legenda_tpl", {std::string_view(keep), std::string_view(exchange)});
  return _kword(kAxisAnswers, "xyz.prompt_zamien_osie_tpl") == kZamien;
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

bool settle_axes(std::span<const PointRecord> punkty) {
  std::vector<Pair> pary;
  for (const PointRecord& point : punkty.first(std::min(punkty.size(), kDetectionSample)))
    pary.emplace_back(point.x, point.y);
  const std::vector<Candidate> kand = _wykryj_uklad(pary);
  if (kand.empty()) {
    print("xyz.uklad_nierozpoznany");
    return false;
  }
  if (kand.size() > 1) return ask_swap(kand, punkty.front());
  const std::string name = _uklad_nazwa(kand.front().srid);
  print("xyz.uklad_wykryto", {std::string_view(name)});
  if (kand.front().swap) print("xyz.uklad_zamiana");
  return kand.front().swap;
}

}  // namespace vexo_xyz_impl
