#include "vexo_xyz_impl/crs/detection.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "vexo_xyz_impl/crs/systems.h"
#include "vexo_xyz_impl/crs/transverse_mercator.h"
#include "vexo_xyz_impl/failure.h"
#include "vexo_xyz_impl/host/bindings.h"

namespace vexo_xyz_impl {
namespace {

constexpr double kSmallestShare = 0.9;

bool inside(const std::pair<double, double>& bounds, double value) {
  return bounds.first <= value && value <= bounds.second;  // false for a nan
}

std::optional<std::pair<double, double>> try_do_geo(double E, double N, int srid) {
  try {
    return _do_geo(E, N, srid);
  } catch (const ValueError&) {
  } catch (const OverflowError&) {
  } catch (const ZeroDivisionError&) {
  }
  return std::nullopt;
}

double plausible_share(std::span<const std::pair<double, double>> probki, int srid, bool swap) {
  const auto ok = std::count_if(probki.begin(), probki.end(), [&](const auto& pair) {
    return swap ? _sensowny(pair.second, pair.first, srid) : _sensowny(pair.first, pair.second, srid);
  });
  return static_cast<double>(ok) / static_cast<double>(probki.size());
}

}  // namespace

bool _sensowny(double E, double N, int srid) {
  const host::CoordinateSystem& u = system_record(srid);
  const bool exempt = _D->ZONE_EXEMPT.contains(srid);
  std::optional<double> lon0;
  if (u.tag != kStereo70Tag) {
    const ZoneParameters zone = unpack_zone(u);
    lon0 = zone.lon0;
    // Before any projection: a wrong zone costs no trigonometry.
    if (!exempt && _D->EASTING_HALF && std::abs(E - zone.FE) > *_D->EASTING_HALF) return false;
  }
  const auto geographic = try_do_geo(E, N, srid);
  if (!geographic) return false;
  const double la = degrees(geographic->first);
  const double lo = degrees(geographic->second);
  if (!inside(_D->KRAJ_LAT, la) || !inside(_D->KRAJ_LON, lo)) return false;
  if (exempt || !lon0 || !_D->LON_HALF) return true;
  return !(std::abs(lo - *lon0) > *_D->LON_HALF);
}

std::string _uklad_nazwa(int srid) {
  const auto named = _D->NAZWY.find(srid);
  return named != _D->NAZWY.end() ? named->second : "EPSG:" + std::to_string(srid);
}

std::vector<Candidate> _wykryj_uklad(std::span<const std::pair<double, double>> pary) {
  const auto probki = pary.first(std::min(pary.size(), kDetectionSample));
  std::vector<Candidate> out;
  if (probki.empty()) return out;
  for (const int srid : _D->KOLEJNOSC) {
    for (const bool swap : {false, true}) {
      const double frac = plausible_share(probki, srid, swap);
      if (frac >= kSmallestShare) out.push_back({srid, swap, frac});
    }
  }
  std::stable_sort(out.begin(), out.end(), [](const auto& a, const auto& b) { return a.frac > b.frac; });
  return out;
}

}  // namespace vexo_xyz_impl
