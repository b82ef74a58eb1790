// Single functions, each beside a baseline: the least that anybody would have to do for the same result.
//
// A benchmark is named GROUP/FUNCTION or GROUP/baseline/WHAT. Functions are compared with the baseline of their own
// group and run, which a busy machine slows down as much; they count the same items.
#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <random>
#include <span>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>

#include "console/drawing/drawing.h"
#include "console/dxf/dxf_writer.h"
#include "console/session.h"
#include "vexo_xyz_impl/crs/transverse_mercator.h"
#include "vexo_xyz_impl/input/text_reader.h"
#include "vexo_xyz_impl/table/layout.h"
#include "vexo_xyz_impl/table/numbers.h"
#include "vexo_xyz_impl/table/points.h"

namespace {

using vexo_xyz_impl::Row;
using vexo_xyz_impl::Table;

constexpr std::size_t kReadBytes = 1'000'000;
constexpr std::size_t kRows = 100'000;
constexpr std::size_t kTokens = 4'000;
constexpr vexo_xyz_impl::host::ZoneParameters kZone7{21.0, 0.999923, 7500000.0, 0.0};  // PL-2000

// ---- What is measured on: lines like those of make_points.py ---------------------------------------------------

struct SurveyPoint {
  long long north;  // millimetres, as are east and height
  long long east;
  long long height;
};

SurveyPoint next_point(std::mt19937_64& number) {
  constexpr std::uint64_t kSide = 10'000'000;
  constexpr std::uint64_t kHeights = 44'000;
  const auto below = [&](std::uint64_t limit) { return static_cast<long long>(number() % limit); };
  const long long north = 5'780'000'000 + below(kSide);
  const long long east = 7'495'000'000 + below(kSide);
  return {north, east, 78'000 + below(kHeights)};
}

std::vector<SurveyPoint> survey_points(std::size_t count) {
  std::mt19937_64 number(20000707);
  std::vector<SurveyPoint> points;
  points.reserve(count);
  for (std::size_t i = 0; i < count; ++i) points.push_back(next_point(number));
  return points;
}

std::string decimal(long long millimetres, char mark) {
  std::string fraction = std::to_string(millimetres % 1000);
  fraction.insert(0, 3 - fraction.size(), '0');
  return std::to_string(millimetres / 1000) + mark + fraction;
}

// "5 788 410,03": the whole part in threes.
std::string in_threes(std::string number, std::string_view blank) {
  for (std::size_t at = number.find(','); at > 3; at -= 3) number.insert(at - 3, blank);
  return number;
}

std::vector<char> survey_text(std::size_t rows) {
  std::string text;
  std::size_t count = 0;
  for (const SurveyPoint& point : survey_points(rows)) {
    text += std::to_string(++count) + ';' + decimal(point.north, ',') + ';' + decimal(point.east, ',') + ';' +
            decimal(point.height, ',') + "\r\n";
  }
  return {text.begin(), text.end()};
}

// Runs `work` for as long as the library wants; `items` are what one run of it handles.
template <class Work>
void measure(benchmark::State& state, std::size_t items, Work work) {
  for (auto _ : state) work();
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(items));
}

// ---- Reading ---------------------------------------------------------------------------------------------------

std::vector<char> read_text() {
  std::vector<char> text = survey_text(kReadBytes / 30);
  text.resize(std::min(text.size(), kReadBytes));
  return text;
}

void read_into_table(benchmark::State& state) {
  const std::vector<char> text = read_text();
  measure(state, text.size(), [&] {
    const Table table = vexo_xyz_impl::table_from_bytes(text);
    benchmark::DoNotOptimize(table.size());
  });
}

void count_lines(benchmark::State& state) {
  const std::vector<char> text = read_text();
  measure(state, text.size(), [&] {
    std::size_t lines = 0;
    const char* const end = text.data() + text.size();
    for (const char* at = text.data(); at != nullptr && at != end; ++lines) {
      at = static_cast<const char*>(std::memchr(at, '\n', static_cast<std::size_t>(end - at)));
      if (at != nullptr) ++at;
    }
    benchmark::DoNotOptimize(lines);
  });
}

// ---- Numbers ---------------------------------------------------------------------------------------------------

template <class Spelling>
std::vector<std::string> tokens(Spelling spelling) {
  std::vector<std::string> tokens;
  std::size_t count = 0;
  for (const SurveyPoint& point : survey_points(kTokens / 4)) {
    tokens.push_back(std::to_string(++count));
    for (const long long value : {point.north, point.east, point.height}) tokens.push_back(spelling(value));
  }
  return tokens;
}

template <class Spelling>
void parse_tokens(benchmark::State& state, Spelling spelling) {
  const std::vector<std::string> spelled = tokens(spelling);
  measure(state, spelled.size(), [&] {
    for (const std::string& token : spelled) benchmark::DoNotOptimize(vexo_xyz_impl::parse_number(token));
  });
}

void parse_plain(benchmark::State& state) {
  parse_tokens(state, [](long long value) { return decimal(value, ','); });
}

void parse_blanks(benchmark::State& state) {
  parse_tokens(state, [](long long value) { return in_threes(decimal(value, ','), " "); });
}

void parse_no_break_spaces(benchmark::State& state) {
  parse_tokens(state, [](long long value) { return in_threes(decimal(value, ','), "\xC2\xA0"); });
}

void from_chars_of_clean_tokens(benchmark::State& state) {
  const std::vector<std::string> clean = tokens([](long long value) { return decimal(value, '.'); });
  measure(state, clean.size(), [&] {
    for (const std::string& token : clean) {
      double value = 0.0;
      std::from_chars(token.data(), token.data() + token.size(), value);
      benchmark::DoNotOptimize(value);
    }
  });
}

// ---- Coordinate systems ----------------------------------------------------------------------------------------

// A console into which the module is loaded, for the market's tables.
void load_module() {
  static std::istringstream no_answers;
  static std::ostringstream printed;
  static const auto lines = console::lines_of_stream(no_answers, printed);
  static const console::SessionOptions options = [] {
    console::SessionOptions polish;
    polish.choice.market = "PL";
    return polish;
  }();
  static console::Session session(options, *lines, printed);
}

std::vector<std::pair<double, double>> grid_pairs() {
  std::vector<std::pair<double, double>> pairs;
  for (const SurveyPoint& point : survey_points(1000)) {
    pairs.emplace_back(static_cast<double>(point.east) / 1000.0, static_cast<double>(point.north) / 1000.0);
  }
  return pairs;
}

void grid_to_geographic(benchmark::State& state) {
  const auto pairs = grid_pairs();
  measure(state, pairs.size(), [&] {
    for (const auto& [E, N] : pairs) benchmark::DoNotOptimize(vexo_xyz_impl::inverse(kZone7, E, N));
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

void elementary_functions_alone(benchmark::State& state) {
  constexpr double kRadius = 6'366'600.0;
  const auto pairs = grid_pairs();
  measure(state, pairs.size(), [&] {
    for (const auto& [E, N] : pairs) {
      benchmark::DoNotOptimize(elementary_functions(N / kRadius, (E - 7'500'000.0) / kRadius));
    }
  });
}

// ---- The table -------------------------------------------------------------------------------------------------

void detect_layout(benchmark::State& state) {
  load_module();
  const Table table = vexo_xyz_impl::table_from_bytes(survey_text(kRows));
  const std::vector<Row> rows = table.rows();
  measure(state, rows.size(), [&] { benchmark::DoNotOptimize(vexo_xyz_impl::_wykryj_format(rows).fmt); });
}

void take_apart(benchmark::State& state) {
  load_module();
  const Table table = vexo_xyz_impl::table_from_bytes(survey_text(kRows));
  const std::vector<Row> rows = table.rows();
  measure(state, rows.size(), [&] {
    benchmark::DoNotOptimize(vexo_xyz_impl::_rozbierz(rows, vexo_xyz_impl::Layout::NrXYZ).punkty.size());
  });
}

void parse_every_cell(benchmark::State& state) {
  const Table table = vexo_xyz_impl::table_from_bytes(survey_text(kRows));
  const std::vector<Row> rows = table.rows();
  measure(state, rows.size(), [&] {
    for (const Row row : rows)
      for (const std::string_view cell : row) benchmark::DoNotOptimize(vexo_xyz_impl::parse_number(cell));
  });
}

// ---- The drawing -----------------------------------------------------------------------------------------------

constexpr double kLabelHeight = 200.0;  // what the import chooses for ten kilometres
constexpr double kLabelOffset = 120.0;

struct PointAndLabel {
  console::Position point;
  console::Position label;
};

std::vector<PointAndLabel> positions() {
  std::vector<PointAndLabel> positions;
  for (const SurveyPoint& point : survey_points(kRows)) {
    const double x = static_cast<double>(point.east) / 1000.0;
    const double y = static_cast<double>(point.north) / 1000.0;
    const double z = static_cast<double>(point.height) / 1000.0;
    positions.push_back({{x, y, z}, {x + kLabelOffset, y + kLabelOffset, z}});
  }
  return positions;
}

console::Drawing grouped_drawing() {
  console::Drawing drawing;
  const console::Handle style = drawing.ensure_text_style("VEXO_PL", "arial.ttf");
  console::Group group{.handle = 0, .name = "PIKIETY", .description = "", .selectable = true, .members = {}};
  std::size_t count = 0;
  for (const auto& [point, label] : positions()) {
    const auto add = [&](auto geometry) { group.members.push_back(drawing.add(geometry).value()); };
    add(console::PointGeometry{point});
    add(console::TextGeometry{label, kLabelHeight, style, std::to_string(++count)});
  }
  drawing.add(std::move(group));
  return drawing;
}

class NullSink final : public console::ByteSink {
 public:
  void write(std::string_view bytes) override {
    benchmark::DoNotOptimize(bytes.data());
    written_ += bytes.size();
  }
  [[nodiscard]] std::size_t written() const { return written_; }

 private:
  std::size_t written_ = 0;
};

void write_drawing(benchmark::State& state) {
  const console::Drawing drawing = grouped_drawing();
  NullSink sink;
  measure(state, kRows, [&] { console::write_dxf(drawing, "ANSI_1250", sink); });
  state.SetBytesProcessed(static_cast<std::int64_t>(sink.written()));
}

void format_coordinates(benchmark::State& state) {
  const std::vector<PointAndLabel> all = positions();
  std::vector<char> text(512);
  measure(state, all.size(), [&] {
    for (const auto& [point, label] : all) {
      char* next = text.data();
      for (const double value : {point.x, point.y, point.z, label.x, label.y, label.z}) {
        next = std::to_chars(next, text.data() + text.size(), value, std::chars_format::fixed).ptr;
      }
      benchmark::DoNotOptimize(text.data());
      benchmark::ClobberMemory();
    }
  });
}

BENCHMARK(read_into_table)->Name("reading, per byte/table_from_bytes");
BENCHMARK(count_lines)->Name("reading, per byte/baseline/lines counted with memchr");
BENCHMARK(parse_plain)->Name("numbers, per cell/parse_number \"5788410,031\"");
BENCHMARK(parse_blanks)->Name("numbers, per cell/parse_number \"5 788 410,031\"");
BENCHMARK(parse_no_break_spaces)->Name("numbers, per cell/parse_number, no-break spaces");
BENCHMARK(from_chars_of_clean_tokens)->Name("numbers, per cell/baseline/std::from_chars \"5788410.031\"");
BENCHMARK(grid_to_geographic)->Name("coordinates, per pair/inverse");
BENCHMARK(elementary_functions_alone)->Name("coordinates, per pair/baseline/its 31 elementary functions");
BENCHMARK(detect_layout)->Name("table of 100,000 rows, per row/_wykryj_format")->Unit(benchmark::kMillisecond);
BENCHMARK(take_apart)->Name("table of 100,000 rows, per row/_rozbierz")->Unit(benchmark::kMillisecond);
BENCHMARK(parse_every_cell)
    ->Name("table of 100,000 rows, per row/baseline/parse_number of its 4 cells")
    ->Unit(benchmark::kMillisecond);
BENCHMARK(write_drawing)->Name("drawing of 100,000 points, per point/write_dxf")->Unit(benchmark::kMillisecond);
BENCHMARK(format_coordinates)
    ->Name("drawing of 100,000 points, per point/baseline/std::to_chars of its 6 coordinates")
    ->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
