#include "vexo_xyz_impl/table/layout.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/console_host.h"
#include "vexo_xyz_impl/crs/detection.h"
#include "vexo_xyz_impl/failure.h"
#include "vexo_xyz_impl/input/text_reader.h"
#include "vexo_xyz_impl/table/points.h"
#include "vexo_xyz_impl/table/repeated_numbers.h"
#include "vexo_xyz_impl/table/text_height.h"

namespace vexo_xyz_impl {
namespace {

// A Polish host whose catalogue shows keys, some of them with the values that they are given.
struct Host : testing_support::ConsoleHost {
  Host() {
    std::map<std::string, std::string, std::less<>> texts{{"xyz.pow_za_malo_kolumn", "xyz.pow_za_malo_kolumn(%d, %d)"}};
    for (const char* key : {"xyz.fmt_n_nrxyz", "xyz.fmt_n_xyz", "xyz.fmt_niejasny"})
      texts[key] = key + std::string("(%d)");
    siblings.add("vexo_teksty", std::make_unique<testing_support::OwnTexts>(texts));
    load();
  }
};

Table read(std::string_view text) { return table_from_bytes({text.begin(), text.end()}); }

// Layout, key of the description, number of data rows.
std::string verdict_on(std::span<const Row> rows) {
  const auto [fmt, opis, dane] = _wykryj_format(rows);
  EXPECT_TRUE(opis.starts_with("xyz.fmt_")) << opis;
  return std::string(fmt ? layout_code(*fmt) : "?") + " " + opis.substr(8) + " " + std::to_string(dane.size());
}

TEST(Layout, RowsToVerdict) {
  const Host host;
  const struct {
    const char* name;
    std::string_view text;
    const char* verdict;
  } cases[] = {
      // Which rows are data.
      {"no rows", "", "? mniej_2 0"},
      {"one column", "1\n2\n3 4", "? mniej_2 0"},
      {"numbers that are no neighbours", "1 A 2\n3 B 4", "? brak_danych 0"},
      {"equally common lengths: the greater", "1 2 3\n1 2 3\nP 1 2 3\nP 4 5 6", "NrXYZ n_nrxyz(4) 2"},
      {"the commonest length, not the greatest", "1 2\nA 1 2 3\n3 4", "XY 2kol 3"},
      {"header above numbers", "Nr;X;Y;Z\n1;10;20;5\n2;14;25;5\n3;19;28;5", "NrXYZ n_nrxyz(4) 3"},
      {"header with a number", "Y 2000 Z\nP 1 2\nQ 3 4", "NrXY 3_nrxy 2"},
      {"short rows dropped, long ones kept", "P 1 2\nQ 1 2\nR 1\nS 3 4 x\nT 5 6 7 8", "NrXY 3_nrxy 4"},
      {"two columns", "X Y\n1 2\n3 4\nP 5 x", "XY 2kol 2"},
      // A label that is no number settles it, before any coordinate system is tried.
      {"one label among numbers", "1 2 3\n2 2 3\nA-3 2 3", "NrXY 3_nrxy 3"},
      {"one label among coordinates", "5788456 7500833 1\nA 7500834 5788457", "NrXY 3_nrxy 2"},
      // Coordinate systems: columns 1 and 2 (A), columns 2 and 3 (B).
      {"B, the same number", "7;5788456,5;7500833,5\n7;5788490;7500850", "NrXY 3_nrxy 2"},
      {"A, two rows", "5788456 7500833 110,5\n5788490 7500850 110,7", "XYZ 3_xyz 2"},
      {"A, whole and rising", "5788456 7500833 1 0\n5788457 7500850 1 0\n5788458 7500890 1 0", "XYZ n_xyz(4) 3"},
      {"both", "450000.5 500000 480000\n450001.5 500010 480000\n450002.5 500020 480000", "? niejasny(3) 3"},
      {"both, long numbers", "400001 500000 480000\n400002 500010 480050\n400003 500020 480090", "NrXY 3_nrxy 3"},
      // Neither: whole rising numbers that span less than the column beside them are a numbering.
      {"gaps, and a fall beside them", "-5 900 1 0\n7 300 1 0\n1e2 100 1 0", "NrXYZ n_nrxyz(4) 3"},
      {"two rows", "1 10 1\n2 20 1", "? niejasny(3) 2"},
      {"equal spans", "1 5 1\n2 6 1\n3 7 1", "? niejasny(3) 3"},
      {"the same number twice", "1 10 1\n2 20 1\n2 30 1", "? niejasny(3) 3"},
      {"whole within 1e-9", "1,0000000005 10 1\n1,9999999995 20 1\n3 30 1", "NrXY 3_nrxy 3"},
      {"not whole by 2e-9", "1,000000002 10 1\n2 20 1\n3 30 1", "? niejasny(3) 3"},
      // A nan compares with nothing, so it only spoils a span when it comes first.
      {"nan among the numbers", "1 10 1\nnan 20 1\n3 30 1", "? niejasny(3) 3"},
      {"nan beside them, first", "1 nan 1\n2 20 1\n3 30 1", "? niejasny(3) 3"},
      {"nan beside them, last", "1 10 1\n2 20 1\n3 nan 1", "NrXY 3_nrxy 3"},
      {"inf behind the numbers", "1 10 1\n2 20 1\ninf 30 1", "? niejasny(3) 3"},
      {"inf beside them", "1 10 1\n2 inf 1\n3 30 1", "NrXY 3_nrxy 3"},
  };
  for (const auto& [name, text, verdict] : cases) {
    const Table table = read(text);
    EXPECT_EQ(verdict_on(table.rows()), verdict) << name;
  }
  const Table label_and_number = read("1 2\n3 4\nP12 5\n6 7");
  EXPECT_THROW(static_cast<void>(_wykryj_format(label_and_number.rows())), IndexError);
}

TEST(SkippedLines, OutliveTheRowsOfTheTable) {
  const Host host;
  Table table;
  const std::vector<std::vector<std::size_t>> columns = {{0}, {0, 1, 2}, {30}, {0, 20, 21, 500}};
  for (const auto& row : columns) {
    for (const std::size_t column : row) table.set_cell(column, "x");
    table.end_row();
  }
  const Decomposition read = _rozbierz(table.rows(), Layout::NrXY);
  table.forget_rows();
  EXPECT_EQ(table.size(), 0U);
  ASSERT_EQ(read.pominiete.size(), columns.size());
  for (std::size_t i = 0; i < columns.size(); ++i) {
    std::vector<std::size_t> found;
    const Row cells = read.pominiete[i].cells;
    for (std::size_t column = 0; column < cells.size(); ++column)
      if (cells[column] == "x") found.push_back(column);
    EXPECT_EQ(found, columns[i]);
  }
}

TEST(RepeatedNumbers, AreThoseThatASetWouldRefuse) {
  std::mt19937_64 random(5);  // NOLINT(cert-msc51-cpp): the same numbers at every run
  for (const std::size_t count : {0U, 1U, 2U, 3U, 127U, 128U, 1000U, 20'000U}) {
    for (const std::size_t kinds : {std::size_t{1}, std::size_t{3}, count / 2 + 1, 100 * count + 1}) {
      std::vector<std::string> numbers(count);
      for (std::string& number : numbers) number = "P" + std::to_string(random() % kinds);
      std::vector<PointRecord> points;
      for (const std::string& number : numbers) points.push_back({number, 0.0, 0.0, 0.0});
      const std::size_t repeated = count - std::set(numbers.begin(), numbers.end()).size();
      EXPECT_EQ(repeated_numbers(points), repeated) << count << ' ' << kinds;
      const auto poor_hash = [](std::string_view number) { return number.size(); };
      EXPECT_EQ(repeated_numbers(points, poor_hash), repeated) << count << ' ' << kinds;
    }
  }
}

TEST(TextHeight, RoundHeights) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  // Pairs of raw and round: the nearest, the smaller of two equally near; whole tens above 100, halves to the even one.
  std::istringstream heights(
      "0 2.5 -3 2.5 1e-9 0.1 0.15 0.1 1.207 1.2 1.36 1.5 2.25 2 87.4 75 87.5 75 87.6 100 96 100 100 100 100.0001 100 "
      "104.9 100 105 100 105.1 110 115 120 125.1 130 145 140 155 160");
  for (double raw = 0.0, round = 0.0; heights >> raw >> round;) EXPECT_EQ(_rowna_wysokosc(raw), round) << raw;
  for (const double height : {0.1, 0.2, 0.25, 0.5, 0.75, 1.0, 1.2, 1.5,  2.0,  2.5,  3.0,  3.5,  4.0,
                              5.0, 6.0, 7.5,  10., 12.5, 15., 20., 25.0, 30.0, 40.0, 50.0, 75.0, 100.})
    EXPECT_EQ(_rowna_wysokosc(height), height);
  EXPECT_EQ(_rowna_wysokosc(std::nan("")), 0.1);
  EXPECT_EQ(_rowna_wysokosc(-kInfinity), 2.5);
  EXPECT_THROW(static_cast<void>(_rowna_wysokosc(kInfinity)), OverflowError);
}

}  // namespace
}  // namespace vexo_xyz_impl
