#include "console/preview/page.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

#include "console/doubts/range.h"

namespace console {
namespace {

constexpr double kUnitsOfMetre = 10000.0;  // tenths of millimetres in a metre

constexpr double kLongSide = 2970.0;  // A4
constexpr double kShortSide = 2100.0;
constexpr double kMargin = 100.0;
constexpr double kTicks = 50.0;       // room beside the frame for its coordinates
constexpr double kTitle = 250.0;      // room above it
constexpr double kFoot = 210.0;       // and below
constexpr double kRoomInside = 75.0;  // between the frame and the outermost points, for their labels

struct Extent {
  Range x;
  Range y;

  [[nodiscard]] bool is_of_something() const { return x.span() >= 0.0; }
};

// From a fifth to four fifths of the points, along one axis.
template <class Value>
Range inner(std::span<const PicturePoint> points, Value value) {
  constexpr std::size_t kSample = 20000;
  std::vector<double> sample;
  const std::size_t step = std::max<std::size_t>(1, points.size() / kSample);
  for (std::size_t i = 0; i < points.size(); i += step) sample.push_back(value(points[i]));
  const auto at = [&sample](std::size_t rank) {
    const auto place = sample.begin() + static_cast<std::ptrdiff_t>(rank);
    std::nth_element(sample.begin(), place, sample.end());
    return *place;
  };
  const std::size_t last = sample.size() - 1;
  const double low = at(last / 5);
  return {low, at(last - last / 5)};
}

// What the frame is to show: all points but the far ones, should these be few.
Extent extent_of(std::span<const PicturePoint> points) {
  constexpr double kReach = 6.0;        // times the inner extent on each side
  constexpr double kReachAtLeast = 50;  // metres
  constexpr std::size_t kFewOf = 20;
  constexpr std::size_t kFewest = 5;
  const Range x = inner(points, [](const PicturePoint& point) { return point.x; });
  const Range y = inner(points, [](const PicturePoint& point) { return point.y; });
  const double reach = std::max(kReach * std::max(x.span(), y.span()), kReachAtLeast);
  Extent all;
  Extent near;
  std::size_t left_out = 0;
  for (const PicturePoint& point : points) {
    if (point.suspicion == Suspicion::far_away) continue;
    all.x.take(point.x);
    all.y.take(point.y);
    const bool is_near =
        point.x >= x.low - reach && point.x <= x.high + reach && point.y >= y.low - reach && point.y <= y.high + reach;
    left_out += is_near ? 0 : 1;
    if (!is_near) continue;
    near.x.take(point.x);
    near.y.take(point.y);
  }
  if (points.size() < kFewest || left_out > std::max<std::size_t>(1, points.size() / kFewOf)) return all;
  return near.is_of_something() ? near : all;
}

// The scale's N, rounded up to one that people use.
double usual_denominator(double exact) {
  const double power = std::pow(10.0, std::floor(std::log10(exact)));
  for (const double factor : {1.0, 1.25, 1.5, 2.0, 2.5, 3.0, 4.0, 5.0, 6.0, 7.5})
    if (exact <= factor * power * (1 + 1e-9)) return factor * power;
  return 10.0 * power;
}

}  // namespace

double Page::denominator() const { return kUnitsOfMetre / scale; }

Page page_for(std::span<const PicturePoint> points) {
  constexpr double kAlone = 100.0;  // metres around a point that has no extent
  constexpr double kDigits = 1e-9;  // of a coordinate, below which doubles are no longer told apart on a page
  Extent extent = extent_of(points);
  if (!extent.is_of_something()) extent = {{points[0].x, points[0].x}, {points[0].y, points[0].y}};
  Page page;
  page.middle_x = extent.x.low + extent.x.span() / 2;
  page.middle_y = extent.y.low + extent.y.span() / 2;
  const bool is_one_place = extent.x.span() == 0.0 && extent.y.span() == 0.0;
  const double least =
      std::max({is_one_place ? kAlone : 0.0, kDigits * std::abs(page.middle_x), kDigits * std::abs(page.middle_y)});
  double metres_a_unit = std::numeric_limits<double>::infinity();
  for (const auto& [width, height] : {std::pair(kLongSide, kShortSide), std::pair(kShortSide, kLongSide)}) {
    const Box frame = {kMargin + kTicks, kMargin + kTitle, width - kMargin, height - kMargin - kFoot};
    const double needed = std::max({extent.x.span() / (frame.width() - 2 * kRoomInside),
                                    extent.y.span() / (frame.height() - 2 * kRoomInside), least / frame.width()});
    if (needed >= metres_a_unit) continue;
    metres_a_unit = needed;
    page.width = width;
    page.height = height;
    page.frame = frame;
  }
  page.scale = kUnitsOfMetre / usual_denominator(metres_a_unit * kUnitsOfMetre);
  return page;
}

double round_step(double wanted) {
  const double power = std::pow(10.0, std::floor(std::log10(wanted)));
  if (wanted < 2 * power) return power;
  return (wanted < 5 * power ? 2 : 5) * power;
}

std::vector<double> multiples(double step, double low, double high) {
  constexpr std::size_t kMost = 100;
  std::vector<double> all;
  const double first = std::ceil(low / step);
  while (all.size() < kMost) {
    const double at = (first + static_cast<double>(all.size())) * step;
    if (at > high) break;
    all.push_back(at);
  }
  return all;
}

}  // namespace console
