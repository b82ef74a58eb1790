// The stand-alone program: arguments, the terminal, exit codes.
#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <exception>
#include <filesystem>
#include <iostream>
#include <memory>
#include <ostream>
#include <sstream>
#include <string>
#include <system_error>
#include <utility>

#include <CLI/CLI.hpp>
#include <langinfo.h>
#include <unistd.h>

#include "console/arguments.h"
#include "console/batch/batch.h"
#include "console/check_arguments.h"
#include "console/dialogue/typed_path.h"
#include "console/kept_memory.h"
#include "console/manual.h"
#include "console/prepare_arguments.h"
#include "console/report/report_file.h"
#include "console/session.h"
#include "console/written.h"
#include "vexo_xyz_impl/command/questions.h"

namespace {

bool at_a_terminal() { return isatty(STDIN_FILENO) != 0 && isatty(STDOUT_FILENO) != 0; }

// Texts are UTF-8 throughout; only the editing of typed lines asks the locale, and a bare system has none of its own.
void use_utf8_locale() {
  if (std::setlocale(LC_CTYPE, "") != nullptr && std::strcmp(nl_langinfo(CODESET), "UTF-8") == 0) return;
  std::setlocale(LC_CTYPE, "C.UTF-8");
}

// The editor writes to standard output, so that prompts that are to go elsewhere do without it.
std::unique_ptr<console::LineSource> typed_lines(std::ostream& out) {
  return at_a_terminal() && &out == &std::cout ? console::lines_of_terminal(out)
                                               : console::lines_of_stream(std::cin, out);
}

// What an argument names; of a file of points the import itself takes off blanks and quotes.
std::string pasted_path(const std::string& typed) {
  std::error_code ignored;
  if (std::filesystem::exists(typed, ignored)) return typed;
  return std::string(vexo_xyz_impl::clean_path(console::existing_path(typed)));
}

int run(int argc, char** argv) {
  // A reader that went away or a size limit is an error of writing, not the end of the program.
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
  // Who starts the program may let it ignore the ends of processes, which then cannot be waited for.
  std::signal(SIGCHLD, SIG_DFL);
  use_utf8_locale();
  console::keep_freed_memory();

  CLI::App app("Imports files of surveyed points into drawings: a point and its number for each row.", "vexo-xyz");
  console::Arguments arguments;
  console::PrepareArguments prepare;
  console::CheckArguments check;
  console::declare_import(app, arguments);
  const CLI::App* const preparing = console::declare_prepare(app, prepare);
  const CLI::App* const checking = console::declare_check(app, check);
  const auto print = [&app](std::string (*text)(const CLI::App&)) {
    return [&app, text] {
      std::cout << text(app);
      throw CLI::Success();
    };
  };
  app.add_subcommand("man", "Prints the manual page")->callback(print(console::manual_page))->group("");
  app.add_subcommand("completion", "Prints what bash reads to complete the options")
      ->callback(print(console::bash_completion))
      ->group("");
  try {
    app.parse(console::separate_arguments(app, argc, argv));
    if (preparing->parsed()) {
      console::check_market(prepare.choice);
    } else if (checking->parsed()) {
      console::check_market(check.choice);
    } else {
      console::check(app, arguments);
    }
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? console::kImported : console::kUsage;
  }
  for (std::string& file : arguments.files) file = console::existing_path(std::move(file));
  arguments.into = pasted_path(arguments.into);
  prepare.options.file = pasted_path(prepare.options.file);
  check.options.file = pasted_path(check.options.file.string());
  const bool is_asked_for_json = checking->parsed() ? check.options.json : arguments.json && !preparing->parsed();
  std::ostream& out = is_asked_for_json ? std::cerr : std::cout;
  const auto lines = typed_lines(out);
  prepare.options.shows_progress = isatty(STDOUT_FILENO) != 0;
  if (preparing->parsed()) return console::run_prepare(prepare.options, prepare.choice, *lines, std::cout);
  if (checking->parsed()) return console::run_check(check.options, check.choice, *lines, out, std::cout);
  console::SessionOptions options = console::session_options(app, arguments, at_a_terminal());
  options.shows_progress = isatty(STDOUT_FILENO) != 0 && !is_asked_for_json && !arguments.quiet;
  if (arguments.files.size() > 1) {
    return console::run_batch({arguments.files, arguments.jobs, options}, out,
                              is_asked_for_json ? &std::cout : nullptr);
  }
  std::istringstream nobody;
  const auto no_lines = console::lines_of_stream(nobody, out);
  console::Session session(std::move(options), arguments.unattended ? *no_lines : *lines, out);
  const console::ExitCode code = session.run();
  if (!is_asked_for_json) return code;
  return console::written(std::cout, console::report_as_json(session.findings())) ? code : console::kFailure;
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
