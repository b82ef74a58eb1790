// The stand-alone program: arguments, the terminal, exit codes.
#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <exception>
#include <iostream>
#include <memory>

#include <CLI/CLI.hpp>
#include <langinfo.h>
#include <unistd.h>

#include "console/arguments.h"
#include "console/kept_memory.h"
#include "console/prepare_arguments.h"
#include "console/session.h"

namespace {

bool at_a_terminal() { return isatty(STDIN_FILENO) != 0 && isatty(STDOUT_FILENO) != 0; }

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

  CLI::App app("Imports files of surveyed points into drawings: a point and its number for each row.", "vexo-xyz");
  console::Arguments arguments;
  console::PrepareArguments prepare;
  console::declare_import(app, arguments);
  const CLI::App* const preparing = console::declare_prepare(app, prepare);
  try {
    app.parse(console::separate_arguments(argc, argv));
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? console::kImported : console::kUsage;
  }
  const auto lines = typed_lines();
  if (preparing->parsed()) return console::run_prepare(prepare.options, prepare.choice, *lines, std::cout);
  return console::Session(console::session_options(app, arguments, at_a_terminal()), *lines, std::cout).run();
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
