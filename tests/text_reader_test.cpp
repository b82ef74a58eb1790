#include "vexo_xyz_impl/input/text_reader.h"

#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "vexo_xyz_impl/text/local_time.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace vexo_xyz_impl {
namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;
using Rows = std::vector<std::vector<std::string>>;

Rows rows_of(const Table& table) {
  Rows rows;
  for (const Row row : table.rows()) rows.emplace_back(row.begin(), row.end());
  return rows;
}

Table read(std::string_view bytes) { return table_from_bytes({bytes.begin(), bytes.end()}); }

TEST(TextReader, BytesToRows) {
  const struct {
    const char* name;
    std::string_view bytes;
    Rows rows;
  } cases[] = {
      // Lines.
      {"lone CRs only", "\r\r\r", {}},
      {"blank lines only", "\n \n\t\r\n\u00A0\u2003", {}},
      {"all line ends, none at the end", "1 2\n3 4\r\n5 6\r7 8", {{"1", "2"}, {"3", "4"}, {"5", "6"}, {"7", "8"}}},
      {"ends of both kinds beside each other", "1\r2\r3\n\r4\r\r\n\n5", {{"1"}, {"2"}, {"3"}, {"4"}, {"5"}}},
      {"other breaks end no line", "1\v2\u00853\u20284\f5", {{"1", "2", "3", "4", "5"}}},
      {"comments, also behind blanks", "# a\n // b\n\u00A0#c;d\n//\n#\n1 2", {{"1", "2"}}},
      // Separators.
      {"white space", "1 100.5  200.25\u00A010\u2003\u30007", {{"1", "100.5", "200.25", "10", "7"}}},
      {"a comma never separates", "1;100,5;200,25\n1,2", {{"1", "100,5", "200,25"}, {"1,2"}}},
      {"each line by itself", "1 2 3\n1;2 3\n1\t2 3", {{"1", "2", "3"}, {"1", "2 3"}, {"1", "2 3"}}},
      {"a tab at an end separates nothing", "\t1 2\t\n1 2;\n;1 2", {{"1", "2"}, {"1 2"}, {"1 2"}}},
      {"an empty field keeps no column", "1;;2\nA; ;B\nA;\u2003;B", {{"1", "2"}, {"A", "B"}, {"A", "B"}}},
      {"runs of both delimiters", ";1;\t;\t2\t \t3;;\n;;;\n;\t;\n \t; \t", {{"1", "2", "3"}}},
      {"cells are trimmed and keep their inside", " A\u00A0; \u2003b  c\u3000;\u00A0d ", {{"A", "b  c", "d"}}},
      {"a sign of a comment inside", "1 # a\n/ /\n;# b", {{"1", "#", "a"}, {"/", "/"}, {"# b"}}},
      {"NUL is a character like others", "1\0;\0002\n\0"sv, {{"1\0"s, "\0002"s}, {"\0"s}}},
      {"what only looks like white space", "1\u200B2 \uFEFF3", {{"1\u200B2", "\uFEFF3"}}},
      // Encodings.
      {"byte-order mark", "\uFEFFNr;X", {{"Nr", "X"}}},
      {"byte-order mark before a comment", "\uFEFF# a", {}},
      {"only the first one is a mark", "\uFEFF\uFEFF1\n\uFEFF2", {{"\uFEFF1"}, {"\uFEFF2"}}},
      {"the beginning of a mark", "\xEF\xBB", {{"ď»"}}},
      {"a mark before code page 1250", "\uFEFF\xB3", {{"ď»żł"}}},
      {"UTF-8 of two to four bytes", "ż€\U0001F4CD;\U0010FFFF\uFFFD", {{"ż€\U0001F4CD", "\U0010FFFF\uFFFD"}}},
      {"one letter makes a file code page 1250", "za\xBF\xF3\xB3\xE6;\xC4\x85\n\xB9", {{"zażółć", "Ä…"}, {"ą"}}},
      {"a byte it lacks makes a file latin-1", "\xB9;\x98\n1\x85 2", {{"¹", "\u0098"}, {"1", "2"}}},
      {"overlong form", "\xC0\xAF", {{"ŔŻ"}}},
      {"overlong form of three bytes", "\xE0\x9F\xBF", {{"ŕźż"}}},
      {"surrogate", "\xED\xB2\xBE", {{"í˛ľ"}}},
      {"above the last code point", "\xF4\x90\x80\x80", {{"ô\u0090\u0080\u0080"}}},
      {"cut short by ASCII", "\xC5;1", {{"Ĺ", "1"}}},
      {"cut short by the end", "1;\xE2\x82", {{"1", "â‚"}}},
      {"continuation alone", "1234567;\xBF", {{"1234567", "ż"}}},
  };
  for (const auto& [name, bytes, rows] : cases) {
    SCOPED_TRACE(name);
    EXPECT_EQ(rows_of(read(bytes)), rows);
  }
}

// The code page as its publisher's table shows it; A0 separates cells.
TEST(TextReader, WholeCodePage1250) {
  constexpr auto kUndefined = "\x81\x83\x88\x90\x98"sv;
  std::string bytes;
  for (int byte = 0x80; byte <= 0xFF; ++byte)
    if (kUndefined.find(static_cast<char>(byte)) == std::string_view::npos) bytes += static_cast<char>(byte);
  const Rows expected = {
      {"€‚„…†‡‰Š‹ŚŤŽŹ‘’“”•–—™š›śťžź",
       "ˇ˘Ł¤Ą¦§¨©Ş«¬\u00AD®Ż°±˛ł´µ¶·¸ąş»Ľ˝ľżŔÁÂĂÄĹĆÇČÉĘËĚÍÎĎĐŃŇÓÔŐÖ×ŘŮÚŰÜÝŢßŕáâăäĺćçčéęëěíîďđńňóôőö÷řůúűüýţ˙"}};
  EXPECT_EQ(rows_of(read(bytes)), expected);
  for (const char byte : kUndefined) EXPECT_EQ(rows_of(read("\xB9 "s + byte)).at(0).at(0), "¹") << byte;  // not ą
}

TEST(TextReader, CellsSurviveAMoveOfTheirTable) {
  auto first = std::make_unique<Table>(read("A1;5,5"));  // a string would hold so few bytes inside itself
  const Cell cell = (*first)[0][1];
  const Table second = std::move(*first);
  EXPECT_EQ(first->size(), 0U);  // NOLINT(bugprone-use-after-move): what is left of it is an empty table
  first.reset();
  EXPECT_EQ(cell, "5,5");
  EXPECT_EQ(rows_of(second), (Rows{{"A1", "5,5"}}));
}

// A path is trimmed as well, and its bytes may be no UTF-8: none of them is half a blank.
TEST(Trim, LeavesWhatIsNoUtf8) {
  for (const std::string_view path : {"a\x85"sv, "a\xA0"sv, "\x85"sv, "a\x82\xAC\xA0"sv, "\xA0\x85z"sv})
    EXPECT_EQ(text::trim(" \u3000"s + std::string(path) + "\u00A0\u0085 "), path);
}

TEST(LocalTime, FollowsAZoneThatChanges) {
  std::string zones;
  for (const char* zone : {"AAA-3", "BBB+5"}) {
    setenv("TZ", zone, 1);
    zones += text::local_time("%Z");
  }
  unsetenv("TZ");
  EXPECT_EQ(zones, "AAABBB");
}

}  // namespace
}  // namespace vexo_xyz_impl
