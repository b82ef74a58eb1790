// Doubts about points where no point can be: no numbers, far from all others, coordinates the other way round.
#include <algorithm>
#include <cmath>
#include <span>
#include <utility>
#include <vector>

#include "console/decimals.h"
#include "console/doubts/doubts.h"
#include "console/doubts/range.h"
#include "vexo_xyz_impl/messages.h"

namespace console {
namespace {

using vexo_xyz_impl::PointRecord;

// The middle of the points along one axis, without the outermost fifths of a sample.
template <class Value>
Range middle_of(std::span<const PointRecord> punkty, Value value) {
  constexpr std::size_t kSample = 2000;
  std::vector<double> sample;
  const std::size_t step = std::max<std::size_t>(1, punkty.size() / kSample);
  for (std::size_t i = 0; i < punkty.size(); i += step)
    if (is_finite(punkty[i])) sample.push_back(value(punkty[i]));
  if (sample.empty()) return {0, 0};
  std::sort(sample.begin(), sample.end());
  const std::size_t last = sample.size() - 1;
  return {sample[(last + 4) / 5], sample[last - (last + 4) / 5]};
}

double greater_of(const PointRecord& point) { return std::max(point.x, point.y); }
double lesser_of(const PointRecord& point) { return std::min(point.x, point.y); }

// Points whose coordinates stand the other way round than in most rows: exchanged, they lie among the others.
std::vector<std::size_t> the_other_way_round(std::span<const PointRecord> punkty) {
  constexpr double kClose = 0.2;  // extent of the places beside their distance from where they are mirrored to
  const Range greater = middle_of(punkty, greater_of);
  const Range lesser = middle_of(punkty, lesser_of);
  const double apart = greater.low - lesser.high;
  if (!(std::max(greater.span(), lesser.span()) < kClose * apart)) return {};
  const double reach = kClose * apart;
  const auto is_there = [&](const PointRecord& point) {
    return std::abs(greater_of(point) - greater.low) < 2 * reach && std::abs(lesser_of(point) - lesser.low) < 2 * reach;
  };
  std::vector<std::size_t> rising;
  std::vector<std::size_t> falling;
  for (std::size_t i = 0; i < punkty.size(); ++i)
    if (is_there(punkty[i])) (punkty[i].x < punkty[i].y ? rising : falling).push_back(i);
  return rising.size() < falling.size() ? rising : falling;
}

// A tenth of what all others have at least, or ten times what they have at most: another column's value.
bool is_wild(double value, const Range& others) {
  constexpr double kTimes = 10.0;
  if (others.low <= 0.0) return false;
  return std::abs(value) < others.low / kTimes || std::abs(value) > others.high * kTimes;
}

// Points far from the middle of all: few of them wherever they are, more where they are nowhere near any survey.
std::vector<std::size_t> far_from_the_middle(std::span<const PointRecord> punkty) {
  constexpr double kFar = 20.0;          // times the extent of the middle
  constexpr double kFarInMetres = 1000;  // and no less
  constexpr std::size_t kFewOf = 20;     // of so many points one; more than that is another site
  constexpr std::size_t kSomeOf = 4;
  const Range x = middle_of(punkty, [](const PointRecord& point) { return point.x; });
  const Range y = middle_of(punkty, [](const PointRecord& point) { return point.y; });
  const double reach = std::max(kFar * std::max(x.span(), y.span()), kFarInMetres);
  std::vector<std::size_t> far;
  std::size_t wild = 0;
  for (std::size_t i = 0; i < punkty.size(); ++i) {
    const PointRecord& point = punkty[i];
    const bool is_far =
        point.x < x.low - reach || point.x > x.high + reach || point.y < y.low - reach || point.y > y.high + reach;
    if (!is_far || !is_finite(point)) continue;
    if (far.size() * kSomeOf > punkty.size()) return {};
    far.push_back(i);
    wild += is_wild(point.x, x) || is_wild(point.y, y) ? 1 : 0;
  }
  const bool few = far.size() <= std::max<std::size_t>(1, punkty.size() / kFewOf);
  return few || wild == far.size() ? far : std::vector<std::size_t>();
}

}  // namespace

std::optional<Doubt> doubt_not_finite(Evidence& evidence) {
  const auto& punkty = evidence.seen.read.punkty;
  std::vector<std::size_t> lines;
  for (std::size_t i = 0; i < punkty.size(); ++i)
    if (!is_finite(punkty[i])) lines.push_back(evidence.places.line_of_point(i));
  return doubt_at("not_finite", "konsola.watp_nieskonczone", std::move(lines));
}

std::optional<Doubt> doubt_far_away(Evidence& evidence) {
  constexpr std::size_t kFewest = 5;  // of fewer points nothing is the rule
  const auto& punkty = evidence.seen.read.punkty;
  if (punkty.size() < kFewest) return std::nullopt;
  const auto doubt = [&evidence](const char* key, std::span<const std::size_t> points) {
    return doubt_at("far_away", key, lines_of(evidence.places, points));
  };
  const auto exchanged = doubt("konsola.watp_odwrotnie", the_other_way_round(punkty));
  return exchanged ? exchanged : doubt("konsola.watp_daleko", far_from_the_middle(punkty));
}

bool is_far_from_drawing(double distance) {
  constexpr double kFartherThanSites = 20000.0;  // metres
  return distance > kFartherThanSites;
}

std::optional<Doubt> doubt_far_from_drawing(Evidence& evidence) {
  if (!evidence.from_drawing || !is_far_from_drawing(*evidence.from_drawing)) return std::nullopt;
  const std::string distance = distance_text(*evidence.from_drawing);
  return Doubt{"far_from_drawing", vexo_xyz_impl::filled("konsola.watp_od_rysunku", {std::string_view(distance)}), {}};
}

}  // namespace console
