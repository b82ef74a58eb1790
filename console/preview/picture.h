// What a picture of an import shows: the points of the drawing, which of them are suspect, and what stands around them.
//
// Plain data, taken while the import's own memory lives. Where things stand on the page is page.h's business, how it is
// written svg.h's.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "console/account/account.h"
#include "console/doubts/doubts.h"
#include "vexo_xyz_impl/command/import_seen.h"
#include "vexo_xyz_impl/input/groups.h"

namespace console {

/// Why a point is shown apart from others; of several reasons the first in this order.
enum class Suspicion : std::uint8_t { far_away, repeated_number, same_place, height, none };

/// The reasons by their codes as doubts.
inline constexpr std::array<std::string_view, 4> kSuspicions = {"far_away", "repeated_number", "same_place", "height"};

struct PicturePoint {
  double x = 0.0;  ///< to the right, metres
  double y = 0.0;  ///< upwards, metres
  std::string_view label;
  Suspicion suspicion = Suspicion::none;
};

struct Picture {
  std::vector<PicturePoint> points;     ///< in the file's order, all finite
  vexo_xyz_impl::Groups<char> letters;  ///< of the labels
  std::vector<std::string> systems;     ///< that the points fit, their names; none where none was recognised
  bool axes_known = false;              ///< the points lie east and north, as far as anybody can tell
  bool in_degrees = false;              ///< the numbers are degrees, so that nothing can be said in metres
  std::string file;                     ///< what the points were read from, without its folder; for the caller to name
  std::string group;                    ///< likewise; empty where no group was made

  [[nodiscard]] const std::string& title() const { return group.empty() ? file : group; }
};

/// The picture of an import that has ended; `doubts` are those that it raised.
[[nodiscard]] Picture picture_of(const vexo_xyz_impl::ImportSeen& seen, const RowPlaces& places,
                                 std::span<const Doubt> doubts);

}  // namespace console
