// Module set-up: binds the host and the siblings, selects the market, registers the command.
#pragma once

#include <string_view>

#include "vexo_xyz_impl/host/bindings.h"

namespace vexo_xyz_impl {

/// Name of the command, local and global, and the group it stands in.
inline constexpr std::string_view kCommandName = "VEXO_XYZ";
inline constexpr std::string_view kCommandGroup = "VEXO";

/// The market whose data are always present.
inline constexpr std::string_view kPolishMarket = "PL";

/// Loads the module into `host`. A failing step fails the loading with its own failure and leaves the command
/// unregistered; only the market selection swallows ordinary failures and leaves the Polish data bound. What the
/// host's roles refer to must outlive the module; a later load binds anew.
void load_module(const host::Host& host);

}  // namespace vexo_xyz_impl
