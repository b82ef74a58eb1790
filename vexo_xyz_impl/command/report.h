// What the import tells the user on the command line.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "vexo_xyz_impl/host/database.h"
#include "vexo_xyz_impl/table/layout.h"
#include "vexo_xyz_impl/table/points.h"

namespace vexo_xyz_impl {

/// The settled layout with its description, and what becomes of heights.
void announce_layout(Layout fmt, std::string_view opis);

/// The first `most` skipped lines.
void print_skipped(const std::vector<SkippedLine>& pominiete, std::size_t most);

/// Registers the points for control and says how many, or why none.
void mark_and_report(std::span<const host::GcDbObjectId> oidy_punktow);

/// Gathers points and labels in a group named after the file and says its name, or why there is none; a failure of
/// grouping never ends the import.
void group_and_report(host::GcDbDatabase& db, const host::GcDbObjectIdArray& oidy, const std::string& path);

/// Where the points are, which lines were skipped, how many numbers are repeated, which is returned.
std::size_t report_rest(const Decomposition& read);

}  // namespace vexo_xyz_impl
