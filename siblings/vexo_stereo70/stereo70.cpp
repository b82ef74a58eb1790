#include "siblings/vexo_stereo70/stereo70.h"

#include <cmath>
#include <numbers>

namespace vexo_stereo70 {
namespace {

constexpr double kRadiansPerDegree = std::numbers::pi / 180.0;

// Krassowsky 1940 and the parameters of EPSG:3844.
constexpr double kSemiMajorAxis = 6378245.0;  // metres
constexpr double kFlattening = 1.0 / 298.3;
constexpr double kLatitudeOfOrigin = 46.0 * kRadiansPerDegree;
constexpr double kLongitudeOfOrigin = 25.0 * kRadiansPerDegree;
constexpr double kScaleAtOrigin = 0.99975;
constexpr double kFalseEasting = 500000.0;   // metres
constexpr double kFalseNorthing = 500000.0;  // metres

constexpr int kMostIterations = 15;   // three are enough within the country
constexpr double kConverged = 1e-15;  // radians

// The conformal sphere at the origin.
struct Sphere {
  double e2;    // first eccentricity squared
  double e;     // first eccentricity
  double R;     // radius, metres
  double n;     // exponent of the conformal mapping
  double c;     // constant of the conformal mapping
  double chi0;  // conformal latitude of the origin
};

Sphere conformal_sphere() {
  const double e2 = kFlattening * (2.0 - kFlattening);
  const double e = std::sqrt(e2);
  const double sin0 = std::sin(kLatitudeOfOrigin);
  const double cos0 = std::cos(kLatitudeOfOrigin);
  const double w2 = 1.0 - e2 * sin0 * sin0;
  const double rho0 = kSemiMajorAxis * (1.0 - e2) / (w2 * std::sqrt(w2));
  const double nu0 = kSemiMajorAxis / std::sqrt(w2);
  const double n = std::sqrt(1.0 + e2 * std::pow(cos0, 4) / (1.0 - e2));
  const double s1 = (1.0 + sin0) / (1.0 - sin0);
  const double s2 = (1.0 - e * sin0) / (1.0 + e * sin0);
  const double w1 = std::pow(s1 * std::pow(s2, e), n);
  const double sin_chi0_of_w1 = (w1 - 1.0) / (w1 + 1.0);
  const double c = (n + sin0) * (1.0 - sin_chi0_of_w1) / ((n - sin0) * (1.0 + sin_chi0_of_w1));
  const double w = c * w1;
  return {e2, e, std::sqrt(rho0 * nu0), n, c, std::asin((w - 1.0) / (w + 1.0))};
}

double isometric_latitude(double lat, double e) {
  const double e_sin = e * std::sin(lat);
  return std::log(std::tan(lat / 2.0 + std::numbers::pi / 4.0) * std::pow((1.0 - e_sin) / (1.0 + e_sin), e / 2.0));
}

double geodetic_latitude(double chi, const Sphere& sphere) {
  const double sin_chi = std::sin(chi);
  const double psi = 0.5 * std::log((1.0 + sin_chi) / (sphere.c * (1.0 - sin_chi))) / sphere.n;
  double lat = 2.0 * std::atan(std::exp(psi)) - std::numbers::pi / 2.0;
  for (int i = 0; i < kMostIterations; ++i) {
    const double sin_lat = std::sin(lat);
    const double step = (isometric_latitude(lat, sphere.e) - psi) * std::cos(lat) *
                        (1.0 - sphere.e2 * sin_lat * sin_lat) / (1.0 - sphere.e2);
    lat -= step;
    if (!(std::abs(step) > kConverged)) break;
  }
  return lat;
}

}  // namespace

std::pair<double, double> Projection::stereo70_do_geo(double E, double N) const {
  static const Sphere sphere = conformal_sphere();
  const double x = E - kFalseEasting;
  const double y = N - kFalseNorthing;
  const double twice_Rk0 = 2.0 * sphere.R * kScaleAtOrigin;
  const double g = twice_Rk0 * std::tan(std::numbers::pi / 4.0 - sphere.chi0 / 2.0);
  const double h = 2.0 * twice_Rk0 * std::tan(sphere.chi0) + g;
  const double i = std::atan2(x, h + y);
  const double j = std::atan2(x, g - y) - i;
  const double chi = sphere.chi0 + 2.0 * std::atan((y - x * std::tan(j / 2.0)) / twice_Rk0);
  const double lon = (j + 2.0 * i) / sphere.n + kLongitudeOfOrigin;
  return {geodetic_latitude(chi, sphere), lon};
}

}  // namespace vexo_stereo70
