// The formulas stand as published, a line each, evaluated left to right; contraction to fused operations is off for
// the whole project. Departures: powers from n^3 on go through std::pow and n^2 is a product, which fixes the last bit.
#include "vexo_xyz_impl/crs/transverse_mercator.h"

#include <cmath>
#include <cstddef>

#include "vexo_xyz_impl/crs/angles.h"
#include "vexo_xyz_impl/failure.h"

namespace vexo_xyz_impl {
namespace {

// Elementary functions that fail where IEEE would go on with a nan or an infinity made from nothing. The failures stand
// apart, which leaves the functions small enough to be expanded in place.

[[noreturn]] void fail_at_zero_scale() {
  throw ZeroDivisionError("division by zero: the scale k0 of a coordinate system is 0");
}
[[noreturn]] void fail_at_infinite_angle() {
  throw ValueError("the sine or cosine of an infinite angle is not defined");
}
[[noreturn]] void fail_at_overflow() { throw OverflowError("a hyperbolic function of the easting overflows"); }

double divide(double a, double b) {
  if (b == 0.0) fail_at_zero_scale();
  return a / b;
}

struct SineAndCosine {
  double sine;
  double cosine;
};

// Side by side, so that the compiler makes one call of the two, which costs hardly more than one and, with the C
// libraries that the tests run on, has the same bits.
SineAndCosine circular(double angle) {
  if (std::isinf(angle)) fail_at_infinite_angle();
  return {std::sin(angle), std::cos(angle)};
}

double unless_overflown(double value, double x) {
  if (std::isinf(value) && !std::isinf(x)) fail_at_overflow();
  return value;
}

double hyperbolic_sine(double x) { return unless_overflown(std::sinh(x), x); }
double hyperbolic_cosine(double x) { return unless_overflown(std::cosh(x), x); }

// To [-1, 1]; a nan becomes 1.
double clamp_ratio(double ratio) {
  const double below = ratio < 1.0 ? ratio : 1.0;
  return below > -1.0 ? below : -1.0;
}

const SeriesCoefficients kSeries = _wspolczynniki();

}  // namespace

SeriesCoefficients _wspolczynniki() {
  const double n = _F_GRS80 / (2.0 - _F_GRS80);
  const double n2 = n * n;
  const double n3 = std::pow(n, 3);
  const double n4 = std::pow(n, 4);
  const double n5 = std::pow(n, 5);
  const double n6 = std::pow(n, 6);
  const double A = (_A_GRS80 / (1.0 + n)) * (1.0 + n2 / 4.0 + n4 / 64.0 + n6 / 256.0);
  return {
      A,
      {
          n / 2.0 - 2.0 * n2 / 3.0 + 37.0 * n3 / 96.0 - n4 / 360.0 - 81.0 * n5 / 512.0,
          n2 / 48.0 + n3 / 15.0 - 437.0 * n4 / 1440.0 + 46.0 * n5 / 105.0,
          17.0 * n3 / 480.0 - 37.0 * n4 / 840.0 - 209.0 * n5 / 4480.0,
          4397.0 * n4 / 161280.0 - 11.0 * n5 / 504.0,
          4583.0 * n5 / 161280.0,
      },
      {
          2.0 * n - 2.0 * n2 / 3.0 - 2.0 * n3 + 116.0 * n4 / 45.0 + 26.0 * n5 / 45.0,
          7.0 * n2 / 3.0 - 8.0 * n3 / 5.0 - 227.0 * n4 / 45.0 + 2704.0 * n5 / 315.0,
          56.0 * n3 / 15.0 - 136.0 * n4 / 35.0 - 1262.0 * n5 / 105.0,
          4279.0 * n4 / 630.0 - 332.0 * n5 / 35.0,
          4174.0 * n5 / 315.0,
      },
  };
}

const double _A_K = kSeries.A;
const std::array<double, 5> _BETA = kSeries.beta;
const std::array<double, 5> _DELTA = kSeries.delta;

std::pair<double, double> inverse(const host::ZoneParameters& zone, double E, double N) {
  const auto [lon0, k0, FE, FN] = zone;
  const double xi = divide(N - FN, k0 * _A_K);
  const double eta = divide(E - FE, k0 * _A_K);

  double xi_prime = xi;
  double eta_prime = eta;
  for (std::size_t j = 1; j <= _BETA.size(); ++j) {
    const double b = _BETA[j - 1];
    const double twice_j = 2.0 * static_cast<double>(j);
    // The circular functions first: where both kinds fail, theirs is the one reported.
    const auto [sin_xi, cos_xi] = circular(twice_j * xi);
    xi_prime -= b * sin_xi * hyperbolic_cosine(twice_j * eta);
    eta_prime -= b * cos_xi * hyperbolic_sine(twice_j * eta);
  }

  const auto [sin_xi_prime, cos_xi_prime] = circular(xi_prime);
  const double chi = std::asin(clamp_ratio(sin_xi_prime / hyperbolic_cosine(eta_prime)));
  double lat = chi;
  for (std::size_t j = 1; j <= _DELTA.size(); ++j) {
    lat += _DELTA[j - 1] * std::sin(2.0 * static_cast<double>(j) * chi);  // an asin is finite
  }
  const double lon = radians(lon0) + std::atan2(hyperbolic_sine(eta_prime), cos_xi_prime);
  return {lat, lon};
}

}  // namespace vexo_xyz_impl
