// The command line of an import.
#pragma once

#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "console/session.h"

namespace console {

/// What was written, option by option; empty where an option was not.
struct Arguments {
  std::vector<std::string> files;
  std::string output;
  std::string into;
  bool force = false;
  bool prepare = false;
  std::string report;
  std::string preview;
  std::string first_column;
  std::string axes;
  std::string point_layer;
  std::string label_layer;
  std::string height_layer;
  int height_decimals = 2;
  std::string text_size;
  std::string group_selectable;
  std::string dxf;
  bool unattended = false;
  unsigned jobs = 1;
  bool quiet = false;
  bool json = false;
  Choice choice;
};

/// Declares the options, whose values are kept in `arguments`.
void declare_import(CLI::App& app, Arguments& arguments);

/// The arguments behind the program's name, last first as the library takes them. A file behind "--heights" would be
/// taken for its number of decimals, so what has none gets it: "--heights=2 FILE".
[[nodiscard]] std::vector<std::string> separate_arguments(const CLI::App& app, int argc, const char* const* argv);

/// Fails with CLI::ValidationError where the market is not one of the list, be it named by an option or by the
/// environment, or where an option for one file goes with several.
void check(const CLI::App& app, const Arguments& arguments);

/// What an import of the first file is to do. `interactive`: somebody is there to be asked.
[[nodiscard]] SessionOptions session_options(const CLI::App& app, const Arguments& arguments, bool interactive);

}  // namespace console
