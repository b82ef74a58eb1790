// The command and its dialogue in the console's host. Whole imports stand in interop/terminal.py.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <system_error>
#include <vector>

#include <gtest/gtest.h>

#include "console/dialogue/path_completion.h"
#include "console/dialogue/shown_text.h"
#include "siblings/vexo_boot/boot.h"
#include "tests/support/console_host.h"
#include "vexo_xyz_impl/command/keywords.h"
#include "vexo_xyz_impl/failure.h"
#include "vexo_xyz_impl/host/siblings.h"
#include "vexo_xyz_impl/messages.h"

namespace vexo_xyz_impl {
namespace {

using testing_support::ConsoleHost;
using testing_support::OwnTexts;

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
    ConsoleHost host(word + "\n\n");
    host.siblings.add("vexo_teksty", std::make_unique<OwnTexts>(texts));
    host.load();
    const std::vector<std::string_view> symbols = {kTak, kZamien};
    EXPECT_EQ(_kword(symbols, "xyz.pytanie"), kZamien);
    EXPECT_EQ(_kword(symbols, "xyz.pytanie"), kTak);
    EXPECT_EQ(_kword(symbols, "xyz.pytanie"), std::nullopt);  // the end of input
    EXPECT_TRUE(host.out.str().starts_with(prompt)) << host.out.str();
  }
}

// No catalogue has words like these; a catalogue is translated by people.
TEST(Dialogue, TakesWholeWordsAndBeginningsOfOne) {
  ConsoleHost host("ta\r\ntak\n");
  host.load();
  host.dialogue.gcedInitGet(0, "Tak Takt Nie");
  EXPECT_EQ(host.dialogue.gcedGetKword("? "), std::pair(host::RTNORM, std::string("Tak")));
  EXPECT_EQ(host.out.str(), "? ta\nOdpowiedź „ta” pasuje do kilku słów: Tak, Takt, Nie. Wpisz więcej liter.\n? tak\n");
}

TEST(Dialogue, ShowsBothEndsOfWhatIsTooLong) {
  const auto letters = [](int count) {
    std::string text;
    for (int i = 0; i < count; ++i) text += "ą";
    return text;
  };
  EXPECT_EQ(console::shown_text(letters(4000)), letters(4000));
  EXPECT_EQ(console::shown_text(letters(4000) + "b"), letters(1500) + " … " + letters(249) + "b");
}

TEST(Dialogue, CompletesPaths) {
  std::string folder = testing::TempDir() + "vexo-test-XXXXXX";
  ASSERT_NE(mkdtemp(folder.data()), nullptr);
  folder += '/';
  for (const char* name : {".ukryty", "łąka.csv", "łęg.csv", "pole.csv"}) std::ofstream(folder + name) << "";
  std::filesystem::create_directory(folder + "dom nad rzeką");
  const struct {
    std::string typed, addition;
    std::size_t names;
  } kCases[] = {
      {" \t\"" + folder + "dom nad", " rzeką/", 1},
      {folder + "p", "ole.csv", 1},
      {folder + ".u", "kryty", 1},
      {folder + "ł", "", 2},  // half of the second letter is the same
      {folder, "", 4},
      {folder + "brak", "", 0},
      {folder + "brak/", "", 0},
  };
  for (const auto& [typed, addition, names] : kCases) {
    const console::PathCompletion completion = console::complete_path(typed);
    EXPECT_EQ(completion.addition, addition) << typed;
    EXPECT_EQ(completion.names.size(), names) << typed;
  }
  std::filesystem::remove_all(folder);
}

TEST(Failures, AreDescribedByKindAndText) {
  const auto described = [](const std::exception& failure) {
    const auto [kind, text] = describe(failure);
    return kind + ": " + text;
  };
  EXPECT_EQ(described(BadZipFile("a")), "BadZipFile: a");
  EXPECT_EQ(described(std::bad_alloc()), "MemoryError: not enough memory");
  EXPECT_EQ(described(std::length_error("a")), "MemoryError: not enough memory");
  EXPECT_EQ(described(std::system_error(ENOENT, std::generic_category(), "a")),
            "OSError: a: No such file or directory");
  EXPECT_EQ(described(std::out_of_range("a")), "IndexError: a");
  EXPECT_EQ(described(std::invalid_argument("a")), "ValueError: a");
  EXPECT_EQ(described(std::domain_error("")), "RuntimeError: ");

  std::string log;
  vexo_boot::Notices([&log](std::string_view line) { log += line; }).blad("VEXO_XYZ", OSError("a\r\nb"));
  EXPECT_TRUE(log.ends_with(" VEXO_XYZ OSError: a  b")) << log;
}

}  // namespace
}  // namespace vexo_xyz_impl
