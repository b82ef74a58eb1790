// Doubts about coordinates that are degrees: decimal ones, in columns of minutes and seconds, or with these in one
// cell.
#include <algorithm>
#include <cmath>
#include <span>

#include "console/doubts/doubts.h"
#include "console/doubts/range.h"
#include "intake/cell_number.h"
#include "vexo_xyz_impl/messages.h"
#include "vexo_xyz_impl/table/numbers.h"

namespace console {
namespace {

using vexo_xyz_impl::filled;
using vexo_xyz_impl::PointRecord;
using vexo_xyz_impl::Row;

struct Extent {
  Range x;
  Range y;
  Range z;
};

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

// Whether heights span far more than the points do in plan, as on the way of an aeroplane: metres over degrees.
bool rise_beyond_their_extent(const Extent& extent) {
  constexpr double kSteep = 100.0;  // shafts and chimneys are steep too
  constexpr double kWide = 5.0;
  const double in_plan = std::max(extent.x.span(), extent.y.span());
  return in_plan > kWide && extent.z.span() > kSteep * in_plan;
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

bool is_whole_below(std::string_view cell, double limit) {
  const auto number = vexo_xyz_impl::parse_number(cell);
  return number && *number == std::floor(*number) && std::abs(*number) <= limit;
}

// Degrees, minutes and seconds in columns of their own, twice.
bool holds_minutes_and_seconds(Row row, std::size_t x) {
  constexpr std::size_t kColumns = 6;
  constexpr double kDegrees = 180;
  constexpr double kSixty = 60;
  if (row.size() < x + kColumns) return false;
  const auto is_angle = [&](std::size_t at) {
    const auto seconds = vexo_xyz_impl::parse_number(row[at + 2]);
    return is_whole_below(row[at], kDegrees) && is_whole_below(row[at + 1], kSixty - 1) && seconds && *seconds >= 0.0 &&
           *seconds < kSixty;
  };
  return is_angle(x) && is_angle(x + 3);
}

// Degrees and minutes with a blank between them, which elsewhere parts thousands: 50 13.115.
bool parts_minutes(std::string_view cell) {
  const std::size_t blank = cell.find(' ');
  if (blank == std::string_view::npos || blank == 0) return false;
  const std::size_t digits = std::min(cell.find_first_not_of("0123456789", blank + 1), cell.size()) - blank - 1;
  return digits == 1 || digits == 2;
}

bool are_parted(std::span<const Row> dane, std::size_t x) {
  constexpr std::size_t kSample = 200;
  constexpr std::size_t kFewest = 3;  // of fewer rows nothing is the rule
  const auto sample = dane.first(std::min(dane.size(), kSample));
  return sample.size() >= kFewest && std::all_of(sample.begin(), sample.end(), [x](Row row) {
           if (holds_minutes_and_seconds(row, x)) return true;
           return row.size() > x + 1 && parts_minutes(row[x]) && parts_minutes(row[x + 1]);
         });
}

}  // namespace

std::optional<Doubt> doubt_degrees(Evidence& evidence) {
  const auto& seen = evidence.seen;
  const std::size_t x = x_column(*seen.verdict.fmt);
  const Extent extent = extent_of(seen.read.punkty);
  const bool on_globe = extent.x.within(-180, 180) && extent.y.within(-180, 180);
  const bool decimal =
      on_globe && (named_degrees(evidence.header, x) || look_like_degrees(extent, seen.verdict.dane, x));
  if (!decimal && !are_parted(seen.verdict.dane, x)) return std::nullopt;
  const PointRecord& first = seen.read.punkty.front();
  const auto line = evidence.places.line_of_point(0);
  return Doubt{"degrees", filled("konsola.watp_stopnie", {first.x, first.y, static_cast<long long>(line)}), {}};
}

}  // namespace console
