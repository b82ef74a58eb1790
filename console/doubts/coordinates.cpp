// Doubts about where the points lie: degrees taken for metres, no numbers, points far from all others.
#include <algorithm>
#include <cmath>
#include <limits>
#include <span>
#include <utility>
#include <vector>

#include "console/account/account_lines.h"
#include "console/doubts/doubts.h"
#include "intake/cell_number.h"
#include "vexo_xyz_impl/messages.h"

namespace console {
namespace {

using vexo_xyz_impl::filled;
using vexo_xyz_impl::PointRecord;
using vexo_xyz_impl::Row;

struct Range {
  double low = std::numeric_limits<double>::infinity();
  double high = -std::numeric_limits<double>::infinity();

  void take(double value) {
    low = std::min(low, value);
    high = std::max(high, value);
  }
  [[nodiscard]] double span() const { return high - low; }
  [[nodiscard]] bool within(double from, double to) const { return low >= from && high <= to; }
  /// How wide it is beside how far from 0 it lies: of a place's degrees little, of metres around an origin 1 and more.
  [[nodiscard]] double spread() const { return span() / std::max(std::abs(low), std::abs(high)); }
};

struct Extent {
  Range x;
  Range y;
  Range z;
};

bool is_finite(const PointRecord& point) {
  return std::isfinite(point.x) && std::isfinite(point.y) && std::isfinite(point.z);
}

Extent extent_of(std::span<const PointRecord> punkty) {
  Extent extent;
  for (const PointRecord& point : punkty) {
    if (!is_finite(point)) continue;
    extent.x.take(point.x);
    extent.y.take(point.y);
    extent.z.take(point.z);
  }
  return extent;
}

// Whether nearly all of the first rows have at least so many decimals in both coordinates.
bool have_decimals(std::span<const Row> dane, std::size_t x, std::size_t fewest) {
  constexpr std::size_t kSample = 200;
  constexpr double kNearly = 0.8;
  const auto sample = dane.first(std::min(dane.size(), kSample));
  const auto fine = std::count_if(sample.begin(), sample.end(), [&](Row row) {
    return row.size() > x + 1 && intake::decimals_of(row[x]) >= fewest && intake::decimals_of(row[x + 1]) >= fewest;
  });
  return static_cast<double>(fine) >= kNearly * static_cast<double>(sample.size());
}

bool named_degrees(const std::optional<Header>& header, std::size_t x) {
  if (!header || header->names.size() < x + 2) return false;
  const auto is_angle = [](intake::Named name) {
    return name == intake::Named::latitude || name == intake::Named::longitude;
  };
  return is_angle(header->names[x]) && is_angle(header->names[x + 1]);
}

bool in_europe(const Range& latitude, const Range& longitude) {
  return latitude.within(35, 72) && longitude.within(-12, 45);
}

bool around_the_globe(const Range& latitude, const Range& longitude) {
  constexpr double kManyDegrees = 60;
  constexpr double kHalfRound = 200;
  return latitude.span() > kManyDegrees && longitude.span() > kHalfRound;
}

// Whether heights span far more than the points do in plan: metres over degrees.
bool rise_beyond_their_extent(const Extent& extent) {
  constexpr double kSteep = 10.0;
  constexpr double kAwayFromOrigin = 5.0;  // a hole bored at the origin of its own system is steep too
  const double in_plan = std::max(extent.x.span(), extent.y.span());
  const double away = std::max(std::abs(extent.x.high), std::abs(extent.y.high));
  return in_plan > 0.0 && extent.z.span() > kSteep * in_plan && away > kAwayFromOrigin;
}

// Positions as degrees: on the globe, and a place's rather than a drawing's around its origin. The fewer decimals there
// are, the more it takes: metres have three, of degrees five are a metre.
bool look_like_degrees(const Extent& extent, std::span<const Row> dane, std::size_t x) {
  constexpr double kPlace = 0.25;   // spread of the degrees of a region
  constexpr double kCountry = 0.5;  // of a large country
  const Range& a = extent.x;
  const Range& b = extent.y;
  const bool latitude_second = a.within(-180, 180) && b.within(-90, 90);
  const bool latitude_first = a.within(-90, 90) && b.within(-180, 180);
  if (!latitude_first && !latitude_second) return false;
  if (have_decimals(dane, x, 3) && rise_beyond_their_extent(extent)) return true;
  const double narrower = std::min(a.spread(), b.spread());
  if (have_decimals(dane, x, 5)) {
    const bool global = (latitude_first && around_the_globe(a, b)) || (latitude_second && around_the_globe(b, a));
    return narrower < kCountry || global;
  }
  if (!in_europe(a, b) && !in_europe(b, a)) return false;
  if (have_decimals(dane, x, 4)) return narrower < kCountry;
  return have_decimals(dane, x, 3) && std::max(a.spread(), b.spread()) < kPlace;
}

// The middle of the points along one axis, without the outermost fifths of a sample.
Range middle_of(std::span<const PointRecord> punkty, double PointRecord::*axis) {
  constexpr std::size_t kSample = 2000;
  std::vector<double> sample;
  const std::size_t step = std::max<std::size_t>(1, punkty.size() / kSample);
  for (std::size_t i = 0; i < punkty.size(); i += step)
    if (is_finite(punkty[i])) sample.push_back(punkty[i].*axis);
  if (sample.empty()) return {0, 0};
  std::sort(sample.begin(), sample.end());
  const std::size_t last = sample.size() - 1;
  return {sample[(last + 4) / 5], sample[last - (last + 4) / 5]};
}

// Points whose coordinates stand the other way round than in most rows: exchanged, they lie among the others.
std::vector<std::size_t> the_other_way_round(std::span<const PointRecord> punkty) {
  constexpr double kClose = 0.2;  // extent of the places beside their distance from where they are mirrored to
  Range greater;
  Range lesser;
  Range apart;
  for (const PointRecord& point : punkty) {
    greater.take(std::max(point.x, point.y));
    lesser.take(std::min(point.x, point.y));
    apart.take(std::abs(point.x - point.y));
  }
  if (!(std::max(greater.span(), lesser.span()) < kClose * apart.low)) return {};
  std::vector<std::size_t> rising;
  std::vector<std::size_t> falling;
  for (std::size_t i = 0; i < punkty.size(); ++i) (punkty[i].x < punkty[i].y ? rising : falling).push_back(i);
  return rising.size() < falling.size() ? rising : falling;
}

std::optional<Doubt> doubt_the_other_way_round(Evidence& evidence) {
  std::vector<std::size_t> lines;
  for (const std::size_t point : the_other_way_round(evidence.seen.read.punkty))
    lines.push_back(evidence.places.line_of_point(point));
  if (lines.empty()) return std::nullopt;
  const std::string places = listed(lines);
  return Doubt{"far_away",
               filled("konsola.watp_odwrotnie", {static_cast<long long>(lines.size()), std::string_view(places)}),
               std::move(lines)};
}

}  // namespace

std::optional<Doubt> doubt_degrees(Evidence& evidence) {
  const auto& seen = evidence.seen;
  const std::size_t x = x_column(*seen.verdict.fmt);
  const Extent extent = extent_of(seen.read.punkty);
  if (!(extent.x.within(-180, 180) && extent.y.within(-180, 180))) return std::nullopt;
  if (!named_degrees(evidence.header, x) && !look_like_degrees(extent, seen.verdict.dane, x)) return std::nullopt;
  const PointRecord& first = seen.read.punkty.front();
  const auto line = evidence.places.line_of_point(0);
  return Doubt{"degrees", filled("konsola.watp_stopnie", {first.x, first.y, static_cast<long long>(line)}), {}};
}

std::optional<Doubt> doubt_not_finite(Evidence& evidence) {
  const auto& punkty = evidence.seen.read.punkty;
  std::vector<std::size_t> lines;
  for (std::size_t i = 0; i < punkty.size(); ++i)
    if (!is_finite(punkty[i])) lines.push_back(evidence.places.line_of_point(i));
  if (lines.empty()) return std::nullopt;
  const std::string places = listed(lines);
  return Doubt{"not_finite",
               filled("konsola.watp_nieskonczone", {static_cast<long long>(lines.size()), std::string_view(places)}),
               std::move(lines)};
}

std::optional<Doubt> doubt_far_away(Evidence& evidence) {
  constexpr std::size_t kFewest = 5;      // of fewer points nothing is the rule
  constexpr double kFar = 20.0;           // times the extent of the middle
  constexpr double kFarInMetres = 1000;   // and no less
  constexpr std::size_t kMostShare = 20;  // of so many points one; more than that is another site
  const auto& punkty = evidence.seen.read.punkty;
  if (punkty.size() < kFewest) return std::nullopt;
  if (auto doubt = doubt_the_other_way_round(evidence)) return doubt;
  const Range x = middle_of(punkty, &PointRecord::x);
  const Range y = middle_of(punkty, &PointRecord::y);
  const double reach = std::max(kFar * std::max(x.span(), y.span()), kFarInMetres);
  const auto is_far = [&](const PointRecord& point) {
    return point.x < x.low - reach || point.x > x.high + reach || point.y < y.low - reach || point.y > y.high + reach;
  };
  const auto far = static_cast<std::size_t>(std::count_if(punkty.begin(), punkty.end(), is_far));
  if (far == 0 || far > std::max<std::size_t>(1, punkty.size() / kMostShare)) return std::nullopt;
  std::vector<std::size_t> lines;
  for (std::size_t i = 0; i < punkty.size(); ++i)
    if (is_far(punkty[i]) && is_finite(punkty[i])) lines.push_back(evidence.places.line_of_point(i));
  if (lines.empty()) return std::nullopt;
  const std::string places = listed(lines);
  return Doubt{"far_away",
               filled("konsola.watp_daleko", {static_cast<long long>(lines.size()), std::string_view(places)}),
               std::move(lines)};
}

}  // namespace console
