#include "console/drawing/heights.h"

#include <string>
#include <vector>

#include "console/decimals.h"

namespace console {
namespace {

constexpr double kLineSpacing = 1.5;  // of the letters' height

struct Height {
  double value;
  HeightGeometry geometry;
};

// The heights of all points with a label.
std::vector<Height> heights_of(const Drawing& drawing) {
  std::vector<Height> heights;
  drawing.for_each_entity([&](Handle handle, const auto& /*geometry*/) {
    const PointGeometry* const point = drawing.point(handle);
    const TextGeometry* const label = point == nullptr ? nullptr : drawing.label_of(handle);
    if (label != nullptr) heights.push_back({point->position.z, {*label}});
  });
  return heights;
}

}  // namespace

void add_heights(Drawing& drawing, int decimals) {
  std::vector<Handle> added;
  for (auto& [value, height] : heights_of(drawing)) {
    height.position.y -= height.height * kLineSpacing;
    const std::string text = with_decimals(value, decimals);
    height.text = text;
    if (const auto handle = drawing.add(height)) added.push_back(*handle);
  }
  for (Group& group : drawing.groups()) group.members.insert(group.members.end(), added.begin(), added.end());
}

}  // namespace console
