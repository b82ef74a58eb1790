// The stand-alone program: arguments, the terminal, exit codes.
#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <exception>
#include <iostream>
#include <memory>
#include <string>

#include <CLI/CLI.hpp>
#include <langinfo.h>
#include <unistd.h>

#include "console/dialogue/typed_path.h"
#include "console/kept_memory.h"
#include "console/prepare_arguments.h"
#include "console/session.h"
#include "vexo_xyz_impl/command/keywords.h"

namespace {

constexpr const char* kVersion = "vexo-xyz 0.1";

constexpr const char* kFooter =
    "Questions are answered by a keyword or any beginning of it that fits only one; Enter takes the default. Escape\n"
    "or the end of input leaves a question open: of the columns, and nothing is imported; of the axes, and the points\n"
    "are inserted as they stand in the file, their order not confirmed. Answers may be piped in, a line each.\n"
    "\n"
    "Exit codes:\n"
    "  0  points were imported and the drawing was saved\n"
    "  1  nothing was imported: cancelled, or the file holds no points\n"
    "  2  the command line was not understood\n"
    "  3  failure: a file that cannot be read, a drawing that cannot be saved, an error during the import";

struct Arguments {
  std::string file;
  std::string output;
  bool force = false;
  bool prepare_too = false;
  std::string report;
  std::string first_column;
  std::string axes;
  console::Choice choice;
};

void declare(CLI::App& app, Arguments& arguments) {
  app.set_version_flag("--version", kVersion);
  app.footer(kFooter);
  app.add_option("FILE", arguments.file,
                 "File of surveyed points: delimited text or .xlsx. Without it the path is asked for");
  app.add_option("-o,--output", arguments.output,
                 "Drawing to write. Default: beside FILE, with its name, or the next free one (_2, _3 ...)")
      ->type_name("OUT.dxf");
  app.add_flag("--force", arguments.force, "Replace the drawing given by -o if it exists");
  app.add_option("--report", arguments.report,
                 "Write what came of the import: every row without a point, every doubt; JSON where the name ends with "
                 ".json, else text")
      ->type_name("OUT.txt|OUT.json");
  app.add_flag("--prepare", arguments.prepare_too,
               "Make a file that is not read as it stands into one that is (see 'prepare'), and import that, unasked");
  app.add_option("--first-column", arguments.first_column,
                 "What the first column holds, should the file not tell: 'number' or 'coordinate'")
      ->type_name("WHAT")
      ->check(CLI::IsMember({"number", "coordinate"}));
  app.add_option(
         "--axes", arguments.axes,
         "What to do with X and Y, should more than one reading fit: 'keep' or 'swap'; or, whatever fits, which "
         "of the two coordinates stands first: 'north-first' or 'east-first'")
      ->type_name("WHAT")
      ->check(CLI::IsMember({"keep", "swap", "north-first", "east-first"}));
  console::declare_choice(app, arguments.choice);
}

// What can only be a slip, said before anything is done.
void check(const CLI::App& app, const Arguments& arguments) {
  if (app.count("-o") > 0 && arguments.output.empty()) throw CLI::ValidationError("--output", "a drawing needs a name");
  if (arguments.output == "-")
    throw CLI::ValidationError("--output", "a drawing is a file; it is not written to standard output");
  if (arguments.force && app.count("-o") == 0) throw CLI::RequiresError("--force", "--output");
}

bool at_a_terminal() { return isatty(STDIN_FILENO) != 0 && isatty(STDOUT_FILENO) != 0; }

console::SessionOptions options_of(const CLI::App& app, const Arguments& arguments) {
  console::SessionOptions options;
  options.prepare = arguments.prepare_too;
  options.interactive = at_a_terminal();
  if (app.count("FILE") > 0) options.file = console::existing_path(arguments.file);
  if (app.count("-o") > 0) options.output = console::with_extension(arguments.output);
  options.force = arguments.force;
  if (app.count("--report") > 0) options.report = arguments.report;
  options.choice = arguments.choice;
  if (!arguments.first_column.empty()) {
    options.answers.push_back(
        {"--first-column", arguments.first_column == "number" ? vexo_xyz_impl::kNumer : vexo_xyz_impl::kWspolrzedna});
  }
  if (arguments.axes.ends_with("-first")) {
    using vexo_xyz_impl::host::AxisOrder;
    options.axes = arguments.axes == "north-first" ? AxisOrder::north_first : AxisOrder::east_first;
  } else if (!arguments.axes.empty()) {
    options.answers.push_back({"--axes", arguments.axes == "keep" ? vexo_xyz_impl::kTak : vexo_xyz_impl::kZamien});
  }
  return options;
}

// Texts are UTF-8 throughout; only the editing of typed lines asks the locale, and a bare system has none of its own.
void use_utf8_locale() {
  if (std::setlocale(LC_CTYPE, "") != nullptr && std::strcmp(nl_langinfo(CODESET), "UTF-8") == 0) return;
  std::setlocale(LC_CTYPE, "C.UTF-8");
}

std::unique_ptr<console::LineSource> typed_lines() {
  return at_a_terminal() ? console::lines_of_terminal(std::cout) : console::lines_of_stream(std::cin, std::cout);
}

int run(int argc, char** argv) {
  // A reader that went away or a size limit is an error of writing, not the end of the program.
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
  use_utf8_locale();
  console::keep_freed_memory();

  CLI::App app("Imports a file of surveyed points into a new drawing: a point and its number for each row.",
               "vexo-xyz");
  Arguments arguments;
  console::PrepareArguments prepare;
  declare(app, arguments);
  const CLI::App* const preparing = console::declare_prepare(app, prepare);
  try {
    app.parse(argc, argv);
    check(app, arguments);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? console::kImported : console::kUsage;
  }
  const auto lines = typed_lines();
  prepare.options.file = console::existing_path(prepare.options.file);
  if (preparing->parsed()) return console::run_prepare(prepare.options, prepare.choice, *lines, std::cout);
  return console::Session(options_of(app, arguments), *lines, std::cout).run();
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return run(argc, argv);
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "vexo-xyz: %s\n", failure.what());
    return console::kFailure;
  }
}
