#include <array>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <limits>
#include <memory>
#include <numbers>
#include <optional>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "siblings/vexo_xyz_dane_DE/dane.h"
#include "siblings/vexo_xyz_dane_PL/dane.h"
#include "siblings/vexo_xyz_dane_RO/dane.h"
#include "tests/support/console_host.h"
#include "vexo_xyz_impl/crs/angles.h"
#include "vexo_xyz_impl/crs/detection.h"
#include "vexo_xyz_impl/crs/systems.h"
#include "vexo_xyz_impl/crs/transverse_mercator.h"
#include "vexo_xyz_impl/failure.h"

namespace vexo_xyz_impl {
namespace {

using testing_support::ConsoleHost;
using vexo_xyz_dane::MarketData;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

// The module loaded for a market of the test's own.
struct Loaded : ConsoleHost {
  explicit Loaded(const MarketData& market) {
    siblings.add("vexo_xyz_dane_PL", std::make_shared<vexo_xyz_dane::Tables>(market));
    load();
  }
};

using Zone = std::optional<host::ZoneParameters>;

// One zone around 21 degrees, whose radians turn back into exactly 21, on the equator.
MarketData one_zone() {
  return {{{1, Zone({21.0, 1.0, 500000.0, 0.0})}}, {1}, {}, {-1.0, 1.0}, {20.0, 22.0}, {}, {}, {}};
}

MarketData systems_of_all_markets() {
  MarketData all = vexo_xyz_dane_PL::tables();
  for (MarketData market : {vexo_xyz_dane_DE::tables(), vexo_xyz_dane_RO::tables()}) all.UKLADY.merge(market.UKLADY);
  return all;
}

// The numbers of each line but the first, decimal or hexadecimal.
std::vector<std::vector<double>> csv(const std::string& name) {
  std::ifstream file(TEST_DATA "/geodesy/" + name);
  std::vector<std::vector<double>> lines;
  std::string line;
  for (std::getline(file, line); std::getline(file, line);) {
    std::istringstream fields(line);
    lines.emplace_back();
    for (std::string field; std::getline(fields, field, ',');)
      lines.back().push_back(std::strtod(field.c_str(), nullptr));
  }
  EXPECT_GE(lines.size(), 10U) << name;
  return lines;
}

// Nothing is looked up for no pairs, not even a market: this is the first test, and no module is loaded.
TEST(Detection, NothingIsNowhere) { EXPECT_TRUE(_wykryj_uklad({}).empty()); }

TEST(TransverseMercator, PositionsToTheLastBit) {
  const Loaded host(systems_of_all_markets());
  for (const auto& line : csv("do_geo_bits.csv"))
    EXPECT_EQ(_do_geo(line[3], line[4], static_cast<int>(line[0])), Pair(line[5], line[6])) << line[0];
  // The order of the factors in either sum shows in these; checked with elementary functions of 200 bits.
  EXPECT_EQ(_do_geo(461000.0, 650000.0, 2180), Pair(0x1.dffc956e65cfep-1, 0x1.4901cee0b9d24p-2));
  EXPECT_EQ(_do_geo(592000.0, 776000.0, 2180), Pair(0x1.ea0bee44f365bp-1, 0x1.6d2e6d89486bep-2));
  EXPECT_EQ(_do_geo(7500000.0, 0.0, 2178), Pair(0.0, radians(21.0)));
  EXPECT_NEAR(_do_geo(kNan, 0.0, 2178).first, std::numbers::pi / 2.0, 1e-15);  // the arc sine of no number is that of 1
}

TEST(Systems, ThatTheMarketDoesNotKnow) {
  const Loaded host(one_zone());
  EXPECT_THROW(static_cast<void>(_do_geo(0.0, 0.0, 99)), KeyError);
  EXPECT_EQ(_uklad_nazwa(99), "EPSG:99");
}

// Against the exact projection in quadruple precision, and another library's stereographic one.
TEST(TransverseMercator, PositionsAgreeWithReferenceValues) {
  const Loaded host(systems_of_all_markets());
  for (const char* name : {"tm_2176.csv", "tm_2178.csv", "tm_2178_far.csv", "tm_2180.csv", "tm_25832.csv",
                           "tm_5650.csv", "stereo70.csv"}) {
    double worst = 0.0;
    Pair where;
    for (const auto& line : csv(name)) {
      const auto [lat, lon] = _do_geo(line[1], line[2], static_cast<int>(line[0]));
      const double error = std::hypot(degrees(lat) - line[3], degrees(lon) - line[4]);
      if (error <= worst) continue;
      worst = std::isnan(error) ? kInfinity : error;
      where = {line[1], line[2]};
    }
    EXPECT_LE(worst, 1e-12) << "degrees, worst of " << name << ", at " << testing::PrintToString(where);
  }
}

// The series as published, each function called by itself.
std::pair<double, double> plain_inverse(const host::ZoneParameters& zone, double E, double N) {
  double (*volatile sine)(double) = std::sin;  // volatile: no call is merged with another
  double (*volatile cosine)(double) = std::cos;
  const double xi = (N - zone.FN) / (zone.k0 * _A_K);
  const double eta = (E - zone.FE) / (zone.k0 * _A_K);
  double xi_prime = xi;
  double eta_prime = eta;
  for (int j = 1; j <= 5; ++j) {
    const double b = _BETA.at(static_cast<std::size_t>(j - 1));
    xi_prime -= b * sine(2.0 * j * xi) * std::cosh(2.0 * j * eta);
    eta_prime -= b * cosine(2.0 * j * xi) * std::sinh(2.0 * j * eta);
  }
  const double chi = std::asin(sine(xi_prime) / std::cosh(eta_prime));
  double lat = chi;
  for (int j = 1; j <= 5; ++j) lat += _DELTA.at(static_cast<std::size_t>(j - 1)) * sine(2.0 * j * chi);
  return {lat, radians(zone.lon0) + std::atan2(std::sinh(eta_prime), cosine(xi_prime))};
}

TEST(TransverseMercator, IsThePlainSeriesBitForBit) {
  const host::ZoneParameters zone{21.0, 0.999923, 7500000.0, 0.0};
  std::mt19937_64 random(3);  // NOLINT(cert-msc51-cpp): the same numbers at every run
  std::uniform_real_distribution<double> metres(-9e6, 9e6);
  for (int i = 0; i < 200'000; ++i) {
    const double E = 7.5e6 + (i % 2 == 0 ? 0.01 : 1.0) * metres(random);
    const double N = metres(random);
    ASSERT_EQ(inverse(zone, E, N), plain_inverse(zone, E, N)) << E << ' ' << N;
  }
}

TEST(Detection, BoundsBelongToTheInside) {
  constexpr double kHair = std::numeric_limits<double>::denorm_min();
  const struct {
    double east;  // metres from the central meridian
    Pair lat, lon;
    std::optional<double> easting_half, lon_half;
    bool plausible, plausible_exempt;
  } cases[] = {
      {0.0, {0.0, 1.0}, {21.0, 22.0}, {}, {}, true, true},
      {0.0, {-1.0, 0.0}, {20.0, 21.0}, {}, {}, true, true},
      {0.0, {kHair, 1.0}, {20.0, 22.0}, {}, {}, false, false},
      {0.0, {-1.0, -kHair}, {20.0, 22.0}, {}, {}, false, false},
      {0.0, {-1.0, 1.0}, {std::nextafter(21.0, 22.0), 22.0}, {}, {}, false, false},
      {0.0, {-1.0, 1.0}, {20.0, std::nextafter(21.0, 20.0)}, {}, {}, false, false},
      {1000.0, {-1.0, 1.0}, {20.0, 22.0}, 1000.0, {}, true, true},
      {-1000.0625, {-1.0, 1.0}, {20.0, 22.0}, 1000.0, {}, false, true},
      {0.0, {-1.0, 1.0}, {20.0, 22.0}, {}, 0.0, true, true},
      {-0.0625, {-1.0, 1.0}, {20.0, 22.0}, {}, 0.0, false, true},
  };
  for (std::size_t i = 0; i < std::size(cases); ++i) {
    MarketData market = one_zone();
    const auto& [east, lat, lon, easting_half, lon_half, plausible, plausible_exempt] = cases[i];
    std::tie(market.KRAJ_LAT, market.KRAJ_LON, market.EASTING_HALF, market.LON_HALF) =
        std::tie(lat, lon, easting_half, lon_half);
    EXPECT_EQ((Loaded(market), _sensowny(500000.0 + east, 0.0, 1)), plausible) << "row " << i;
    market.ZONE_EXEMPT = {1};
    EXPECT_EQ((Loaded(market), _sensowny(500000.0 + east, 0.0, 1)), plausible_exempt) << "exempt, row " << i;
  }
}

TEST(Detection, NineTenthsOfTheFirstTwoHundredPairs) {
  const Loaded host(one_zone());
  const struct {
    std::size_t good, bad, good_again;
    std::vector<double> found;
  } cases[] = {{18, 2, 0, {0.9}},     {17, 3, 0, {}},      {180, 20, 0, {0.9}}, {179, 21, 5000, {}},
               {200, 5000, 0, {1.0}}, {0, 20, 180, {0.9}}, {1, 0, 0, {1.0}},    {0, 1, 0, {}}};
  for (const auto& [good, bad, good_again, found] : cases) {
    std::vector<Pair> pary(good, {500000.0, 0.0});
    pary.resize(good + bad, {500000.0, 1e6});
    pary.resize(good + bad + good_again, {500000.0, 0.0});
    std::vector<double> shares;
    for (const Candidate& candidate : _wykryj_uklad(pary)) shares.push_back(candidate.frac);
    EXPECT_EQ(shares, found) << good << " good, " << bad << " bad, " << good_again << " good";
  }
}

}  // namespace
}  // namespace vexo_xyz_impl
