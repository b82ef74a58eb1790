// The drawing side: the embedded database's refusals, labels and numbers as DXF spells them.
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "console/drawing/database.h"
#include "console/dxf/dxf_writer.h"
#include "console/dxf/tag_writer.h"
#include "console/dxf/text_encoding.h"

namespace console {
namespace {

using namespace vexo_xyz_impl::host;  // NOLINT(google-build-using-namespace): the interface under test

constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(Database, RefusesWhatWouldSpoilTheDrawing) {
  Database database;
  Database* const db = &database;
  auto blocks = database.getBlockTable(GcDb::kForRead).second;
  auto ms = blocks->getAt(GCDB_MODEL_SPACE, GcDb::kForWrite).second;
  blocks->close();
  const auto appended = [&](std::unique_ptr<GcDbEntity> entity) {
    const auto status = ms->appendGcDbEntity(*entity).first;
    entity->close();
    return status;
  };
  for (const double value : {std::numeric_limits<double>::quiet_NaN(), kInfinity, -kInfinity, -1.1e15}) {
    EXPECT_EQ(appended(db->newGcDbPoint({value, 2, 3})), Gcad::eInvalidInput) << value;
    EXPECT_EQ(appended(db->newGcDbPoint({1, value, 3})), Gcad::eInvalidInput) << value;
    EXPECT_EQ(appended(db->newGcDbPoint({1, 2, value})), Gcad::eInvalidInput) << value;
  }
  EXPECT_EQ(appended(db->newGcDbText({1, 2, 3}, "bez wysokości")), Gcad::eInvalidInput);
  EXPECT_EQ(db->refused_count(), 13U);

  auto text = db->newGcDbText({1, 2, 3}, "A");
  text->setHeight(2.5);
  EXPECT_EQ(text->setTextStyle({9999}), Gcad::eNullObjectId);
  const auto [status, id] = ms->appendGcDbEntity(*text);
  EXPECT_EQ(status, Gcad::eOk);
  EXPECT_EQ(ms->appendGcDbEntity(*text).first, Gcad::eInvalidInput);  // it is there already
  text->setHeight(5.0);                                               // open until closed, now in the drawing
  text->close();
  EXPECT_EQ(text->setHeight(7.5), Gcad::eNotOpenForWrite);
  EXPECT_EQ(database.drawing().text(id.value)->height, 5.0);

  ms->close();
  auto table = database.getBlockTable(GcDb::kForRead).second;
  auto reader = table->getAt(GCDB_MODEL_SPACE, GcDb::kForRead).second;
  auto point = db->newGcDbPoint({1, 2, 3});
  EXPECT_EQ(reader->appendGcDbEntity(*point).first, Gcad::eNotOpenForWrite);
  EXPECT_EQ(table->getAt(GCDB_MODEL_SPACE, GcDb::kForWrite).first, Gcad::eWasOpenForRead);
  EXPECT_EQ(table->getAt("*Paper_Space", GcDb::kForRead).first, Gcad::eKeyNotFound);
  point->close();
  reader->close();
  EXPECT_EQ(reader->close(), Gcad::eInvalidInput);  // not the opening of anybody else
  table->close();

  database.drawing().add(Group{0, "Abc", "", true, {}});
  auto groups = database.getGroupDictionary(GcDb::kForWrite).second;
  EXPECT_TRUE(groups->has("aBC") && !groups->has("Ab"));
  EXPECT_EQ(database.getGroupDictionary(GcDb::kForRead).first, Gcad::eWasOpenForWrite);
  groups->close();
  EXPECT_EQ(database.open_count(), 0U);
  EXPECT_EQ(database.drawing().entity_count(), 1U);
}

TEST(Dxf, SpellsLabelsSoThatTheyShowAsTyped) {
  const struct {
    std::string label;
    std::string encoded;
  } kCases[] = {
      {"P12", "P12"},
      {"Źródło 1/2 {a};\\P", "Źródło 1/2 {a};\\P"},
      {"100%", "100%"},
      {"5%%d", "5%%037%d"},
      {"%%%", "%%037%%037%"},
      {"A^B^", "A^ B^ "},
      {"\\U+0041 \\M+1", "\\U+005CU+0041 \\U+005CM+1"},
      {"a\r\nb\tc", "a  b c"},
      {std::string("a\0b\x7F", 4), "a b "},
      {"a\u0085b%\u2028c", "a b% c"},
      {"\xB9!", "\uFFFD!"},
  };
  std::string changed;
  for (const auto& [label, encoded] : kCases) EXPECT_EQ(TextEncoding().label(label, changed), encoded);
}

struct StringSink final : ByteSink {
  void write(std::string_view bytes) override { text += bytes; }
  std::string text;
};

// Writes reals through one writer and takes each out of the sink.
class RealWriter {
 public:
  std::string text_of(double value) {
    sink_.text.clear();
    tags_.real(10, value);
    tags_.flush();
    return sink_.text.substr(3, sink_.text.size() - 4);  // between "10\n" and the line's end
  }

 private:
  StringSink sink_;
  TagWriter tags_{sink_};
};

TEST(Drawing, HoldsMoreThanABlockOfEachKind) {
  constexpr std::size_t kPairs = 9000;
  Drawing drawing;
  std::vector<Handle> members;
  for (std::size_t i = 0; i < kPairs; ++i) {
    const auto at = static_cast<double>(i);
    members.push_back(drawing.add(PointGeometry{{at, 1, 2}}).value());
    // The first label says nothing.
    members.push_back(drawing.add(TextGeometry{{at, 3, 4}, 2.5, 0, std::string(i % 300, 'x')}).value());
  }
  std::size_t visited = 0;
  drawing.for_each_entity([&](Handle handle, const auto& geometry) {
    ASSERT_EQ(handle, members[visited]);
    ASSERT_EQ(geometry.position.x, static_cast<double>(visited++ / 2));
  });
  EXPECT_EQ(visited, 2 * kPairs);
  EXPECT_EQ(drawing.point(members[kPairs])->position.x, kPairs / 2);
  EXPECT_EQ(drawing.point(members[kPairs + 1]), nullptr);
  EXPECT_EQ(drawing.text(members[kPairs + 1])->text, std::string(kPairs / 2 % 300, 'x'));

  // Groups that name their members in no order, one of them in two.
  drawing.add(Group{0, "A", "", true, {members[2], members[0]}});
  drawing.add(Group{0, "B", "", true, {members[2]}});
  StringSink sink;
  write_dxf(drawing, {}, "ANSI_1250", sink);
  const std::string point = "0\nPOINT\n5\n";
  const std::string one = "102\n{ACAD_REACTORS\n330\n" + handle_text(drawing.groups()[0].handle) + "\n";
  const std::string other = "330\n" + handle_text(drawing.groups()[1].handle) + "\n";
  EXPECT_NE(sink.text.find(point + handle_text(members[0]) + "\n" + one + "102\n}\n"), std::string::npos);
  EXPECT_NE(sink.text.find(point + handle_text(members[2]) + "\n" + one + other + "102\n}\n"), std::string::npos);
  EXPECT_NE(sink.text.find(point + handle_text(members[4]) + "\n330\n"), std::string::npos);
}

TEST(Dxf, WritesTextsLongerThanItsBuffer) {
  StringSink sink;
  TagWriter tags(sink);
  const std::string longer(70'000, 'x');
  tags.text(1, longer);
  tags.flush();
  EXPECT_EQ(sink.text, "1\n" + longer + "\n");
}

// The shortest decimals that read back to the value, as the standard library finds them for any double.
std::string shortest(double value) {
  std::array<char, 400> digits{};
  std::string text(digits.data(), std::to_chars(digits.begin(), digits.end(), value, std::chars_format::fixed).ptr);
  return text.find('.') == std::string::npos ? text + ".0" : text;
}

TEST(Dxf, WritesRealsThatReadBackToTheSameDouble) {
  const struct {
    double value;
    std::string text;
  } kCases[] = {
      {0.0, "0.0"},
      {-0.0, "-0.0"},
      {5.0, "5.0"},
      {7500846.17, "7500846.17"},
      {-12.5, "-12.5"},
      {0.001, "0.001"},
      {0.0005, "0.0005"},
      {1e-7, "0.0000001"},
      {32356678.508, "32356678.508"},
      {-5e-324, "-0." + std::string(323, '0') + "5"},
      {1e22, "10000000000000000000000.0"},
      {9007199254740993.0, "9007199254740992.0"},
      {0.1 + 0.2, "0.30000000000000004"},
      {8796093022207.999, "8796093022207.999"},
      {-8842358187708.199, "-8842358187708.2"},  // the same double
  };
  RealWriter writer;
  for (const auto& [value, text] : kCases) EXPECT_EQ(writer.text_of(value), text);

  std::mt19937_64 random(7);  // NOLINT(cert-msc51-cpp): the same numbers at every run
  std::uniform_real_distribution<double> exponents(-12.0, 15.0);
  for (int i = 0; i < 200'000; ++i) {
    double value = std::pow(10.0, exponents(random)) * (i % 2 == 0 ? 1.0 : -1.0);
    if (i % 3 == 0) value = std::round(value * 1000.0) / 1000.0;
    if (i % 11 == 0) value = std::nextafter(value, 0.0);
    ASSERT_EQ(writer.text_of(value), shortest(value));
    ASSERT_EQ(std::strtod(writer.text_of(value).c_str(), nullptr), value);
  }
}

}  // namespace
}  // namespace console
