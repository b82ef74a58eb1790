// Single functions, each beside a baseline: the least that anybody would have to do for the same result.
//
//     microbench SURVEY [--benchmark_…]
//
// SURVEY is a file of make_points.py of 100,000 lines. Functions, named GROUP/FUNCTION, are compared with the baseline
// of their own group and run, which a busy machine slows down as much; they count the same items.
#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <fstream>
#include <iterator>
#include <span>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>
#ifdef WITH_PROJ
#include <proj.h>
#endif
#ifdef WITH_GEOGRAPHICLIB
#include <GeographicLib/TransverseMercator.hpp>
#endif

#include "console/drawing/drawing.h"
#include "console/dxf/dxf_writer.h"
#include "console/session.h"
#include "vexo_xyz_impl/crs/transverse_mercator.h"
#include "vexo_xyz_impl/input/text_reader.h"
#include "vexo_xyz_impl/table/layout.h"
#include "vexo_xyz_impl/table/numbers.h"
#include "vexo_xyz_impl/table/points.h"

namespace {

using console::Position;
using vexo_xyz_impl::Row;
using vexo_xyz_impl::Table;

constexpr std::size_t kReadBytes = 1'000'000;
constexpr std::size_t kTokens = 4'000;
constexpr std::size_t kPairs = 1'000;
constexpr vexo_xyz_impl::host::ZoneParameters kZone7{21.0, 0.999923, 7500000.0, 0.0};  // PL-2000

// Registers `work`, to be run for as long as the library wants; `items` are what one run of it handles.
template <class Work>
void add(const char* name, std::size_t items, Work work) {
  benchmark::RegisterBenchmark(name, [items, work](benchmark::State& state) {
    for (auto _ : state) work();
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(items));
  });
}

// Adds `work` for each of the items, which must outlive it.
template <class Item, class Work>
void add_each(const char* name, const std::vector<Item>& items, Work work) {
  add(name, items.size(), [&items, work] {
    for (const Item& item : items) benchmark::DoNotOptimize(work(item));
  });
}

// "5 788 410,03": the whole part in threes; a label stays as it is.
std::string in_threes(std::string number, std::string_view blank) {
  const std::size_t mark = number.find(',');
  for (std::size_t at = mark; mark != number.npos && at > 3; at -= 3) number.insert(at - 3, blank);
  return number;
}

void reading(const std::vector<char>& survey) {
  static const std::vector<char> text(survey.begin(), survey.begin() + std::min(survey.size(), kReadBytes));
  add("reading, per byte/table_from_bytes", text.size(), [] {
    const Table table = vexo_xyz_impl::table_from_bytes(text);
    benchmark::DoNotOptimize(table.size());
  });
  add("reading, per byte/baseline: lines counted with memchr", text.size(), [] {
    std::size_t lines = 0;
    const std::string_view all(text.data(), text.size());
    for (std::size_t at = 0; (at = all.find('\n', at)) != all.npos; ++at) ++lines;
    benchmark::DoNotOptimize(lines);
  });
}

void numbers(std::span<const Row> rows) {
  static std::vector<std::string> plain, blanks, no_break_spaces, clean;
  for (const Row row : rows.first(kTokens / 4)) {
    for (const std::string_view cell : row) {
      plain.emplace_back(cell);
      blanks.push_back(in_threes(plain.back(), " "));
      no_break_spaces.push_back(in_threes(plain.back(), "\xC2\xA0"));
      clean.emplace_back(cell);
      std::replace(clean.back().begin(), clean.back().end(), ',', '.');
    }
  }
  add_each("numbers, per cell/parse_number \"5788410,031\"", plain, vexo_xyz_impl::parse_number);
  add_each("numbers, per cell/parse_number \"5 788 410,031\"", blanks, vexo_xyz_impl::parse_number);
  add_each("numbers, per cell/parse_number, no-break spaces", no_break_spaces, vexo_xyz_impl::parse_number);
  add_each("numbers, per cell/baseline: std::from_chars \"5788410.031\"", clean, [](const std::string& token) {
    double value = 0.0;
    std::from_chars(token.data(), token.data() + token.size(), value);
    return value;
  });
}

// The 31 functions that the series cannot do without, of arguments of the same size.
double elementary_functions(double xi, double eta) {
  double sum = 0.0;
  for (int j = 1; j <= 5; ++j) {
    const double x = 2.0 * j * xi;
    const double y = 2.0 * j * eta;
    sum += std::sin(x) + std::cosh(y) + std::cos(x) + std::sinh(y);
  }
  const double chi = std::asin(std::sin(xi) / std::cosh(eta));
  for (int j = 1; j <= 5; ++j) sum += std::sin(2.0 * j * chi);
  return sum + std::atan2(std::sinh(eta), std::cos(xi));
}

void coordinates(const std::vector<Position>& points) {
  static const std::vector<Position> pairs(points.begin(), points.begin() + kPairs);
  add_each("coordinates, per pair/inverse", pairs,
           [](const Position& at) { return vexo_xyz_impl::inverse(kZone7, at.x, at.y); });
#ifdef WITH_PROJ
  static PJ* const projection =
      proj_create(PJ_DEFAULT_CTX, "+proj=tmerc +ellps=GRS80 +lon_0=21 +k=0.999923 +x_0=7500000");
  add_each("coordinates, per pair/PROJ", pairs,
           [](const Position& at) { return proj_trans(projection, PJ_INV, proj_coord(at.x, at.y, 0.0, 0.0)); });
#endif
#ifdef WITH_GEOGRAPHICLIB
  static const GeographicLib::TransverseMercator mercator(vexo_xyz_impl::_A_GRS80, vexo_xyz_impl::_F_GRS80, 0.999923);
  add_each("coordinates, per pair/GeographicLib", pairs, [](const Position& at) {
    std::pair<double, double> degrees;
    mercator.Reverse(21.0, at.x - 7'500'000.0, at.y, degrees.first, degrees.second);
    return degrees;
  });
#endif
  add_each("coordinates, per pair/baseline: its 31 elementary functions", pairs, [](const Position& at) {
    constexpr double kRadius = 6'366'600.0;
    return elementary_functions(at.y / kRadius, (at.x - 7'500'000.0) / kRadius);
  });
}

void table(const std::vector<Row>& rows) {
  add("table of 100,000 rows, per row/_wykryj_format", rows.size(),
      [&rows] { benchmark::DoNotOptimize(vexo_xyz_impl::_wykryj_format(rows).fmt); });
  add("table of 100,000 rows, per row/_rozbierz", rows.size(), [&rows] {
    benchmark::DoNotOptimize(vexo_xyz_impl::_rozbierz(rows, vexo_xyz_impl::Layout::NrXYZ).punkty.size());
  });
  add_each("table of 100,000 rows, per row/baseline: parse_number of its 4 cells", rows, [](Row row) {
    for (const std::string_view cell : row) benchmark::DoNotOptimize(vexo_xyz_impl::parse_number(cell));
    return row.size();
  });
}

// At the distance that the import chooses for ten kilometres.
Position label_at(const Position& point) { return {point.x + 120.0, point.y + 120.0, point.z}; }

console::Drawing grouped_drawing(const std::vector<Position>& points) {
  console::Drawing drawing;
  const console::Handle style = drawing.ensure_text_style("VEXO_PL", "arial.ttf");
  console::Group group{.handle = 0, .name = "PIKIETY", .description = "", .selectable = true, .members = {}};
  std::size_t count = 0;
  for (const Position& point : points) {
    const auto take = [&](auto geometry) { group.members.push_back(drawing.add(geometry).value()); };
    take(console::PointGeometry{point});
    take(console::TextGeometry{label_at(point), 200.0, style, std::to_string(++count)});
  }
  drawing.add(std::move(group));
  return drawing;
}

struct NullSink final : console::ByteSink {
  void write(std::string_view bytes) override { benchmark::DoNotOptimize(bytes.data()); }
};

void drawing(const std::vector<Position>& points) {
  static const console::Drawing grouped = grouped_drawing(points);
  add("drawing of 100,000 points, per point/write_dxf", points.size(), [] {
    NullSink sink;
    console::write_dxf(grouped, {}, "ANSI_1250", sink);
  });
  add_each("drawing of 100,000 points, per point/baseline: std::to_chars of its 6 coordinates", points,
           [](const Position& point) {
             static std::array<char, 512> text;
             const Position label = label_at(point);
             char* next = text.data();
             for (const double value : {point.x, point.y, point.z, label.x, label.y, label.z})
               next = std::to_chars(next, text.data() + text.size(), value, std::chars_format::fixed).ptr;
             benchmark::ClobberMemory();
             return next;
           });
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (argc != 2) return 2;
  std::ifstream file(argv[1], std::ios::binary);
  const std::vector<char> survey{std::istreambuf_iterator<char>(file), {}};
  const Table all = vexo_xyz_impl::table_from_bytes(survey);
  const std::vector<Row> rows = all.rows();
  std::vector<Position> points;
  for (const Row row : rows) {
    const auto number = [&](std::size_t column) { return vexo_xyz_impl::parse_number(row[column]).value(); };
    points.push_back({number(2), number(1), number(3)});
  }
  std::istringstream no_answers;
  std::ostringstream printed;
  const auto lines = console::lines_of_stream(no_answers, printed);
  console::SessionOptions options;
  options.choice.market = "PL";
  const console::Session session(options, *lines, printed);  // loads the module: the market's tables are asked for
  reading(survey);
  numbers(rows);
  coordinates(points);
  table(rows);
  drawing(points);
  benchmark::RunSpecifiedBenchmarks();
}
