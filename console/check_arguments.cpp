#include "console/check_arguments.h"

#include "console/prepare_arguments.h"

namespace console {
namespace {

constexpr const char* kFooter =
    "X is the first coordinate of the drawing, to the right, and Y the second, upwards; metres. Copies are told with "
    "the\n"
    "way from the point that they were made of.\n"
    "\n"
    "Exit codes:\n"
    "  0  all points under control stand where they were imported\n"
    "  1  points were moved, deleted or copied; or none is under control\n"
    "  2  the command line was not understood\n"
    "  3  failure: a file that cannot be read, or that is no DXF file in text form";

}  // namespace

CLI::App* declare_check(CLI::App& app, CheckArguments& arguments) {
  CLI::App* const check =
      app.add_subcommand("check", "Tells which imported points of a drawing were moved, deleted or copied since");
  check->footer(kFooter);
  CheckOptions& options = arguments.options;
  check->add_option("FILE", options.file, "Drawing with imported points: an ASCII DXF file of any version")->required();
  check->add_option("--tolerance", options.tolerance, "How far a point may be from its place. Default: 0.0005")
      ->type_name("METRES")
      ->check(CLI::Range(0.0, 1000.0));
  check->add_flag("--json", options.json,
                  "Say on standard output what was found as JSON; failures go to standard error");
  declare_choice(*check, arguments.choice);
  return check;
}

}  // namespace console
