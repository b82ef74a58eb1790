// Foreign tables of points: what is decided of them, and the file that is made of them.
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "intake/cell_number.h"
#include "intake/columns.h"
#include "intake/dialect.h"
#include "intake/encoding.h"
#include "intake/foreign_table.h"
#include "intake/header_words.h"
#include "intake/role_spelling.h"
#include "intake/seen_table.h"
#include "intake/text_records.h"

namespace {

using namespace intake;  // NOLINT(google-build-using-namespace): what is tested
using std::string;
using std::string_view;

string utf8_of(string_view bytes) {
  const auto text = decoded({bytes.begin(), bytes.end()}).utf8;
  return {text.begin(), text.end()};
}

// A table as the program sees it, from its text on.
struct Table {
  explicit Table(string_view bytes, const Roles* roles = nullptr)
      : table(text_table({bytes.begin(), bytes.end()})), seen(table, roles) {}
  ForeignTable table;
  SeenTable seen;
};

struct Prepared {
  string file;
  PreparedAccount account;
};

Prepared prepared(string_view bytes, string_view columns, MissingHeight missing = MissingHeight::skip) {
  const auto by_position = roles_of(columns);
  Table table(bytes, by_position ? &*by_position : nullptr);
  const auto roles = roles_for(table.seen.shape(), columns);
  if (!roles) return {"no roles", {}};
  Prepared result;
  result.account = write_prepared(table.seen.records(), table.seen.form(*roles, missing),
                                  [&](string_view piece) { result.file += piece; });
  const PreparedAccount& account = result.account;
  EXPECT_EQ(account.records, account.points + account.head.size() + account.left_out) << bytes;
  const TextRecords& lines = *table.table.lines;
  EXPECT_GE(lines.lines(), lines.comments() + lines.blank() + account.records) << bytes;
  return result;
}

// What is decided without being told: the roles when they are clear, else the verdict.
string decided(string_view bytes) {
  const Table table(bytes);
  const Decision decision = decide(table.seen.shape());
  switch (decision.verdict) {
    case Verdict::clear:
      return spelled(decision.proposals.front().roles);
    case Verdict::unclear:
    case Verdict::maybe_degrees:
      return decision.proposals.empty() ? "unclear, nothing proposed" : "asked";
    case Verdict::degrees:
      return "degrees";
    case Verdict::sexagesimal:
      return "sexagesimal";
    case Verdict::no_coordinates:
      break;
  }
  return "none";
}

TEST(Intake, DecidesWhatIsBeyondDoubtAndAsksElse) {
  struct Case {
    string_view text;
    string_view decided;
  };
  const Case kCases[] = {
      // Names, in the languages of the markets and as instruments write them.
      {"Nr;X;Y;H\n1;5780353,02;7499689,07;114,03\n2;5780363,02;7499679,07;114,13\n", "nr,x,y,z"},
      {"Punkt-Nr.\tRechtswert\tHochwert\tHöhe [m]\nA1\t4500000.1\t5800000.2\t34\nA2\t4500001.1\t5800003.2\t35\n",
       "nr,e,n,z"},
      {"Nr. pct,X (Nord),Y (Est),Cota,Cod\n1,500000.1,400000.2,85.3,gard\n2,500001.1,400009.2,85.4,gard\n",
       "nr,n,e,z,-"},
      {"POINT,NORTH,EAST,ELEV,DESC\n1,1981537.847,569633.12,78.65,er\n2,1981538.99,569626.29,78.67,er\n", "nr,n,e,z,-"},
      {"FID,id,POINT_X,POINT_Y,Z_mean\n0,7,301.5,402.5,1\n1,8,302.5,403.5,2\n", "-,nr,x,y,z"},
      {"nazwa|wsp. N|wsp. E|rzędna\nr1|5780353.1|7499689.2|101.1\nr2|5780354.1|7499688.2|101.3\n", "nr,n,e,z"},
      {"id,northing,easting,zone\n1,5428700.5,457400.5,32\n2,5428600.5,452700.5,32\n", "nr,n,e,-"},
      {"Nr X Y mx my\n1 156.77 141.01 0.5 0.4\n2 226.98 140.90 0.5 0.4\n", "nr,x,y,-,-"},
      {"name;Breite;Länge;Rechtswert;Hochwert\na;52,1;13,2;4500000,1;5800000,2\nb;52,2;13,3;4510000,1;5810000,2\n",
       "nr,-,-,e,n"},
      // Units below the names, a title above them, names in a comment, names a line each.
      {"Osnowa\nNr,E,N,H\n,m,m,m\n1,500000.5,600000.5,10\n2,500010.5,600010.5,11\n", "nr,e,n,z"},
      {"# id X Y Z\n#\np1\t444091.954\t9143927.349\t237.886\np2\t444092.022\t9143937.213\t237.856\n", "nr,x,y,z"},
      {"Wells\n3\nX\nY\nElevation\n38.5 28.5 10.4\n45.5 29.5 11.4\n40.5 27.5 10.9\n", "x,y,z"},
      {"WGS84 UTM 32N\n481367.1 5782936.2 100 447 2067 a.jpg g1\n481396.1 5782940.2 101 2381 544 b.jpg g2\n",
       "e,n,z,-,-,-,nr"},
      {"Raport 12 34.5\nNr X Y Z\n1 4302.47 3602.07 10.8\n2 4305.68 3598.83 10.9\n3 4301.2 3597.1 10.7\n", "nr,x,y,z"},
      // Content alone.
      {"P1,4302.047,3602.652,10.804\nP2,4305.768,3598.683,10.855\nP3,4300.1,3590.2,10.9\n", "nr,x,y,z"},
      {"1,355776.180,4611015.011,691.055,E I\n2,355773.203,4611028.546,691.055,E\n", "nr,x,y,z,-"},
      {"533599.69 3377146.49 24.39\n533599.65 3377146.32 26.38\n", "x,y,z"},
      {"1,21371517.49,5412572.475\n4,21371571.8,5412578.879\n5,21371631.33,5412536.546\n", "nr,x,y"},
      {"1.01 100.5 200.5\n1.02 110.5 210.5\n1.03 120.1 190.2\n", "asked"},
      {"id,lat,lon,x,y\n1,52.1643,20.9817,1200,800.5\n2,52.1644,20.9818,1300,900.5\n", "asked"},
      {"353520\t792430\t179.1\n353525\t792430\t180.4\n353530\t792430\t181.2\n", "asked"},
      {"1 8560.93 18052.57 864.96 -90.14 2.68\n2 8651.11 18656.99 858.63 -90.18 -2.36\n", "asked"},
      {"3664940.500 1409153.590 5009571.170\n3664940.510 1409153.580 5009571.167\n", "asked"},
      {"x,y,X,Y\n0.0,0.0,1000.0,2000.0\n100.0,0.0,1100.01,2000.87\n", "asked"},
      {"Name,Northing,Easting,H1 height,Ellipsoidal height\na,5.5,6.5,1.5,30.5\nb,7.5,8.5,2.5,31.5\n", "asked"},
      // Degrees, and metres that look like them.
      {"id,latitude,longitude\n1,52.164318,20.981787\n2,52.164108,20.981630\n", "degrees"},
      {"p1 20.981787 52.164318\np2 20.981630 52.164108\n", "degrees"},
      {"EPSG:4326\n16.47592207 47.64350399 463.6 3185.96 2514.8 a.jpg\n16.47592217 47.64350499 463.7 85.96 14.8 "
       "b.jpg\n",
       "degrees"},
      {"p1;52°13'12.3\"N;21°00'05.1\"E\np2;52°13'12.9\"N;21°00'05.9\"E\n", "sexagesimal"},
      {"p1 39.876 116.345\np2 41.789 123.456\n", "asked"},
      {"X,Y,val\n45.229787,53.65310365,1\n16.95587808,99.35463799,2\n2.1,3.2,3\n98.1,0.5,4\n", "x,y,-"},
      {"a,b\nc,d\n", "none"},
      // Names that are more or fewer than the columns say nothing of which is which.
      {"X Y Z\n1 7501015.90 5701011.42 100.37\n2 7501046.70 5701022.72 100.74\n", "asked"},
      {"# Format: X Y Z\n7501015.90 5701011.42 100.37\n7501046.70 5701022.72 100.74\n", "asked"},
      {"# Nr X Y Z\n7501015.90 5701011.42 100.37\n7501046.70 5701022.72 100.74\n", "asked"},
      {"Nr,Code,E,N,Z\nP1,7501015.90,5701011.42,100.37\nP2,7501046.70,5701022.72,100.74\n", "asked"},
      // A column of heights is not dropped for the rows that lack one, nor for its name.
      {"P1,5701011.42,7501015.90,-\nP2,5701022.72,7501046.70,100.37\nP3,5701033.72,7501056.70,101.37\n"
       "P4,5701044.72,7501066.70,100.31\n",
       "asked"},
      {"Nr;X;Y;H norm\n1;5701011.42;7501015.90;100.37\n2;5701022.72;7501046.70;100.74\n", "asked"},
      {"Nr;X;Y;Głębokość\n1;5701011.42;7501015.90;10.37\n2;5701022.72;7501046.70;12.74\n", "asked"},
      {"Nr;X;Y;H\n1;5701011.42;7501015.90;=100.37\n2;5701022.72;7501046.70;=100.74\n", "asked"},
      {"P1;5701011.42;7501015.90;drzewo\nP2;5701022.72;7501046.70;102\nP3;5701033.72;7501056.70;102\n", "nr,x,y,-"},
      {"L.p.;X;Y;Ortho\n1;5701011.42;7501015.90;100.37\n2;5701022.72;7501046.70;100.74\n", "nr,x,y,z"},
      // Y before X: the order of the file.
      {"Nr,Y,X,H\nP1,5025.816,1094.729,117.849\nP2,5040.553,1063.632,115.634\n", "nr,x,y,z"},
      {"Nr,Lat,Lon,H\nP1,5701011.42,7501015.90,100.37\nP2,5701022.72,7501046.70,100.74\n", "asked"},
  };
  for (const Case& c : kCases) EXPECT_EQ(decided(c.text), c.decided) << c.text;
  const Table two_numbers("1,6,5701011.42,7501015.90,100.37\n2,6,5701022.72,7501046.70,100.74\n");
  EXPECT_EQ(spelled(decide(two_numbers.seen.shape()).proposals.front().roles), "nr,-,x,y,z");
  EXPECT_TRUE(seem_one_short(two_numbers.seen.shape(), *roles_of("nr,n,e,z")));
  EXPECT_FALSE(seem_one_short(two_numbers.seen.shape(), *roles_of("nr,-,n,e")));
  const Table thousands("P1,5'701'011.423,7'501'015.901,100.5\nP2,5'701'022.723,7'501'046.701,100.6\n");
  EXPECT_EQ(judged(thousands.seen.shape(), *roles_of("nr,x,y,z")), Verdict::clear);
}

TEST(Intake, FindsTheDialect) {
  struct Case {
    string_view text;
    char separator;
    bool decimal_comma;
    bool quoted;
    bool mixed;
  };
  const Case kCases[] = {
      {"1,5780353.017,7499689.075\n2,5780354.017,7499689.075\n", ',', false, false, false},
      {"1;5780353,017;7499689,075\n2;5780354,017;7499689,075\n", ';', true, false, false},
      {"1 5780353,017 7499689,075\n2 5780354,017 7499689,075\n", ' ', true, false, false},
      {"1, 110, 200\n2, 260, 560\n", ',', false, false, false},
      {"a,\"5,25\",\"6,5\"\nb,\"7,25\",\"8,5\"\n", ',', true, true, false},
      {"a|5.25|6.5\nb|7.25|8.5\n", '|', false, false, false},
      {"a b\t5.25\t6.5\nc\t7.25\t8.5\n", '\t', false, false, false},
      {"a\t5.25\t6.5\nb 7.25 8.5\nc 7.25\t8.5\n", ' ', false, false, true},
      {"Raport, 3 punkty, 2024\nx y\n1.5 2.5\n2.5 3.5\n3.5 4.5\n", ' ', false, false, false},
  };
  for (const Case& c : kCases) {
    const Dialect dialect = dialect_of(c.text);
    EXPECT_EQ(dialect.separator, c.separator) << c.text;
    EXPECT_EQ(dialect.decimal_comma, c.decimal_comma) << c.text;
    EXPECT_EQ(dialect.quoted, c.quoted) << c.text;
    EXPECT_EQ(dialect.mixed, c.mixed) << c.text;
    EXPECT_TRUE(dialect.is_decided) << c.text;
  }
  EXPECT_FALSE(dialect_of("a b c\nd e f\n").is_decided);
}

TEST(Intake, DecodesWhateverItIsWrittenIn) {
  struct Case {
    string_view bytes;
    string_view utf8;
    Encoding encoding;
  };
  using namespace std::string_view_literals;
  const Case kCases[] = {
      {"1;2\n", "1;2\n", Encoding::utf8},
      {"\xEF\xBB\xBF"
       "1;2\n",
       "1;2\n", Encoding::utf8_marked},
      {"\xFF\xFE"
       "1\0;\0\x42\x01"sv,
       "1;ł", Encoding::utf16_le},
      {"\xFE\xFF"
       "\0"
       "1\0;\xD8\x3D\xDE\x00"sv,
       "1;😀", Encoding::utf16_be},
      {"1\0;\0"
       "2\0\n\0"sv,
       "1;2\n", Encoding::utf16_le},
      {"\0"
       "1\0;\0"
       "2\0\n"sv,
       "1;2\n", Encoding::utf16_be},
      {"r\xF3"
       "w \xB3\xB9"
       "ka\n",
       "rów łąka\n", Encoding::cp1250},
      {"H\xF6he; \xE0 droite\n", "Höhe; à droite\n", Encoding::cp1252},
  };
  for (const Case& c : kCases) {
    EXPECT_EQ(utf8_of(c.bytes), c.utf8);
    EXPECT_EQ(encoding_of(c.bytes), c.encoding) << c.utf8;
  }
}

TEST(Intake, CopiesNumbersDigitForDigit) {
  struct Case {
    string_view cell;
    string_view plain;  // empty: no number
  };
  const Case kCases[] = {
      {"5780353.0170", "5780353.0170"},
      {"5780353,017", "5780353.017"},
      {"-.5", "-.5"},
      {"7 499 689,075", "7499689.075"},
      {"7\u00A0499\u00A0689", "7499689"},
      {"1'234'567.8", "1234567.8"},
      {"1.234.567,8", "1234567.8"},
      {"1,234,567.8", "1234567.8"},
      {"\u22125.5", "-5.5"},
      {"2e-05", "2e-05"},
      {"+5.", "+5."},
      {"017 7499689", ""},
      {"12 34.5", ""},
      {"86.711.1", ""},
      {"nan", ""},
      {"1e999", ""},
      {"1E31", ""},
      {"12.5m", ""},
      {"1,2,3", ""},
      {"", ""},
      {"-", ""},
      {"1234 567", ""},
  };
  for (const Case& c : kCases) {
    string plain;
    EXPECT_EQ(append_number(plain, c.cell), !c.plain.empty()) << c.cell;
    EXPECT_EQ(plain, c.plain) << c.cell;
  }
}

TEST(Intake, TellsAnglesFromNumbersAndNames) {
  for (const string_view angle :
       {"52°13'45\"", "52° 13′ 45.5″ N", "52.2123°", "-52.2123°", "52.2123N", "N52.2", "N 52 13.5", "52:13:41.5",
        "50-13-41", "50 13 41.1", "52º13'", "21°00'05''E", "52'13'12.5"})
    EXPECT_TRUE(is_sexagesimal(angle)) << angle;
  for (const string_view other :
       {"5'701'011.42", "7 499 689", "P-50-13", "52.2123", "12-34", "2024-06-01", "01.06.2024", "50 13 41", "12N",
        "N-34-139", "52°61'", "1.5m", "E", "N", "-", "", "10:15"})
    EXPECT_FALSE(is_sexagesimal(other)) << other;
}

TEST(Intake, WritesWhatTheImporterReads) {
  struct Case {
    string_view text;
    string_view columns;
    string_view file;
  };
  const Case kCases[] = {
      // Axes by role, whatever their order; a decimal comma; names with separators, quotes and line breaks.
      {"n;e;nr\n5,25;6,5;\"a;\"\"b\"\"\"\n7,25;8,5;\"two\nlines\"\n9;9;c", "n,e,nr",
       "# columns: number;E;N\na,\"b\";6.5;5.25\ntwo lines;8.5;7.25\nc;9;9\n"},
      {"\"#1\",1.5,2.5\n//2,3.5,4.5\n ,5.5,6.5\nx,7.5,8.5\ny,7.5,8.5\n", "nr,x,y",
       "# columns: number;X;Y\n1;1.5;2.5\nL3;5.5;6.5\nx;7.5;8.5\ny;7.5;8.5\n"},
      {"5.25,6.5,7\r\r\n1.25,2.5,3\r\r\n", "x,y,z", "# columns: number;X;Y;Z\n1;5.25;6.5;7\n2;1.25;2.5;3\n"},
      {"1,5.5,6.5,1.5\r2,nan,6.5,1.5\r3,5.5,6.5\r4,5.5\r5,abc,6.5,2\r6,inf,1,1", "nr,e,n,z",
       "# columns: number;E;N;Z\n1;5.5;6.5;1.5\n"},
      {"v,pos,h\n1,\"52000.5,21000.5\",3\n2,\"52001.5,21001.5\",4\n", "-,e,n,z",
       "# columns: number;E;N;Z\n1;52000.5;21000.5;3\n2;52001.5;21001.5;4\n"},
      {"a,xy\nr,\"389301,508713\"\ns,\"390229,512013\"\n", "nr,x,y",
       "# columns: number;X;Y\nr;389301;508713\ns;390229;512013\n"},
      {"Nr X Y Z kod\n1 1.5 2.5 3.5\n2 1.5 2.5 3.5\n", "nr,x,y,z",
       "# columns: number;X;Y;Z\n1;1.5;2.5;3.5\n2;1.5;2.5;3.5\n"},
      {"a;5.5;6.5\nb;7.5;8.5\n", "nr,y,x", "# columns: number;X;Y\na;5.5;6.5\nb;7.5;8.5\n"},
      {"P1: 481367 5782936 100\nP2: 481396 5782940 100\n", "nr,e,n,z",
       "# columns: number;E;N;Z\nP1;481367;5782936;100\nP2;481396;5782940;100\n"},
      {"No;East;North\n7;1.5;2.5\n8;2.5;3.5\n", "n=3,e=EAST,nr=No", "# columns: number;E;N\n7;1.5;2.5\n8;2.5;3.5\n"},
      // An open quote swallows nothing; a quote inside a cell is one.
      {"\"a,1.5,2.5\nb\"c,2.5,3.5\nd,4.5,5.5\n", "nr,x,y",
       "# columns: number;X;Y\n\"a;1.5;2.5\nb\"c;2.5;3.5\nd;4.5;5.5\n"},
  };
  for (const Case& c : kCases) EXPECT_EQ(prepared(c.text, c.columns).file, c.file) << c.text;
  for (const string_view columns : {"nr,e", "e,n,e", "x,n", "nr=No,e=East,n=West", "e=2,n=2", "foo", "", "e=East,n=N"})
    EXPECT_EQ(prepared("No;East;North;N;n;N\n7;1.5;2.5;3.5;3.5;3.5\n", columns).file, "no roles") << columns;
}

TEST(Intake, KeepsRowsThatLackAHeight) {
  // By places, by the kinds of what follows, by an empty cell; a row that lacks something else is left out.
  const string_view kPlaced =
      "1     500000.11  600000.11  100.11\n22               500000.12  600000.12\n3     500000.13  600000.13\n"
      "4     500000.14  600000.14  100.14\n";
  const string_view kBlank =
      "1 500.11 600.11 100.11 rog\n2 500.12 600.12 rog\n3 500.13 600.13 100.1 rog\n4 600.14 100.14 rog\n"
      "5 500.15 600.15 100.15\n6 500.15 600.15 100.15 rog\n";
  const string_view kEmpty = "1;5.5;6.5;1.5\n2;5.5;6.5;\n3;5.5;6.5;brak\n4;5.5;6.5\n";
  EXPECT_EQ(prepared(kBlank, "nr,x,y,z", MissingHeight::zero).file,
            "# columns: number;X;Y;Z\n1;500.11;600.11;100.11\n2;500.12;600.12;0\n3;500.13;600.13;100.1\n"
            "4;600.14;100.14;0\n5;500.15;600.15;100.15\n6;500.15;600.15;100.15\n");
  EXPECT_EQ(prepared(kEmpty, "nr,x,y,z", MissingHeight::zero).file,
            "# columns: number;X;Y;Z\n1;5.5;6.5;1.5\n2;5.5;6.5;0\n3;5.5;6.5;0\n4;5.5;6.5;0\n");
  EXPECT_EQ(prepared(kEmpty, "nr,x,y,z").account.left_out, 3U);
  const auto large = prepared("1;1e308;6.5\n2;5.5;6.5\n" + ("3;" + string(150, '9')) + ";6.5\n", "nr,x,y").account;
  ASSERT_EQ(large.noted.size(), 2U);
  for (const NotedRow& row : large.noted) EXPECT_EQ(row.note, RowNote::not_finite) << row.line;
  EXPECT_EQ(prepared(kPlaced, "nr,x,y,z").account.points, 2U);
}

TEST(Intake, LeavesOutRowsWhoseCoordinatesStandFurtherRight) {
  for (const string_view gap : {" ", ";"}) {
    string text;
    for (const string_view number : {"A1", "A2", "A3", "A 4", "A5", "A6"})
      text += (number == "A 4" ? "A" + string(gap) + "4" : string(number)) + string(gap) + "5701011.5" + string(gap) +
              "7501015.5" + string(gap) + "100.5" + (number == "A6" ? string(gap) + "rog" : "") + "\n";
    const auto account = prepared(text, "nr,n,e,z").account;
    EXPECT_EQ(account.points, 5U) << text;
    ASSERT_EQ(account.noted.size(), 1U) << text;
    EXPECT_EQ(account.noted[0].note, RowNote::moved);
    EXPECT_EQ(account.noted[0].line, 4U);
  }
}

TEST(Intake, TellsWhichLineBecameWhichRow) {
  const auto account =
      prepared("nr,x,y\n# c\n1,1.5,2.5\n\n2,1.5,2.5\n3,x,2.5\n4,1.5,2.5\n5,1.5,2.5\n", "nr,x,y").account;
  ASSERT_EQ(account.runs.size(), 2U);
  EXPECT_EQ(account.runs[0].first_line, 3U);
  EXPECT_EQ(account.runs[0].distance, 2U);
  EXPECT_EQ(account.runs[0].rows, 3U);
  EXPECT_EQ(account.runs[1].first_line, 8U);
  EXPECT_EQ(account.runs[1].first_row, 4U);
  ASSERT_EQ(account.noted.size(), 1U);
  EXPECT_EQ(account.noted[0].line, 6U);
  EXPECT_EQ(account.noted[0].note, RowNote::no_coordinate);
}

TEST(Intake, UnderstandsColumnNames) {
  struct Case {
    Named named;
    std::vector<string_view> names;
  };
  const Case kCases[] = {
      {Named::number, {"Nr", "Punkt-Nr.", "nazwa", "Nume punct", "point name", "BHID", "Punktnummer", "ID punktu"}},
      {Named::counter, {"FID", "Lp.", "L.p.", "lfd. Nr.", "Nr. crt."}},
      {Named::easting, {"Easting", "Rechtswert (Y)", "Est", "E [m]", "Y(E)", "utm_easting", "Y (Est)", "X east"}},
      {Named::northing, {"NORTHING", "Hochwert/X", "X (north)", "Nord", "LPCSNorthing", "X(N)", "wsp. północna"}},
      {Named::x,
       {"X", "X [m]", "X 1992", "POINT_X", "XCOLLAR", "geom_x", "Xlocation", "Współrzędna X", "x-coordinate"}},
      {Named::y, {"y", "Y_COORD", "CoordY", "Y 2000"}},
      {Named::height,
       {"Z", "H (wg PIG)", "Wysokość", "Höhe ü. NHN", "cotă", "Elevation", "Z [m n.p.m.]", "Rzędna", "Hn", "RL",
        "DHHN2016"}},
      {Named::latitude, {"lat", "Breite", "szerokość geogr.", "Latitude (WGS84)"}},
      {Named::longitude, {"LAENGE", "Länge", "lon", "długość geograficzna"}},
      {Named::code, {"kod", "Code", "DESC", "feature_name", "opis punktu"}},
      {Named::zone, {"zone", "UTM zone", "strefa"}},
      {Named::error, {"mx[mm]", "std x", "Easting error", "RMS"}},
      {Named::date, {"Date Created", "timestamp"}},
      {Named::other_value, {"Długość [m]", "X_r", "azimuth", "wysokość celu", "nx"}},
      {Named::maybe_height, {"Głębokość", "H norm"}},
      {Named::pair, {"xy", "Position", "Easting/Northing"}},
      {Named::unknown, {"foo", "Primary"}},
      {Named::nothing, {"", "  "}},
  };
  for (const Case& c : kCases)
    for (const string_view name : c.names)
      EXPECT_EQ(header_name(name).named, c.named) << name << ": " << static_cast<int>(header_name(name).named);
}

}  // namespace
