#include "vexo_xyz_impl/crs/detection.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "vexo_xyz_impl/bindings.h"
#include "vexo_xyz_impl/crs/angles.h"
#include "vexo_xyz_impl/crs/systems.h"
#include "vexo_xyz_impl/failure.h"

namespace vexo_xyz_impl {
namespace {

constexpr double kSmallestShare = 0.9;

bool inside(const std::pair<double, double>& bounds, double value) {
  return bounds.first <= value && value <= bounds.second;  // false for a nan
}

// Whether numbers are at fault rather than the market or the projection itself.
bool is_about_numbers(const Failure& failure) {
  return failure.is("ValueError") || failure.is("OverflowError") || failure.is("ZeroDivisionError");
}

std::optional<std::pair<double, double>> try_do_geo(double E, double N, int srid) {
  try {
    return _do_geo(E, N, srid);
  } catch (const Failure& failure) {
    if (!is_about_numbers(failure)) throw;
    return std::nullopt;
  }
}

double plausible_share(std::span<const Pair> probki, int srid, bool swap) {
  const auto ok = std::count_if(probki.begin(), probki.end(), [&](const auto& pair) {
    return swap ? _sensowny(pair.second, pair.first, srid) : _sensowny(pair.first, pair.second, srid);
  });
  return static_cast<double>(ok) / static_cast<double>(probki.size());
}

}  // namespace

bool _sensowny(double E, double N, int srid) {
  const auto zone = _D->UKLADY(srid);
  const bool exempt = _D->ZONE_EXEMPT(srid);
  if (zone && !exempt) {
    // Before any projection: a wrong zone costs no trigonometry.
    const auto half = _D->EASTING_HALF();
    if (half && std::abs(E - zone->FE) > *half) return false;
  }
  const auto geographic = try_do_geo(E, N, srid);
  if (!geographic) return false;
  const double la = degrees(geographic->first);
  const double lo = degrees(geographic->second);
  if (!inside(_D->KRAJ_LAT(), la) || !inside(_D->KRAJ_LON(), lo)) return false;
  if (exempt || !zone) return true;
  const auto half = _D->LON_HALF();
  return !(half && std::abs(lo - zone->lon0) > *half);
}

std::vector<Candidate> _wykryj_uklad(std::span<const Pair> pary) {
  const auto probki = pary.first(std::min(pary.size(), kDetectionSample));
  std::vector<Candidate> out;
  if (probki.empty()) return out;
  // The market may be a script's, and is asked some thousand times.
  with_lock([&] {
    for (const int srid : _D->KOLEJNOSC()) {
      for (const bool swap : {false, true}) {
        const double frac = plausible_share(probki, srid, swap);
        if (frac >= kSmallestShare) out.push_back({srid, swap, frac});
      }
    }
  });
  std::stable_sort(out.begin(), out.end(), [](const auto& a, const auto& b) { return a.frac > b.frac; });
  return out;
}

}  // namespace vexo_xyz_impl
