#include "siblings/vexo_miejsca/miejsca.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <span>

namespace vexo_miejsca {
namespace {

using vexo_xyz_impl::host::NearbyPlace;

constexpr double kFarthest = 150.0;     // km; farther off a place says nothing
constexpr double kHardlyFarther = 1.1;  // times the least distance
constexpr double kEarth = 6371.0088;    // mean radius, km
constexpr double kKilometresPerDegree = kEarth * std::numbers::pi / 180.0;

// The name stands in the entry: a pointer to it would have to be put right at every start.
struct Place {
  float lat;  // degrees, as is lon
  float lon;
  unsigned population;
  char name[32];  // NOLINT(modernize-avoid-c-arrays): initialised by a literal
};

// NOLINTBEGIN(modernize-avoid-c-arrays): std::array takes long to make of thousands
constexpr Place kPoland[] = {
#include "places_PL.inc"
};
constexpr Place kGermany[] = {
#include "places_DE.inc"
};
constexpr Place kRomania[] = {
#include "places_RO.inc"
};
// NOLINTEND(modernize-avoid-c-arrays)

constexpr bool is_sorted(std::span<const Place> places) {
  return std::is_sorted(places.begin(), places.end(), [](const Place& a, const Place& b) { return a.lat < b.lat; });
}
static_assert(is_sorted(kPoland) && is_sorted(kGermany) && is_sorted(kRomania));

std::span<const Place> places_of(std::string_view market) {
  if (market == "PL") return kPoland;
  if (market == "DE") return kGermany;
  if (market == "RO") return kRomania;
  return {};
}

double radians(double degrees) { return degrees * (std::numbers::pi / 180.0); }

double distance(const Place& place, double lat, double lon) {
  const double half_north = std::sin(radians(lat - place.lat) / 2.0);
  const double half_east = std::sin(radians(lon - place.lon) / 2.0);
  const double h =
      half_north * half_north + std::cos(radians(lat)) * std::cos(radians(place.lat)) * half_east * half_east;
  return 2.0 * kEarth * std::asin(std::min(1.0, std::sqrt(h)));
}

// At the place's end of the line, degrees clockwise from north.
double bearing(const Place& place, double lat, double lon) {
  const double east = std::sin(radians(lon - place.lon)) * std::cos(radians(lat));
  const double north = std::cos(radians(place.lat)) * std::sin(radians(lat)) -
                       std::sin(radians(place.lat)) * std::cos(radians(lat)) * std::cos(radians(lon - place.lon));
  const double angle = std::atan2(east, north) * (180.0 / std::numbers::pi);
  return angle < 0.0 ? angle + 360.0 : angle;
}

// Visits the places from a latitude to both sides, until it alone takes them out of `reach`, in km, which may shrink.
template <class Visit>
void visit_within(const double& reach, std::span<const Place> places, double lat, Visit visit) {
  const auto visited = [&](const Place& place) {
    if (std::abs(lat - place.lat) * kKilometresPerDegree > reach) return false;
    visit(place);
    return true;
  };
  const auto middle = std::partition_point(places.begin(), places.end(), [lat](const Place& p) { return p.lat < lat; });
  static_cast<void>(std::all_of(middle, places.end(), visited));
  static_cast<void>(std::all_of(std::make_reverse_iterator(middle), places.rend(), visited));
}

}  // namespace

std::optional<NearbyPlace> nearest_place(std::string_view market, double lat, double lon) {
  if (!std::isfinite(lat) || !std::isfinite(lon)) return std::nullopt;
  const std::span<const Place> places = places_of(market);
  double least = kFarthest;
  visit_within(least, places, lat, [&](const Place& p) { least = std::min(least, distance(p, lat, lon)); });

  const double reach = std::min(kFarthest, least * kHardlyFarther);
  const Place* best = nullptr;
  visit_within(reach, places, lat, [&](const Place& p) {
    const bool is_known_better = best == nullptr || p.population > best->population;
    if (is_known_better && distance(p, lat, lon) <= reach) best = &p;
  });
  if (best == nullptr) return std::nullopt;
  return NearbyPlace{best->name, distance(*best, lat, lon), bearing(*best, lat, lon)};
}

}  // namespace vexo_miejsca
