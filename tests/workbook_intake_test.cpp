#include <array>
#include <fstream>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "intake/file_kind.h"
#include "intake/workbook.h"
#include "vexo_xyz_impl/failure.h"
#include "vexo_xyz_impl/input/package.h"

namespace intake {
namespace {

using nlohmann::json;
using Rows = std::vector<std::pair<std::size_t, std::vector<std::string>>>;

json listed(const std::string& name) {
  std::ifstream list(std::string(WORKBOOKS) + "/" + name);
  EXPECT_TRUE(list) << "the files are made by ctest, or by tools/make_workbooks.py " << WORKBOOKS;
  return json::parse(list);
}

std::string name_of(const Sheet* sheet) { return sheet != nullptr ? sheet->name : "none"; }

Rows rows_of(Records& records) {
  Rows rows;
  for (Record record; records.next(record);)
    rows.emplace_back(record.line, std::vector<std::string>(record.cells.begin(), record.cells.end()));
  return rows;
}

std::map<std::string, Flaws::Rows> flaws_of(const Flaws& found) {
  std::map<std::string, Flaws::Rows> flaws{{"formulas_without_value", found.formulas_without_value},
                                           {"dates", found.dates},
                                           {"hidden_rows", found.hidden_rows},
                                           {"cells_without_reference", found.cells_without_reference},
                                           {"prefixed", found.prefixed}};
  std::erase_if(flaws, [](const auto& flaw) { return flaw.second.empty(); });
  return flaws;
}

// As the importer, which has unpacked it.
bool glance(Workbook& workbook, const std::string& path, const Sheet& sheet) {
  vexo_xyz_impl::Package package(path);
  const std::vector<char> xml = package.read(sheet.member);
  return workbook.may_be_flawed({xml.data(), xml.size()});
}

void expect_as_seen(const json& book, const std::string& path) {
  Workbook workbook(path);
  const Sheet* const first = workbook.seen_first();
  EXPECT_EQ(name_of(first), book.at("first").is_null() ? "none" : book.at("first").get<std::string>());
  EXPECT_EQ(name_of(workbook.imported()), book.at("imported").is_null() ? "none" : book.at("imported"));
  if (first == nullptr) return;
  EXPECT_EQ(workbook.named(first->name), first);
  const Flaws flaws = workbook.inspect(*first);
  const auto records = workbook.records(*first);
  const Rows rows = rows_of(*records);
  EXPECT_EQ(rows, book.at("rows").get<Rows>());
  records->rewind();
  EXPECT_EQ(rows_of(*records), rows);
  Flaws::Rows hidden;
  records->rewind();
  for (Record record; records->next(record);)
    if (record.hidden) hidden.push_back(record.line);
  EXPECT_EQ(hidden, flaws.hidden_rows);
  const auto expected = book.at("flaws").get<std::map<std::string, Flaws::Rows>>();
  EXPECT_EQ(flaws_of(flaws), expected);
  EXPECT_TRUE(expected.empty() || glance(workbook, path, *first));
}

TEST(Workbook, IsReadAsPeopleSeeIt) {
  for (const json& book : listed("seen.json")) {
    const std::string name = book.at("name");
    SCOPED_TRACE(name);
    std::string failed;
    try {
      expect_as_seen(book, std::string(WORKBOOKS) + "/" + name + ".xlsx");
    } catch (const vexo_xyz_impl::Failure& failure) {
      failed = failure.kind();
    }
    EXPECT_EQ(failed, book.at("failure").is_null() ? "" : book.at("failure"));
  }
}

TEST(Workbook, IsNotLookedAtCloserWhereAGlanceFindsNothing) {
  for (const std::string name : {"digits", "days", "formats", "first tab"}) {
    const std::string path = std::string(WORKBOOKS) + "/seen " + name + ".xlsx";
    Workbook workbook(path);
    EXPECT_FALSE(glance(workbook, path, *workbook.seen_first())) << name;
  }
}

TEST(FileKind, IsToldByTheBytes) {
  constexpr std::array<std::string_view, 15> kNames = {"text",    "workbook", "ods",    "xlsb",  "encrypted",
                                                       "old_xls", "zip",      "dxf",    "dwg",   "pdf",
                                                       "image",   "utf16",    "raster", "empty", "unreadable"};
  const std::string folder = std::string(WORKBOOKS) + "/";
  for (const auto& [name, kind] : listed("kinds.json").get<std::vector<std::pair<std::string, std::string>>>())
    EXPECT_EQ(kNames.at(static_cast<std::size_t>(file_kind(folder + name))), kind) << name;
  EXPECT_EQ(file_kind(folder), FileKind::unreadable);
  EXPECT_EQ(file_kind(folder + "none"), FileKind::unreadable);
}

}  // namespace
}  // namespace intake
