// The command line of `vexo-xyz prepare`.
#pragma once

#include <CLI/CLI.hpp>

#include "console/prepare.h"

namespace console {

struct PrepareArguments {
  PrepareOptions options;
  Choice choice;
};

/// Declares the subcommand, whose arguments are kept in `arguments`.
CLI::App* declare_prepare(CLI::App& app, PrepareArguments& arguments);

/// Declares what the program and its subcommand have in common.
void declare_choice(CLI::App& app, Choice& choice);

/// Fails with CLI::ValidationError where the environment names a market that is none.
void check_market(const Choice& choice);

}  // namespace console
