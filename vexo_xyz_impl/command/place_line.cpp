#include "vexo_xyz_impl/command/place_line.h"

#include <array>
#include <cmath>
#include <exception>
#include <string_view>
#include <vector>

#include "vexo_xyz_impl/messages.h"

namespace vexo_xyz_impl {
namespace {

constexpr double kWithin = 1.0;           // km; nearer a position is in the place
constexpr double kFarthest = 20'100.0;    // km; no two places of the earth are farther from each other
constexpr double kAnyBearing = 36'000.0;  // degrees

// Clockwise from north.
constexpr std::array kDirections = {"xyz.kierunek_n", "xyz.kierunek_ne", "xyz.kierunek_e", "xyz.kierunek_se",
                                    "xyz.kierunek_s", "xyz.kierunek_sw", "xyz.kierunek_w", "xyz.kierunek_nw"};

// The catalogue may be an older one of a script's: a key is no help to anybody.
std::string text_or_nothing(std::string_view key, const std::vector<TemplateValue>& values) {
  const std::string tpl = T(key);
  return tpl == key ? std::string() : text::try_fill(tpl, values).value_or(std::string());
}

std::string line_of(const host::NearbyPlace& place) {
  if (!(place.distance >= 0.0 && place.distance < kFarthest && std::abs(place.bearing) < kAnyBearing)) return {};
  const std::string_view name = place.name;
  if (place.distance < kWithin) return text_or_nothing("xyz.osie_miejsce", {name});
  const long eighths = std::lround(place.bearing / 45.0) % 8;
  const std::string direction = text_or_nothing(kDirections[static_cast<std::size_t>((eighths + 8) % 8)], {});
  if (direction.empty()) return {};
  return text_or_nothing("xyz.osie_obok_miejsca",
                         {static_cast<long long>(std::lround(place.distance)), std::string_view(direction), name});
}

}  // namespace

std::string place_line(double lat, double lon) {
  try {
    const auto places = host::load_sibling<host::Places>(bound().host.siblings, "vexo_miejsca");
    const auto place = places->najblizsze_miejsce(lat, lon);
    return place ? line_of(*place) : std::string();
  } catch (const std::exception&) {
    return {};
  }
}

}  // namespace vexo_xyz_impl
