// Existing drawings: what is found in their bytes, what is wrong with them, how near points come to what they hold.
#include <algorithm>
#include <cmath>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "console/decimals.h"
#include "console/dxf/drawing_fault.h"
#include "console/dxf/outline.h"
#include "console/nearness.h"

namespace console {
namespace {

std::string entities(std::string_view tags) {
  return "0\nSECTION\n2\nENTITIES\n" + std::string(tags) + "0\nENDSEC\n0\nEOF\n";
}

TEST(Outline, SaysWhereADrawingIsDamaged) {
  struct Case {
    std::string bytes;
    Damage damage;
    std::size_t line;
  };
  const std::vector<Case> cases = {
      {"", Damage::no_drawing, 0},
      {"1;2;3\n4;5;6\n", Damage::no_drawing, 0},
      {"0\nEOF\n", Damage::no_drawing, 0},
      {"AutoCAD Binary DXF\r\n\x1A", Damage::binary, 0},
      {"AC1027", Damage::dwg, 0},
      {entities("0\nLINE\nlayer\n0\n"), Damage::odd_code, 7},
      {entities("0\nLINE\n8 0\n0\n"), Damage::odd_code, 7},
      {"0\nSECTION\n2\nENTITIES\n0\nENDSEC\n", Damage::cut_short, 5},
      {"0\r\nSECTION\r\n2\r\nENTITIES\r\n0", Damage::cut_short, 5},
      {"0\nSECTION\n0\nENDSEC\n0\nEOF\n", Damage::out_of_place, 3},
      {"0\nSECTION\n2\nENTITIES\n0\nSECTION\n2\nX\n0\nENDSEC\n0\nEOF\n", Damage::out_of_place, 5},
      {"0\nSECTION\n2\nX\n0\nEOF\n", Damage::out_of_place, 5},
      {"0\nSECTION\n2\nHEADER\n9\n$PDMODE\n70\n0\n0\nTABLE\n0\nENDSEC\n0\nEOF\n", Damage::out_of_place, 9},
      {"0\nSECTION\n2\nTABLES\n0\nLAYER\n2\n0\n0\nENDSEC\n0\nEOF\n", Damage::out_of_place, 5},
      {entities("0\nLINE\n999\nabout\n5\n7FFFFFFFFFFFFFFF\n"), Damage::no_handles, 9},
  };
  for (const auto& [bytes, damage, line] : cases) {
    try {
      static_cast<void>(outline_of(bytes));
      ADD_FAILURE() << "no fault in " << bytes;
    } catch (const DrawingFault& fault) {
      EXPECT_EQ(fault.damage(), damage) << bytes;
      EXPECT_EQ(fault.line(), line) << bytes;
    }
  }
}

TEST(Outline, FindsWhatModelSpaceHolds) {
  const auto places = [](std::string_view tags) {
    std::vector<std::pair<double, double>> found;
    const std::string bytes = entities(tags);
    const Outline outline = outline_of(bytes);
    for (std::size_t i = 0; i < outline.places.size(); ++i)
      found.emplace_back(outline.places[i].x, outline.places[i].y);
    return found;
  };
  using Found = std::vector<std::pair<double, double>>;
  EXPECT_EQ(places("0\nLINE\n10\n1\n20\n2\n30\n9\n11\n3.5\n21\n-4e2\n"), (Found{{1, 2}, {3.5, -400}}));
  EXPECT_EQ(places("0\nMTEXT\n10\n1\n20\n2\n11\n1\n21\n0\n"), (Found{{1, 2}}));  // 11 is a direction
  EXPECT_EQ(places("0\nLWPOLYLINE\n10\n1\n20\n2\n10\n3\n20\n4\n"), (Found{{1, 2}, {3, 4}}));
  EXPECT_EQ(places("0\nHATCH\n10\n0\n20\n0\n30\n7\n10\n3\n20\n4\n"), (Found{{3, 4}}));
  EXPECT_EQ(places("0\nPOLYLINE\n10\n0\n20\n0\n0\nVERTEX\n10\n3\n20\n4\n0\nSEQEND\n"), (Found{{3, 4}}));
  EXPECT_EQ(places("0\nCIRCLE\n10\n1\n20\n2\n210\n0\n220\n0\n230\n-1\n"), (Found{{-1, 2}}));  // seen from below
  EXPECT_EQ(places("0\nCIRCLE\n10\n1\n20\n2\n210\n1\n220\n0\n230\n0\n"), Found{});
  EXPECT_EQ(places("0\nPOINT\n67\n1\n10\n1\n20\n2\n0\nVIEWPORT\n10\n1\n20\n2\n0\nPOINT\n10\nnan\n20\n2\n"), Found{});
}

TEST(Nearness, IsThatOfAllPairs) {
  std::mt19937_64 random(1);
  for (const auto& [apart, width] : {std::pair(0.0, 1.0), std::pair(9e5, 1.0), std::pair(3.0, 0.0)}) {
    std::uniform_real_distribution<double> anywhere(0.0, 500.0);
    std::vector<PlanPoint> points;
    points.reserve(101);
    Column<PlanPoint> places;
    double least = 1e300;
    for (int i = 0; i < 100; ++i) points.push_back({anywhere(random) * width, anywhere(random)});
    for (int i = 0; i < 300; ++i) {
      places.push_back({apart + anywhere(random), anywhere(random)});
      for (const PlanPoint& one : points)
        least = std::min(least, std::hypot(one.x - places[places.size() - 1].x, one.y - places[places.size() - 1].y));
    }
    points.push_back({std::nan(""), 0.0});
    EXPECT_NEAR(least_distance(points, places).value_or(-1), least, 1e-9 * least);
  }
  EXPECT_EQ(least_distance({}, Column<PlanPoint>()), std::nullopt);
  EXPECT_EQ(least_distance({{1, 2}}, Column<PlanPoint>()), std::nullopt);
  for (const auto& [metres, text] : {std::pair(0.04, "0.0 m"), std::pair(12.4, "12 m"), std::pair(999.6, "1.0 km"),
                                     std::pair(9960.0, "10 km"), std::pair(541234.0, "541 km")})
    EXPECT_EQ(distance_text(metres), text);
}

}  // namespace
}  // namespace console
