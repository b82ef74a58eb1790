// Registers imported points with the reactive core, so that later manual shifts can be controlled.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "vexo_xyz_impl/host/values.h"

namespace vexo_xyz_impl {

/// The most points that one import registers; a larger import registers none.
inline constexpr std::size_t _MAX_KONTROLA = 2000;

/// What the record of a registered point says that it is.
inline constexpr std::string_view kRecordKind = "XYZPKT";

/// How many points were registered, and why none were, in the catalogue's words; empty when there is nothing to say.
struct MarkingResult {
  std::size_t ile = 0;
  std::string message;
};

/// Registers the points in order. An extra: a missing reactive core or too many points are reported, a failure for
/// a single point only lowers the count.
[[nodiscard]] MarkingResult _oznacz_do_kontroli(std::span<const host::GcDbObjectId> oidy);

}  // namespace vexo_xyz_impl
