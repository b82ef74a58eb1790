// What loading the module binds, once, and everything else only reads: the host, the siblings bound at load, and
// the market's tables under their name `_D`.
//
// Module set-up (command/module.h) is the only one that calls `bind`.
#pragma once

#include <functional>

#include "vexo_xyz_impl/host/command_line.h"
#include "vexo_xyz_impl/host/database.h"
#include "vexo_xyz_impl/host/market_data.h"
#include "vexo_xyz_impl/host/siblings.h"

namespace vexo_xyz_impl::host {

/// The roles that a host implements. All references outlive the loaded module.
struct Host {
  CommandLine& command_line;
  CommandTable& commands;
  DatabaseServices& database;
  SiblingLoader& siblings;
  Worker* worker = nullptr;  ///< none: work is simply done
};

/// A host together with what loading has found.
struct Bindings {
  Host host;
  const Texts& texts;        // `T` of vexo_teksty
  Styling& style;            // `nadaj_styl_pl` of vexo_cad_core
  const MarketData& market;  // the tables of the selected market
};

/// Binds at load; a later load in the same process binds anew.
void bind(const Bindings& bindings);

/// What was bound. Fails with ImportError before any load.
[[nodiscard]] const Bindings& bound();

/// Whether a load has bound anything.
[[nodiscard]] bool is_bound();

/// Forgets what was bound, when the host that it belongs to goes away.
void unbind();

/// Does `work` through the bound host's worker.
void run_work(const std::function<void()>& work);

/// The bound host's command line, for short.
[[nodiscard]] inline CommandLine& command_line() { return bound().host.command_line; }

}  // namespace vexo_xyz_impl::host

namespace vexo_xyz_impl {

/// The bound market's tables: `_D->UKLADY`, `_D->KRAJ_LAT` and so on.
struct BoundMarket {
  const host::MarketData* operator->() const { return &host::bound().market; }
};
inline constexpr BoundMarket _D{};

}  // namespace vexo_xyz_impl
