// Module set-up: binds the siblings, selects the market, registers the command.
#pragma once

#include <string_view>

#include "vexo_xyz_impl/bindings.h"

namespace vexo_xyz_impl {

/// The group in which the command stands.
inline constexpr std::string_view kCommandGroup = "VEXO";

/// The market whose data are always present.
inline constexpr std::string_view kPolishMarket = "PL";

/// Binds what the module needs of its siblings, in the order and with the failures of loading: a failing step fails the
/// loading with its own failure; only the market selection swallows ordinary failures and leaves the Polish data bound.
/// The operations work for whoever enters the result together with a host (bindings.h).
[[nodiscard]] Loaded bind_siblings(host::SiblingLoader& siblings);

/// Registers the command, the last step of loading. Who runs it enters the module before.
void register_command(host::CommandTable& commands);

}  // namespace vexo_xyz_impl
