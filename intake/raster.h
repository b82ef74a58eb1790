// Texts that are a grid of values without coordinates: nobody's points, though every number in them reads as one.
#pragma once

#include <string_view>

namespace intake {

/// Whether the text that begins with `head` is a raster grid: by the words that such files begin with, or by lines of
/// a hundred numbers and more.
[[nodiscard]] bool is_raster(std::string_view head);

}  // namespace intake
