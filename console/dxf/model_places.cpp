#include "console/dxf/model_places.h"

#include <algorithm>
#include <array>

#include "vexo_xyz_impl/text/ascii.h"

namespace console {
namespace {

using vexo_xyz_impl::text::equal_ascii_case;

template <std::size_t n>
bool is_among(const std::array<std::string_view, n>& kinds, std::string_view kind) {
  return std::any_of(kinds.begin(), kinds.end(), [kind](std::string_view one) { return equal_ascii_case(one, kind); });
}

// A polyline's own position says its elevation alone; its vertices follow it.
constexpr std::array<std::string_view, 3> kNowhere = {"VIEWPORT", "POLYLINE", "SEQEND"};
constexpr std::array<std::string_view, 4> kOfManyPoints = {"LWPOLYLINE", "SPLINE", "LEADER", "HATCH"};
constexpr std::array<std::string_view, 11> kOnOwnPlane = {"TEXT",  "ATTRIB", "ATTDEF", "CIRCLE", "ARC",       "INSERT",
                                                          "SOLID", "TRACE",  "SHAPE",  "HATCH",  "LWPOLYLINE"};

}  // namespace

void ModelPlaces::begin(std::string_view kind) {
  takes_ = !is_among(kNowhere, kind);
  takes_all_ = is_among(kOfManyPoints, kind);
  is_line_ = equal_ascii_case(kind, "LINE");
  first_is_height_ = equal_ascii_case(kind, "HATCH");
  is_on_own_plane_ = is_among(kOnOwnPlane, kind);
  is_in_paper_ = false;
  awaited_ = 0;
  normal_[0] = normal_[1] = 0.0;
  normal_[2] = 1.0;
}

void ModelPlaces::take(const Tag& tag) {
  switch (tag.code) {
    case 10:
    case 11: {
      if (tag.code == 10 ? !own_.empty() && !takes_all_ : !is_line_) return;
      const auto x = tag.real();
      awaited_ = x ? tag.code + 10 : 0;
      x_ = x.value_or(0.0);
      return;
    }
    case 20:
    case 21:
      if (tag.code == awaited_ && !first_is_height_)
        if (const auto y = tag.real()) own_.push_back({x_, *y});
      if (tag.code == awaited_) first_is_height_ = false;
      awaited_ = 0;
      return;
    case 67:
      is_in_paper_ = tag.whole() == 1;
      return;
    case 210:
    case 220:
    case 230:
      normal_[(tag.code - 210) / 10] = tag.real().value_or(0.0);
      return;
    default:
      return;
  }
}

void ModelPlaces::end() {
  const bool is_level = normal_[0] == 0.0 && normal_[1] == 0.0;
  if (!is_in_paper_ && (is_level || !is_on_own_plane_)) {
    const double side = is_on_own_plane_ && normal_[2] < 0.0 ? -1.0 : 1.0;  // seen from below, x runs the other way
    for (const PlanPoint& one : own_) places_.push_back({side * one.x, one.y});
  }
  own_.clear();
}

}  // namespace console
