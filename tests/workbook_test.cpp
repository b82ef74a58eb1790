#include <algorithm>
#include <chrono>
#include <fstream>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "vexo_xyz_impl/failure.h"
#include "vexo_xyz_impl/input/workbook_reader.h"

namespace vexo_xyz_impl {
namespace {

using nlohmann::json;
using Rows = std::vector<std::vector<std::string>>;

struct Outcome {
  Rows rows;
  std::string kind;  // of the failure, if there was one
  std::string text;
};

Outcome read(const std::string& path) {
  Outcome outcome;
  try {
    const Table table = _czytaj_xlsx(path);
    for (const Row row : table.rows()) outcome.rows.emplace_back(row.begin(), row.end());
  } catch (const Failure& failure) {
    outcome.kind = failure.kind();
    outcome.text = failure.what();
  }
  return outcome;
}

// Tags without end take minutes where each is looked up to the end of the text; a bomb is not to be unpacked.
constexpr std::chrono::seconds kAtOnce(5);

// What make_workbooks.py wrote, beside what it says of it.
TEST(Workbook, OddOnesAreReadOrRefusedAsTheyMustBe) {
  const std::string folder = std::string(WORKBOOKS) + "/";
  std::ifstream list(folder + "expected.json");
  ASSERT_TRUE(list) << "the workbooks are made by ctest, or by tests/data/make_workbooks.py " << WORKBOOKS;
  for (const json& book : json::parse(list)) {
    const std::string name = book.at("name");
    SCOPED_TRACE(name);
    const auto start = std::chrono::steady_clock::now();
    const Outcome outcome = read(folder + name + ".xlsx");
    EXPECT_LT(std::chrono::steady_clock::now() - start, kAtOnce);

    const std::vector<std::string> failure = book.at("failure");
    if (outcome.kind.empty() && !book.at("rows").is_null()) {
      EXPECT_EQ(outcome.rows, book.at("rows").get<Rows>());
      continue;
    }
    EXPECT_EQ(outcome.kind, failure.empty() ? "" : failure[0]) << outcome.text;
    for (std::size_t piece = 1; piece < failure.size(); ++piece)
      EXPECT_NE(outcome.text.find(failure[piece]), std::string::npos) << failure[piece] << " in: " << outcome.text;
    EXPECT_LT(outcome.text.size(), 300U) << "too much for a screen";
  }
}

TEST(Workbook, CellsThatShareATextAreViewsOfIt) {
  const Table table = _czytaj_xlsx(std::string(WORKBOOKS) + "/attributes.xlsx");  // which has the text and its index
  EXPECT_TRUE(table.shares(table[0][0]) && table.shares(table[1][1]));
  EXPECT_EQ(table[0][0].data(), table[1][1].data());
  EXPECT_FALSE(table.shares(table[0][1]) || table.shares(table[1][0]));
}

TEST(Table, KeepsCellsByTheirColumns) {
  constexpr std::string_view kLetters = "abcdefghijklmnopqrstuvwxyz";
  std::mt19937 random(20240229);
  Table table;
  for (std::size_t i = 0; i < 300; ++i) {
    std::vector<std::string> expected;
    for (std::size_t cells = 1 + random() % 9; cells > 0; --cells) {
      const std::size_t column = random() % (random() % 2 != 0 ? 16 : 4096);
      const Cell cell = kLetters.substr(random() % kLetters.size(), 1);
      expected.resize(std::max(expected.size(), column + 1));
      expected[column] = cell;
      table.set_cell(column, cell);
    }
    table.end_row();
    const Row row = table[i];
    ASSERT_EQ(std::vector<std::string>(row.begin(), row.end()), expected);
    for (std::size_t column = 0; column < expected.size(); ++column) ASSERT_EQ(row[column], expected[column]);
  }
  EXPECT_LT(table.stored_cells(), 5000U);  // of half a million
}

}  // namespace
}  // namespace vexo_xyz_impl
