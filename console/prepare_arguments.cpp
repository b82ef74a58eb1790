#include "console/prepare_arguments.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "siblings/vexo_rynek/rynek.h"

namespace console {
namespace {

constexpr std::array<std::string_view, 3> kMarkets = {"PL", "DE", "RO"};

constexpr const char* kFooter =
    "ROLES by position, one for each column from the left: nr (number), e (easting), n (northing), x, y (coordinates\n"
    "whose axes are not known, written in the file's order), z (height), - (not taken): --columns nr,n,e,z. Or by the\n"
    "header's names or by positions: --columns nr=POINT,n=NORTH,e=EAST,z=4, without the role where the name says it:\n"
    "--columns POINT,NORTH,EAST,ELEV. Without a number the points are counted.\n"
    "What neither the file nor --columns tells is asked; answers may be piped in, and nothing is guessed.\n"
    "\n"
    "Exit codes:\n"
    "  0  the file was written, and beside it OUT.csv.log, which tells which line became which row\n"
    "  1  nothing was written: cancelled, degrees, no points, or a file that is no table\n"
    "  2  the command line was not understood, or --columns or --sheet does not fit the file\n"
    "  3  failure: a file that cannot be read or written, or that exists already";

}  // namespace

void check_market(const Choice& choice) {
  const std::string market = vexo_rynek::Market(choice.market).rynek();
  if (std::find(kMarkets.begin(), kMarkets.end(), market) == kMarkets.end())
    throw CLI::ValidationError("VEXO_RYNEK", market + " is no market; known are PL, DE, RO");
}

void declare_choice(CLI::App& app, Choice& choice) {
  app.add_option("--market", choice.market, "Country whose coordinate systems are tried. Default: $VEXO_RYNEK, else PL")
      ->type_name("PL|DE|RO")
      ->transform(CLI::IsMember(std::vector<std::string>(kMarkets.begin(), kMarkets.end()), CLI::ignore_case));
  app.add_option("--lang", choice.language, "Language of the messages. Default: the market's")
      ->type_name("PL|DE|RO|EN")
      ->transform(CLI::IsMember({"PL", "DE", "RO", "EN"}, CLI::ignore_case));
}

CLI::App* declare_prepare(CLI::App& app, PrepareArguments& arguments) {
  using intake::MissingHeight;
  CLI::App* const prepare =
      app.add_subcommand("prepare", "Makes any table of points a file that is imported without a question");
  prepare->footer(kFooter);
  PrepareOptions& options = arguments.options;
  prepare->add_option("FILE", options.file, "Table of points: text of any separator, or .xlsx")->required();
  CLI::Option* const output =
      prepare
          ->add_option("-o,--output", options.output,
                       "File to write. Default: beside FILE, with _prepared.csv, or the next free one (_2, _3 ...)")
          ->type_name("OUT.csv")
          ->check(
              CLI::Validator([](const std::string& name) { return name.empty() ? "a file needs a name" : ""; }, ""));
  prepare->add_option("--columns", options.columns, "What the columns hold; see below")->type_name("ROLES");
  prepare->add_option("--sheet", options.sheet, "Sheet of a workbook. Default: the one that is seen first")
      ->type_name("NAME");
  prepare
      ->add_option_function<std::string>(
          "--missing-height",
          [&options](const std::string& what) {
            options.missing_height = what == "zero" ? MissingHeight::zero : MissingHeight::skip;
          },
          "What becomes of a row without a height where others have one: 'skip', the default, or 'zero'")
      ->type_name("WHAT")
      ->check(CLI::IsMember({"skip", "zero"}));
  prepare->add_flag("--force", options.force, "Replace the file given by -o, and its log, if they exist")
      ->needs(output);
  declare_choice(*prepare, arguments.choice);
  return prepare;
}

}  // namespace console
