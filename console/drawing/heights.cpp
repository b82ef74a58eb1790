#include "console/drawing/heights.h"

#include <array>
#include <charconv>
#include <string_view>
#include <vector>

namespace console {
namespace {

constexpr double kLineSpacing = 1.5;  // of the letters' height

// A height as people write it: without a sign where it rounds to nothing.
std::string_view spelled(double height, int decimals, std::array<char, 64>& digits) {
  const auto end =
      std::to_chars(digits.data(), digits.data() + digits.size(), height, std::chars_format::fixed, decimals).ptr;
  std::string_view text(digits.data(), static_cast<std::size_t>(end - digits.data()));
  if (text.starts_with('-') && text.find_first_not_of("-0.") == std::string_view::npos) text.remove_prefix(1);
  return text;
}

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
  std::array<char, 64> digits{};
  for (auto& [value, height] : heights_of(drawing)) {
    height.position.y -= height.height * kLineSpacing;
    height.text = spelled(value, decimals, digits);
    if (const auto handle = drawing.add(height)) added.push_back(*handle);
  }
  for (Group& group : drawing.groups()) group.members.insert(group.members.end(), added.begin(), added.end());
}

}  // namespace console
