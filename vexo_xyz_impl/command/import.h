// The command: from the file prompt to the report. It owns the order of the import; each step's work is elsewhere.
#pragma once

#include "vexo_xyz_impl/host/command_line.h"

namespace vexo_xyz_impl {

/// Reads a file of coordinates and inserts points plus labels with their numbers. Talks to the user through the host
/// only. Any ordinary failure once the path is known is reported and ends it; entities inserted until then stay in
/// the drawing. The outcome is for hosts that can use one: `done` when the insertion ran to its end, `nothing_done`
/// when the user cancelled or the file holds no points, `failed` when the file could not be used or a step failed.
host::CommandOutcome importxyz();

}  // namespace vexo_xyz_impl
