// Which labels a picture has room for, and where: none covers another, and none a point unless there is no free place
// far around. Each label is tried once, so that it takes time in proportion to the points.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "console/preview/page.h"

namespace console {

struct PlacedLabel {
  std::size_t point = 0;    ///< index in the list it was placed for
  double x = 0.0;           ///< of the text's beginning, or of its end
  double y = 0.0;           ///< of the line it stands on
  bool ends_there = false;  ///< the text ends at `x`
};

/// The width of a text in letters of that height, in the widest of the usual fonts without serifs.
[[nodiscard]] double width_of(std::string_view text, double letter_height);

/// What is taken of an area, in cells of half a millimetre.
class OccupiedArea {
 public:
  explicit OccupiedArea(const Box& area);

  enum class By : unsigned char { nothing = 0, point = 1, label = 2 };

  void occupy(const Box& box, By by);
  /// Whether the box lies in the area and nothing is there but what `allowed` says: nothing, or points.
  [[nodiscard]] bool is_free(const Box& box, By allowed = By::nothing) const;

 private:
  struct Cells {
    std::size_t left, top, right, bottom;
  };
  [[nodiscard]] Cells cells_of(const Box& box) const;

  Box area_;
  std::size_t columns_;
  std::size_t rows_;
  std::vector<By> cells_;
};

/// A point on the page with its label, those that matter most first.
struct LabelWish {
  double x = 0.0;
  double y = 0.0;
  std::string_view label;
};

/// Places labels beside points whose dots of `radius` are occupied already; what is placed is occupied then. In a crowd
/// where no label is free to stand, one here and there covers points.
[[nodiscard]] std::vector<PlacedLabel> place_labels(const std::vector<LabelWish>& wishes, double letter_height,
                                                    double radius, OccupiedArea& area);

}  // namespace console
