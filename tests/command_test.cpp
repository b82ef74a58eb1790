// The command from the file prompt to the report, in the console's host.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/console_host.h"
#include "vexo_xyz_impl/command/keywords.h"
#include "vexo_xyz_impl/failure.h"
#include "vexo_xyz_impl/host/siblings.h"
#include "vexo_xyz_impl/messages.h"

namespace vexo_xyz_impl {
namespace {

using host::CommandOutcome;
using testing_support::ConsoleHost;
using testing_support::in_order;
using testing_support::OwnTexts;
using testing_support::TemporaryFile;

// Near Kudowa both axis orders fit; near Gdańsk only easting first; 100/200 is in no national system.
constexpr std::string_view kAmbiguous = "K1 5590435.97 5588346.40 392.34\nK2 5590429.97 5588342.20 393.60\n";

struct Flow {
  std::string name;
  std::string content;
  std::string typed;
  CommandOutcome outcome;
  std::vector<std::string> said;  // in this order
  std::vector<console::Position> points;
};

std::string points_and_junk(int points, int junk) {
  std::string content = "L1;1,5;200,25;10\n";
  for (int i = 1; i < points; ++i) content += "L;" + std::to_string(i) + ";300,5;11\n";
  for (int i = 0; i < junk; ++i) content += "L;1;" + std::to_string(i) + ";brak\n";
  return content;
}

const std::vector<Flow> kFlows = {
    {"exchanged by the user",
     std::string(kAmbiguous),
     "z\n",
     CommandOutcome::done,
     {"Układ kolumn: NrXYZ", "zostaną wczytane", "więcej niż jednego odczytu", "Tak: PL-2000 strefa 5",
      "Zamien: PL-2000", "[Tak/Zamien] <Tak>: ", "Wstawiono punkty wraz z numerami: 2", "kontrolą przesunięć: 2",
      "w grupie PIKIETY_"},
     {{5588346.40, 5590435.97, 392.34}, {5588342.20, 5590429.97, 393.60}}},
    {"kept when the question is cancelled",
     std::string(kAmbiguous),
     "\x1b"
     "\n",
     CommandOutcome::done,
     {"[Tak/Zamien]", "Wstawiono punkty wraz z numerami: 2"},
     {{5590435.97, 5588346.40, 392.34}, {5590429.97, 5588342.20, 393.60}}},
    {"a wrong word is explained and asked again",
     std::string(kAmbiguous),
     "nie\nZAM\n",
     CommandOutcome::done,
     {"[Tak/Zamien]", "„nie”", "Tak, Zamien", "[Tak/Zamien]", "Wstawiono"},
     {{5588346.40, 5590435.97, 392.34}, {5588342.20, 5590429.97, 393.60}}},
    {"layout settled by the user",
     "7 100 200\n9 110 220\n",
     "w\n",
     CommandOutcome::done,
     {"kolumn jest 3", "Pierwszy wiersz danych: 7  100  200\n",
      "[Numer/Wspolrzedna] <Numer>: ", "XYZ (układ wskazany przez użytkownika)", "Nie rozpoznano układu współrzędnych"},
     {{7, 100, 200}, {9, 110, 220}}},
    {"layout question answered by Enter",
     "7 100 200\n9 110 220\n",
     "\n",
     CommandOutcome::done,
     {"NrXY (układ wskazany", "Z = 0"},
     {{100, 200, 0}, {110, 220, 0}}},
    {"layout question cancelled",
     "7 100 200\n9 110 220\n",
     "",
     CommandOutcome::nothing_done,
     {"[Numer/Wspolrzedna]", "Anulowano"},
     {}},
    {"seven skipped lines",
     points_and_junk(1, 7),
     "",
     CommandOutcome::done,
     {"Pominięte wiersze", "wiersz danych 2:", "wiersz danych 6:", "nie pokazane: 2", "ZOOM"},
     {{1.5, 200.25, 10}}},
    {"skipped lines only",
     "a;1;2;x\nb;1;2;x\nc;1;2;x\nd;1;2;x\n",
     "",
     CommandOutcome::nothing_done,
     {"Nie znaleziono ani jednego punktu", "wiersz danych 1:", "wiersz danych 3:", "Sprawdź plik"},
     {}},
    {"no data at all asks nothing",
     "Nr;X;Y\nopis;a;b\n",
     "",
     CommandOutcome::nothing_done,
     {"żaden wiersz", "Nie znaleziono", "Sprawdź plik"},
     {}},
    {"repeated numbers are inserted and reported",
     "A;1;2\nA;3;4\nB;5;6\n",
     "",
     CommandOutcome::done,
     {"numerami: 3", "powtórzone numery punktów: 1"},
     {{1, 2, 0}, {3, 4, 0}, {5, 6, 0}}},
    {"what the drawing refuses is left out",
     "A;1;2;nan\nB;3;4;5\n",
     "",
     CommandOutcome::done,
     {"numerami: 2", "kontrolą przesunięć: 1"},
     {{3, 4, 5}}},
    {"an infinite coordinate fails before anything is inserted",
     "A;1;2;3\nB;1e999;4;5\n",
     "",
     CommandOutcome::failed,
     {"OverflowError"},
     {}},
    {"a labelled row in two columns fails",
     "1 2\nbaza 100\n3 4\n",
     "",
     CommandOutcome::failed,
     {"IndexError: ", "baza 100"},
     {}},
};

TEST(Import, Flows) {
  for (const Flow& flow : kFlows) {
    SCOPED_TRACE(flow.name);
    const TemporaryFile file("pomiar.txt", flow.content);
    ConsoleHost host("PL", flow.typed, file.path());
    host.load();
    EXPECT_EQ(host.import(), flow.outcome);
    EXPECT_TRUE(in_order(host.out.str(), flow.said));
    EXPECT_EQ(host.database.open_count(), 0U);
    const auto points = host.points();
    ASSERT_EQ(points.size(), flow.points.size());
    for (std::size_t i = 0; i < points.size(); ++i) {
      EXPECT_EQ(points[i].position.x, flow.points[i].x);
      EXPECT_EQ(points[i].position.y, flow.points[i].y);
      EXPECT_EQ(points[i].position.z, flow.points[i].z);
    }
    EXPECT_EQ(host.labels().size(), points.size());
    EXPECT_EQ(host.database.drawing().groups().size(), points.empty() ? 0U : 1U);
    EXPECT_EQ(host.notices.size(), flow.outcome == CommandOutcome::failed ? 2U : 1U);  // the start, and a failure
  }
}

TEST(Import, ListsNoMoreSkippedLinesThanItSays) {
  const TemporaryFile file("p.txt", points_and_junk(1, 7));
  ConsoleHost host("PL", "", file.path());
  host.load();
  host.import();
  EXPECT_EQ(host.out.str().find("wiersz danych 7:"), std::string::npos);
}

TEST(Import, TakesATypedPathWithQuotesAndBlanks) {
  const TemporaryFile file("dwa punkty.csv", kAmbiguous);
  ConsoleHost host("PL", "  \"" + file.path() + "\" \n\n");
  host.load();
  EXPECT_EQ(host.import(), CommandOutcome::done);
  EXPECT_EQ(host.points().size(), 2U);

  ConsoleHost cancelled("PL", "   \n");
  cancelled.load();
  EXPECT_EQ(cancelled.import(), CommandOutcome::nothing_done);
  EXPECT_TRUE(in_order(cancelled.out.str(), {"Anulowano"}));
}

TEST(Import, SizesLabelsByTheExtentOfThePoints) {
  const struct {
    std::string content;
    double height;
  } kCases[] = {
      {"A;100;200\nB;100;200\n", 2.5},  // one spot
      {"A;0;0\nB;100;60\n", 2.0},       // 2 % of the larger extent
      {"A;0;0\nB;10;5000\n", 100.0},
      {"A;0;0\nB;10;7750\n", 160.0},  // whole tens above 100
  };
  for (const auto& [content, height] : kCases) {
    const TemporaryFile file("p.csv", content);
    ConsoleHost host("PL", "", file.path());
    host.load();
    host.import();
    ASSERT_EQ(host.labels().size(), 2U) << content;
    EXPECT_EQ(host.labels()[0].height, height);
    EXPECT_EQ(host.labels()[0].position.x, host.points()[0].position.x + height * 0.6);
    EXPECT_EQ(host.labels()[0].position.y, host.points()[0].position.y + height * 0.6);
    EXPECT_EQ(host.labels()[0].text, "A");
  }
}

TEST(Import, GivesEachImportOfAFileItsOwnGroup) {
  const TemporaryFile file("Działka 12.csv", kAmbiguous);
  ConsoleHost host("PL", "\n\n\n", file.path());
  host.load();
  for (int i = 0; i < 3; ++i) EXPECT_EQ(host.import(), CommandOutcome::done);
  const auto& groups = host.database.drawing().groups();
  ASSERT_EQ(groups.size(), 3U);
  EXPECT_TRUE(groups[0].name.ends_with("_Dzia_ka_12"));
  EXPECT_EQ(groups[1].name, groups[0].name + "_2");
  EXPECT_EQ(groups[2].name, groups[0].name + "_3");
  for (const auto& group : groups) EXPECT_EQ(group.members.size(), 4U);
}

TEST(Import, SaysWhyPointsAreNotControlled) {
  const struct {
    int points;
    bool core;
    std::string said;
    bool marked;
  } kCases[] = {
      {2000, true, "kontrolą przesunięć: 2000", true},
      {2001, true, "punktów jest 2001, a kontrola obejmuje najwyżej 2000", false},
      {3, false, "niedostępna (ModuleNotFoundError: no module named 'vexo_reaktywne_core')", false},
  };
  for (const auto& [points, core, said, marked] : kCases) {
    const TemporaryFile file("p.csv", points_and_junk(points, 0));
    ConsoleHost host("PL", "", file.path());
    if (!core) host.siblings.remove("vexo_reaktywne_core");
    host.load();
    EXPECT_EQ(host.import(), CommandOutcome::done);
    EXPECT_TRUE(in_order(host.out.str(), {said}));
    const auto& drawing = host.database.drawing();
    const auto* record = drawing.control_record(drawing.entities().front().handle);
    ASSERT_EQ(record != nullptr, marked);
    if (!marked) continue;
    EXPECT_EQ(record->kind, "XYZPKT");
    EXPECT_EQ(record->handles, std::vector{console::handle_text(drawing.entities().front().handle)});
    EXPECT_EQ(record->at_registration.y, 200.25);
  }
}

TEST(Import, ReportsObjectsThatAreOpenElsewhere) {
  const TemporaryFile file("p.csv", "A;1;2\n");
  {
    ConsoleHost host("PL", "", file.path());
    host.load();
    auto groups = host.database.getGroupDictionary(host::GcDb::kForRead).second;
    EXPECT_EQ(host.import(), CommandOutcome::done);
    EXPECT_TRUE(in_order(host.out.str(), {"Nie utworzono grupy: słownik grup", "ręcznie", "ZOOM"}));
    EXPECT_EQ(host.points().size(), 1U);
    groups->close();
  }
  ConsoleHost host("PL", "", file.path());
  host.load();
  auto table = host.database.getBlockTable(host::GcDb::kForRead).second;
  auto model_space = table->getAt(host::GCDB_MODEL_SPACE, host::GcDb::kForWrite).second;
  EXPECT_EQ(table->getAt(host::GCDB_MODEL_SPACE, host::GcDb::kForWrite).first, host::Gcad::eWasOpenForWrite);
  EXPECT_EQ(host.import(), CommandOutcome::failed);
  EXPECT_TRUE(in_order(host.out.str(), {"Nie można otworzyć obszaru modelu"}));
  EXPECT_EQ(host.database.open_count(), 2U);  // what this test opened, nothing else
  model_space->close();
  table->close();
}

TEST(Keywords, FallBackWhereTheCatalogueFails) {
  const struct {
    std::map<std::string, std::string, std::less<>> texts;
    std::string prompt;
    std::string word;
  } kCases[] = {
      {{}, "\n[Tak/Zamien] <Tak>: ", "Zamien"},
      {{{"xyz.kw_zamien", "Zamień osie"}}, "\n[Tak/Zamien] <Tak>: ", "Zamien"},  // a blank cannot be typed
      {{{"xyz.kw_tak", "Ja"}, {"xyz.kw_zamien", ""}}, "\n[Ja/Zamien] <Ja>: ", "Zamien"},
      {{{"xyz.kw_tak", "Ja"}, {"xyz.kw_zamien", "Tauschen"}, {"xyz.pytanie", "%s? %s! "}},
       "Ja/Tauschen? Ja! ",
       "Tauschen"},
      {{{"xyz.pytanie", "jeden %s "}}, "\n[Tak/Zamien] <Tak>: ", "Zamien"},  // a template of one value
  };
  for (const auto& [texts, prompt, word] : kCases) {
    ConsoleHost host("PL", word + "\n\n");
    host.siblings.add("vexo_teksty", std::make_unique<OwnTexts>(texts));
    host.load();
    const std::vector<std::string_view> symbols = {kTak, kZamien};
    EXPECT_EQ(_kword(symbols, "xyz.pytanie"), kZamien);
    EXPECT_EQ(_kword(symbols, "xyz.pytanie"), kTak);
    EXPECT_EQ(_kword(symbols, "xyz.pytanie"), std::nullopt);  // the end of input
    EXPECT_TRUE(in_order(host.out.str(), {prompt}));
  }
}

TEST(Messages, AreFilledOrShownAsTheyStand) {
  const struct {
    std::string tpl;
    std::vector<TemplateValue> values;
    std::optional<std::string> filled;
  } kCases[] = {
      {"%s: %d (%.2f)", {std::string_view("ą"), 3LL, 2.345}, "ą: 3 (2.35)"},
      {"100 %% %s", {std::string_view("50%d%%")}, "100 % 50%d%%"},
      {"%s", {7LL}, "7"},
      {"%5d|%-4s|", {7LL, std::string_view("a")}, "    7|a   |"},
      {"brak", {7LL}, std::nullopt},
      {"%s %s", {7LL}, std::nullopt},
      {"%d", {std::string_view("siedem")}, std::nullopt},
      {"%f", {7LL}, std::nullopt},
      {"%", {}, std::nullopt},
      {"%q", {7LL}, std::nullopt},
      {"%*d", {7LL}, std::nullopt},
  };
  for (const auto& [tpl, values, filled] : kCases) EXPECT_EQ(try_fill(tpl, values), filled) << tpl;

  ConsoleHost host;
  host.siblings.add("vexo_teksty", std::make_unique<OwnTexts>(
                                       std::map<std::string, std::string, std::less<>>{{"xyz.zly", "tylko %d"}}));
  host.load();
  EXPECT_EQ(filled("xyz.zly", {std::string_view("tekst")}), "tylko %d");
  EXPECT_EQ(filled("xyz.nie_ma", {std::string_view("tekst")}), "xyz.nie_ma");
}

}  // namespace
}  // namespace vexo_xyz_impl
