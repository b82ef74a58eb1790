// The roles that a host implements, in one place.
#pragma once

#include "vexo_xyz_impl/host/command_line.h"
#include "vexo_xyz_impl/host/database.h"
#include "vexo_xyz_impl/host/import_watch.h"
#include "vexo_xyz_impl/host/siblings.h"

namespace vexo_xyz_impl::host {

/// The roles as one run of an operation uses them. They outlive that run; a host may make them anew for each.
struct Host {
  CommandLine& command_line;
  DatabaseServices& database;
  SiblingLoader& siblings;
  HostLock* lock = nullptr;                ///< none: nothing guards the host
  Foreknowledge* foreknowledge = nullptr;  ///< none: a file is known by its numbers only
  ImportWatch* watch = nullptr;            ///< none: nobody watches imports
};

}  // namespace vexo_xyz_impl::host
