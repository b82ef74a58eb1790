#include "vexo_xyz_impl/command/axes.h"

#include <algorithm>
#include <array>
#include <utility>

#include "vexo_xyz_impl/bindings.h"
#include "vexo_xyz_impl/command/keywords.h"
#include "vexo_xyz_impl/command/place_line.h"
#include "vexo_xyz_impl/crs/angles.h"
#include "vexo_xyz_impl/crs/systems.h"
#include "vexo_xyz_impl/messages.h"

namespace vexo_xyz_impl {
namespace {

using host::AxisOrder;

constexpr std::size_t kReadingsShown = 2;

constexpr std::array kAxisAnswers = {kTak, kZamien};

std::vector<Candidate> readings_of(std::span<const PointRecord> punkty) {
  std::vector<Pair> pary;
  for (const PointRecord& point : punkty.first(std::min(punkty.size(), kDetectionSample)))
    pary.emplace_back(point.x, point.y);
  return _wykryj_uklad(pary);
}

void announce_system(const char* key, const Candidate& candidate) {
  const std::string name = _uklad_nazwa(candidate.srid);
  print(key, {std::string_view(name)});
}

void announce_reading(const Candidate& candidate, const PointRecord& first) {
  const auto [E, N] = candidate.swap ? std::pair(first.y, first.x) : std::pair(first.x, first.y);
  const auto [lat, lon] = _do_geo(E, N, candidate.srid);
  const std::string word = _slowo(candidate.swap ? kZamien : kTak);
  const std::string name = _uklad_nazwa(candidate.srid);
  print("xyz.osie_wiersz", {std::string_view(word), std::string_view(name), degrees(lat), degrees(lon)});
  if (const std::string line = place_line(degrees(lat), degrees(lon)); !line.empty()) command_line().gcutPrintf(line);
  if (host::Foreknowledge* const foreknowledge = bound().host.foreknowledge; foreknowledge != nullptr) {
    const AxisOrder order = candidate.swap ? AxisOrder::north_first : AxisOrder::east_first;
    const std::string lines = foreknowledge->beside_reading(order, candidate.frac);
    if (!lines.empty()) command_line().gcutPrintf(lines);
  }
}

void announce_readings(std::span<const Candidate> kand, const PointRecord& first) {
  for (const Candidate& candidate : kand.first(std::min(kand.size(), kReadingsShown)))
    announce_reading(candidate, first);
}

// Empty when the user cancelled.
std::optional<bool> ask_swap(std::span<const Candidate> kand, const PointRecord& first) {
  print("xyz.osie_niejednoznaczne");
  announce_readings(kand, first);
  const std::string keep = _slowo(kTak);
  const std::string exchange = _slowo(kZamien);
  print("xyz.osie_legenda_tpl", {std::string_view(keep), std::string_view(exchange)});
  const auto answer = _kword(kAxisAnswers, "xyz.prompt_zamien_osie_tpl");
  return answer ? std::optional(*answer == kZamien) : std::nullopt;
}

// What the numbers say where the order is known: it may leave one reading of several, or none.
void announce_beside_known_order(std::span<const Candidate> kand, bool swap, const PointRecord& first) {
  std::vector<Candidate> left;
  std::copy_if(kand.begin(), kand.end(), std::back_inserter(left),
               [swap](auto& reading) { return reading.swap == swap; });
  if (kand.empty()) {
    print("xyz.osie_bez_ukladu");
  } else if (left.empty()) {
    announce_system("xyz.osie_wbrew_liczbom", kand.front());
  } else if (kand.size() == 1) {
    announce_system("xyz.uklad_wykryto", kand.front());
  } else {
    print("xyz.osie_pozostaje");
    announce_readings(left, first);
  }
}

// The order that is known without the numbers, with the user told from where.
std::optional<std::pair<AxisOrder, AxesBy>> known_order(std::optional<AxisOrder> declared) {
  host::Foreknowledge* const foreknowledge = bound().host.foreknowledge;
  if (const auto told = foreknowledge != nullptr ? foreknowledge->axis_order() : std::nullopt) {
    print(*told == AxisOrder::north_first ? "xyz.osie_podane_n" : "xyz.osie_podane_e");
    if (declared && *declared != *told) print("xyz.osie_wbrew_plikowi");
    return std::pair(*told, AxesBy::told);
  }
  if (!declared) return std::nullopt;
  print("xyz.osie_z_pliku");
  return std::pair(*declared, AxesBy::declared);
}

}  // namespace

SettledAxes settle_axes(std::span<const PointRecord> punkty, std::optional<AxisOrder> declared) {
  std::vector<Candidate> kand = readings_of(punkty);
  if (const auto known = known_order(declared)) {
    const bool swap = known->first == AxisOrder::north_first;
    announce_beside_known_order(kand, swap, punkty.front());
    return {swap, known->second, std::move(kand)};
  }
  if (kand.empty()) {
    print("xyz.uklad_nierozpoznany");
    return {false, AxesBy::none_recognised, {}};
  }
  if (kand.size() > 1) {
    const auto swap = ask_swap(kand, punkty.front());
    return {swap.value_or(false), swap ? AxesBy::answered : AxesBy::unconfirmed, std::move(kand)};
  }
  const bool swap = kand.front().swap;
  announce_system("xyz.uklad_wykryto", kand.front());
  if (swap) print("xyz.uklad_zamiana");
  return {swap, AxesBy::found, std::move(kand)};
}

}  // namespace vexo_xyz_impl
