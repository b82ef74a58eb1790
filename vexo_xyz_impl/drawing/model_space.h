// Reaching model space, and making points visible in the drawing.
#pragma once

#include <memory>

#include "vexo_xyz_impl/host/database.h"

namespace vexo_xyz_impl {

/// Model space opened for writing and the working database; both empty when no drawing is open or model space cannot be
/// opened.
struct ModelSpace {
  std::shared_ptr<host::GcDbDatabase> db;  // before the record, which may refer to it until it is closed
  host::Opened<host::GcDbBlockTableRecord> ms;
};

[[nodiscard]] ModelSpace _openModelSpace();

/// Sets PDMODE 3 (a cross) and PDSIZE -2 (per cent of the view's height). Not critical: an ordinary failure is
/// swallowed, and what was set before it stays set.
void _setPointDisplayVars();

}  // namespace vexo_xyz_impl
