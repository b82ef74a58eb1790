#include "vexo_xyz_impl/table/numbers.h"

#include <algorithm>
#include <bit>
#include <chrono>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "vexo_xyz_impl/failure.h"
#include "vexo_xyz_impl/text/printf_template.h"

namespace vexo_xyz_impl {
namespace {

using namespace std::string_view_literals;

constexpr double kInfinity = std::numeric_limits<double>::infinity();

// Equal to the last bit, so that -0.0 is not 0.0; any nan equals any other.
void expect_number(std::string_view tok, double expected) {
  SCOPED_TRACE(testing::PrintToString(tok));
  ASSERT_TRUE(_czy_liczba(tok));
  const double number = _num(tok);
  if (std::isnan(number) && std::isnan(expected)) return;
  EXPECT_EQ(std::bit_cast<std::uint64_t>(number), std::bit_cast<std::uint64_t>(expected)) << number;
}

std::string times(int count, std::string_view text) {
  std::string repeated;
  while (count-- > 0) repeated += text;
  return repeated;
}

TEST(Numbers, TokensThatAreNumbers) {
  const std::string zeros(400, '0');
  const struct {
    double number;
    std::vector<std::string> spellings;
  } cases[] = {
      {5.0, {"5", "5.", "5,", "+5", "005", "5e0", "0.05E+2", "5" + zeros + "e-400", "0," + zeros + "5e401"}},
      {0.5, {".5", ",5", "+.5", "0,5", "5e-1", "5.e-01"}},
      {-0.0, {"-0", "-,0", "-0e400", "-1e-400", "-0.000e99999999999999999999", "-0," + zeros + "1e5"}},
      // Blanks and no-break spaces are removed wherever they stand, other white space at the ends only.
      {12345.67, {"12 345,67", "12\u00A0345,67", " 1 2345 , 67 ", "\u00A0123\u00A0\u00A045.67\u00A0", "1234 567e - 2"}},
      {-7.25,
       {" -7.25\t", "- 7,25", "\r\n-7,25\v\f", "\u2009-7,25\u202F", "\u3000\u2003 \u0085-7,25 \u2028\u205F\u1680"}},
      // Single underscores between digits, also where a blank stood beside one.
      {1000.5, {"1_000,5", "1_0_0_0.5", "1000.5_0", "1 _000.5", "1_ 000.5", "1_0.005e0_2", "1_000,5\t"}},
      // Digits of other scripts: Arabic-Indic, Devanagari, fullwidth, of four bytes; mixed; in an exponent.
      {12.5, {"\u0661\u0662,\u0665", "\u0967\u0968.5", "\uFF11\uFF12.\uFF15", "\U0001D7CF2.\U0001D7FB"}},
      {12.5, {"1\u0662,5", "1_\u0662,5", "\u0661\u00A0\u0662,5\t", "125e-\u0661", "0.125e\u0660\uFF12"}},
      {9.0, {"\u0669", "\u096F", "\uFF19", "\U0001D7E1", "\U0001FBF9"}},
      // Long repetitions: zeros, digits beyond all precision, blanks of one to three bytes.
      {5.0, {"5" + times(9000, "0") + "e-9000", "0," + times(9000, "0") + "5e9001", "5e" + times(9000, "0")}},
      {1.0 / 9, {"0," + times(9000, "1"), times(9000, "\u0661") + "e-9000", times(9000, " ") + "," + times(9000, "1")}},
      {0.25,
       {times(9000, "\u00A0") + ",2" + times(9000, "\u00A0") + "5" + times(9000, "\t"), times(9000, "\u3000") + ".25"}},
      {kInfinity, {times(9000, "7"), "1e" + times(9000, "7")}},
      // Words.
      {kInfinity, {"inf", "INF", "+Infinity", "iNfInItY", "i n f", "\tinf\u2003"}},
      {-kInfinity, {"-inf", "-INFINITY", "- inf", "-1e400", "-1e99999999999999999999"}},
      {std::nan(""), {"nan", "NaN", "-nan", "+NAN", "n\u00A0an"}},
      // To nearest, ties to even; the ends of the range; exponents that no integer holds, or just so.
      {9007199254740992.0, {"9007199254740992", "9007199254740993", "9007199254740993." + zeros}},
      {9007199254740994.0, {"9007199254740993." + zeros + "1", "9007199254740993." + zeros + "1_0"}},
      {0x1.fffffffffffffp1023,
       {"1,7976931348623157e308", "1.7976931348623158e308", "17976931348623157" + zeros + "e-108"}},
      {kInfinity, {"1.7976931348623159e308", "1e400", "1" + zeros, zeros + "1e400", "1e9223372036854775807"}},
      {0x0.fffffffffffffp-1022, {"2.2250738585072011e-308", "2,225073858507201e-308"}},
      {0x1p-1074, {"4.9e-324", "5e-324", "2.4703282292062328e-324", "0." + zeros + "5e77"}},
      {0.0, {"2.4703282292062327e-324", "0." + zeros + "1e5", "1e-400", "0e400", "0,0e99999999999999999999"}},
      {0.0, {"1e-99999999999999999999", "0.01e-9223372036854775807", zeros + zeros + ",e1"}},
  };
  for (const auto& [number, spellings] : cases)
    for (const std::string& tok : spellings) expect_number(tok, number);
}

TEST(Numbers, FewDigitsAreReadAsManyAre) {
  std::mt19937_64 random(11);  // NOLINT(cert-msc51-cpp): the same numbers at every run
  for (int i = 0; i < 50'000; ++i) {
    std::string tok = std::to_string(random() >> (random() % 64)).insert(0, i % 5 == 0 ? "-" : "");
    if (i % 7 != 0) tok.insert(tok.size() - random() % std::min<std::size_t>(tok.size(), 9), ".");
    expect_number(tok, std::strtod(tok.c_str(), nullptr));
  }
}

TEST(Numbers, TokensThatAreNot) {
  const std::vector<std::string_view> cases[] = {
      {"", " ", "\u00A0 \u00A0", "\t", ".", ",", "-", "+.", "-+5", "--5", "+ -5", "5-", "P12", "12a", "5%", "1/2"},
      // Two decimal marks, other marks, other thousands.
      {"1,234,5", "1.234,5", "1.234.567,89", "1,,5", "1'234", "1;2", "1\u066B5", "5\uFF0E4", "1\u20092", "1\u202F2"},
      // White space inside, what is no white space at the ends, signs of other kinds.
      {"1\t2", "-\t5", "5\u200B", "\uFEFF5", "\u180E5", "\u22125", "\uFF0B5"},
      // Exponents without digits or with more than digits; other notations.
      {"e5", ".e5", "1e", "1e+", "1e+-5", "1e5,5", "1e5e5", "1d5", "1f", "0x10", "0x1p3", "0b1"},
      // Underscores that do not stand singly between digits.
      {"_", "_1", "1_", "1__0", "1_.5", "1._5", "1_e5", "1e_5", "-_1", "1e-_5", "i_nf", "1_\t"},
      {"in", "infin", "infinityx", "nan(1)", "nano", "1nan", "inf5", "+-inf", "\u0131nf"},
      // Numeric characters that are no decimal digits; NUL, a character like others; what is not UTF-8.
      {"\u00B2", "\u00BD", "\u2167", "\u4E00", "1\u06955", "\u066A", "\u0970", "\uFF1A", "\0"sv, "5\0"sv, "1\0002"sv},
      {"5\x80", "\xC2", "5\xC2", "\2405", "\xC0\xB5", "\xED\xA0\x80", "5\t\x80"},
  };
  for (const auto& tokens : cases) {
    for (const std::string_view tok : tokens) {
      EXPECT_FALSE(_czy_liczba(tok)) << testing::PrintToString(tok);
      EXPECT_THROW(static_cast<void>(_num(tok)), ValueError) << testing::PrintToString(tok);
    }
  }
  for (const char* end : {",", "x5", "e", "\t_", "_", "\u3000_", "-"}) {
    EXPECT_FALSE(_czy_liczba(times(9000, "7") + "," + times(9000, "7") + end)) << end;
    EXPECT_FALSE(_czy_liczba(times(9000, " ") + times(9000, "\u00A0") + end)) << end;
  }
  // A text is left where it cannot be a number any more; its length would show in minutes.
  const std::string text = "12 x" + std::string(1U << 24U, '5');
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < 10'000; ++i) EXPECT_FALSE(_czy_liczba(text));
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

// What a placeholder shows of a value, as the family's scripts show it; nothing where the two disagree.
TEST(PrintfTemplate, ShowsValuesOrNothing) {
  using text::TemplateValue;
  constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
  const struct {
    TemplateValue value;
    std::vector<std::pair<std::string_view, std::optional<std::string>>> shown;
  } cases[] = {
      {7LL, {{"%d%%", "7%"}, {"%5i|%%", "    7|%"}, {"%-4u|", "7   |"}, {"%+.3d", "+007"}, {"% 05d", " 0007"}}},
      {7LL, {{"%s", "7"}, {"%f", "7.000000"}, {"%.1e", "7.0e+00"}, {"%hd%%d", "7%d"}, {"%08.4lld", "00000007"}}},
      {-255LL, {{"%x", "-ff"}, {"%#08X", "-0X000FF"}, {"%#o", "-0o377"}, {"%Lg", "-255"}, {"%c", std::nullopt}}},
      {380LL, {{"%c", "ż"}, {"%-3c|", "ż  |"}, {"%hhd", "380"}, {"%q", std::nullopt}, {"%*d", std::nullopt}}},
      {LLONG_MIN, {{"%d", "-9223372036854775808"}, {"%x", "-8000000000000000"}, {"%zd", "-9223372036854775808"}}},
      {2.5, {{"%.0f", "2"}, {"%08.2f", "00002.50"}, {"%-7.1F|", "2.5    |"}, {"%E", "2.500000E+00"}, {"%s", "2.5"}}},
      {2.5, {{"%d", "2"}, {"%x", std::nullopt}, {"%c", std::nullopt}, {"%#.0e", "2.e+00"}, {"%+G", "+2.5"}}},
      {-3.9, {{"%d", "-3"}}},
      {-3.0,
       {{"%d", "-3"}, {"%x", std::nullopt}, {"%s", "-3.0"}, {"%g", "-3"}, {"%.500f", "-3." + std::string(500, '0')}}},
      {1e300, {{"%d", std::nullopt}, {"%s", "1e+300"}, {"%jg", "1e+300"}, {"%.501f", std::nullopt}}},
      {kNan, {{"%d", std::nullopt}, {"%+f", "+nan"}, {"%05G", "00NAN"}}},
      {"żółw"sv, {{"%s", "żółw"}, {"%6s|", "  żółw|"}, {"%-6.2s|", "żó    |"}, {"%05.1s", "    ż"}, {"%ts", "żółw"}}},
      {"żółw"sv, {{"%d", std::nullopt}, {"%f", std::nullopt}, {"%c", std::nullopt}, {"%.s", ""}, {"%", std::nullopt}}},
      {"5%d%%"sv,
       {{"100 %% %s", "100 % 5%d%%"}, {"brak", std::nullopt}, {"%s%s", std::nullopt}, {"%5%", std::nullopt}}},
      {"ą"sv, {{"%3c|", "  ą|"}, {"%y", std::nullopt}, {"%lls", "ą"}, {"%99999999999999999999s", std::nullopt}}},
  };
  for (const auto& [value, shown] : cases)
    for (const auto& [tpl, text] : shown) EXPECT_EQ(text::try_fill(tpl, {value}), text) << tpl;
  EXPECT_EQ(text::try_fill("%s: %d (%.2f)", {"ą"sv, 3LL, 2.345}), "ą: 3 (2.35)");
}

}  // namespace
}  // namespace vexo_xyz_impl
