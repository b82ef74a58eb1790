// What an import has come by so far, as the command keeps it and as a host may watch it.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "vexo_xyz_impl/command/axes.h"
#include "vexo_xyz_impl/failure.h"
#include "vexo_xyz_impl/host/command_line.h"
#include "vexo_xyz_impl/input/loading.h"
#include "vexo_xyz_impl/table/layout.h"
#include "vexo_xyz_impl/table/points.h"

namespace vexo_xyz_impl {

struct ImportSeen {
  std::string path;
  LoadResult loaded;           ///< its rows are forgotten once they are taken apart; the texts of their cells stay
  LayoutVerdict verdict;       ///< its data rows likewise; without a layout when it stayed open
  bool columns_asked = false;  ///< the layout is the user's answer
  Decomposition read;          ///< points in the file's order, axes exchanged when they were
  SettledAxes axes;
  std::size_t dubli = 0;             ///< points less distinct numbers
  std::vector<std::size_t> refused;  ///< points that the drawing refused, by their index
  host::CommandOutcome outcome = host::CommandOutcome::failed;
  std::optional<FailureNote> failure;  ///< what ended it early
};

}  // namespace vexo_xyz_impl
