// The command line of `vexo-xyz check`.
#pragma once

#include <CLI/CLI.hpp>

#include "console/check/check.h"

namespace console {

struct CheckArguments {
  CheckOptions options;
  Choice choice;
};

/// Declares the subcommand, whose arguments are kept in `arguments`.
CLI::App* declare_check(CLI::App& app, CheckArguments& arguments);

}  // namespace console
