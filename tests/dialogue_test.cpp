// What a terminal shows, and what is typed or pasted there.
#include <chrono>
#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>
#include <unistd.h>

#include "console/dialogue/path_completion.h"
#include "console/dialogue/shown_text.h"
#include "console/dialogue/typed_path.h"
#include "console/progress.h"

namespace console {
namespace {

namespace fs = std::filesystem;

TEST(ShownText, NeitherSteersNorTurns) {
  const struct {
    std::string raw;
    std::string shown;
  } kCases[] = {
      {"zażółć\tgęślą\n", "zażółć\tgęślą\n"},
      {"a\rb\x1b[2J\x7F\u009B", "a\uFFFDb\uFFFD[2J\uFFFD\uFFFD"},
      {"gpj.\u202Evsc", "gpj.\uFFFDvsc"},
      {"\u061C\u200E\u200F\u202A\u2066\u2069|\u200D\u2065", "\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD|\u200D\u2065"},
      {"\xB9", "\uFFFD"},
  };
  for (const auto& [raw, shown] : kCases) EXPECT_EQ(without_control_characters(raw), shown);
}

class Paths : public testing::Test {
 protected:
  Paths() {
    std::string name = testing::TempDir() + "/vexo-paths-XXXXXX";
    folder_ = mkdtemp(name.data());
    fs::create_directory(folder_ / "Dom nad rzeką");
    for (const char* const file : {"a b.txt", "'a b.txt'", "c d.csv", "o'c.csv", "x.csv", "x.csv.log", "x.log", "y.DXF",
                                   "y.bak", "100%25.csv", ".skryty.csv"})
      std::ofstream(folder_ / file).put('\n');
    setenv("HOME", folder_.c_str(), 1);
    fs::current_path(folder_);
  }
  ~Paths() override {
    fs::current_path("/");
    fs::remove_all(folder_);
  }

  fs::path folder_;
};

TEST_F(Paths, AreTakenAsTypedFirst) {
  const std::string folder = folder_.string();
  const struct {
    std::string typed;
    std::string path;
  } kCases[] = {
      {" \"a b.txt\" ", " \"a b.txt\" "},  // which the command reads itself
      {"'a b.txt'", "'a b.txt'"},          // although there is one without the quotes
      {"'c d.csv'", "c d.csv"},
      {"c\\ d.csv", "c d.csv"},
      {"\"o'c\".csv", "o'c.csv"},
      {"'o'\\''c.csv'", "o'c.csv"},
      {"~/x.csv", folder + "/x.csv"},
      {"'~/c d.csv'", folder + "/c d.csv"},
      {"file://" + folder + "/c%20d.csv", folder + "/c d.csv"},
      {"file://localhost" + folder + "/100%2525.csv", folder + "/100%25.csv"},
      {"100%25.csv", "100%25.csv"},
      {"file://elsewhere" + folder + "/x.csv", "file://elsewhere" + folder + "/x.csv"},
      {"'c d.csv", "'c d.csv"},
      {"~/none.csv", "~/none.csv"},
      {"", ""},
  };
  for (const auto& [typed, path] : kCases) EXPECT_EQ(existing_path(typed), path);
}

TEST_F(Paths, AreCompletedAsBegun) {
  const std::string address = "file://" + folder_.string();
  const struct {
    std::string typed;
    std::string addition;
    std::vector<std::string> names;
  } kCases[] = {
      {"c", " d.csv", {"c d.csv"}},
      {"Do", "m nad rzeką/", {"Dom nad rzeką/"}},
      {"~/Dom\\ n", "ad\\ rzeką/", {"Dom nad rzeką/"}},
      {"'c", " d.csv", {"c d.csv"}},
      {address + "/c%20", "d.csv", {"c d.csv"}},
      {address + "/D", "om%20nad%20rzek%C4%85/", {"Dom nad rzeką/"}},
      {address + "/10", "0%2525.csv", {"100%25.csv"}},
      {"x", ".", {"x.csv", "x.log"}},  // the second is no log of a file
      {"y", "", {}},
      {".s", "kryty.csv", {".skryty.csv"}},
  };
  for (const auto& [typed, addition, names] : kCases) {
    const PathCompletion completion = complete_path(typed);
    EXPECT_EQ(completion.addition, addition) << typed;
    EXPECT_EQ(completion.names, names) << typed;
  }
}

TEST(Columns, FitTheTerminal) {
  std::setlocale(LC_CTYPE, "C.UTF-8");
  const std::vector<std::string> names = {"a", "bb", "żółw", "d", "e\n"};
  EXPECT_EQ(in_columns(names, 11), "a     d\nbb    e \nżółw\n");
  EXPECT_EQ(in_columns(names, 3), "a\nbb\nżółw\nd\ne \n");
  EXPECT_EQ(in_columns(names, 80), "a     bb    żółw  d     e \n");
}

std::string trimmed(const std::string& line) { return line.substr(0, line.find_last_not_of(' ') + 1); }

// The lines of a terminal that got these bytes, blanks at their ends aside.
std::string screen_of(const std::string& bytes) {
  std::string line;
  std::string lines;
  std::size_t at = 0;
  for (const char c : bytes) {
    if (c == '\r' || c == '\n') at = 0;
    if (c == '\n') lines += trimmed(std::exchange(line, "")) + c;
    if (c == '\r' || c == '\n') continue;
    line.resize(std::max(line.size(), at + 1), ' ');
    line[at++] = c;
  }
  return lines + trimmed(line);
}

TEST(Progress, LeavesNothingAroundTexts) {
  int pipe_ends[2];
  ASSERT_EQ(pipe(pipe_ends), 0);
  {
    Progress progress(pipe_ends[1]);
    progress.go_on("Inserting", Progress::Measure::share, 200);
    progress.done(50);
    std::this_thread::sleep_for(std::chrono::milliseconds(1200));
    {
      const Progress::Pause pause(&progress);
      ASSERT_EQ(write(pipe_ends[1], "text\n", 5), 5);
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
  }
  close(pipe_ends[1]);
  std::string bytes(10'000, ' ');
  bytes.resize(static_cast<std::size_t>(read(pipe_ends[0], bytes.data(), bytes.size())));
  close(pipe_ends[0]);
  EXPECT_NE(bytes.find("\rInserting: [#######.......................] 25 %"), std::string::npos) << bytes;
  EXPECT_EQ(screen_of(bytes), "text\n") << bytes;
}

}  // namespace
}  // namespace console
