#include "console/preview/label_placement.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <set>
#include <utility>

#include "vexo_xyz_impl/text/utf8.h"

namespace console {
namespace {

constexpr double kCell = 5.0;
constexpr double kAscent = 0.78;  // of the letters' height, above the line they stand on
constexpr double kDescent = 0.22;

// Of the letters' height.
double advance_of(char32_t letter) {
  constexpr std::u32string_view kNarrow = U"fijlrtI.,:;'!|/()[] -";
  constexpr std::u32string_view kWide = U"mwMW@%&";
  constexpr char32_t kFirstWideScript = 0x1100;
  if (kNarrow.find(letter) != std::u32string_view::npos) return 0.42;
  if (kWide.find(letter) != std::u32string_view::npos || letter >= kFirstWideScript) return 1.02;
  const bool is_capital = (letter >= 'A' && letter <= 'Z') || (letter >= 0xC0 && letter <= 0x250);
  return is_capital ? 0.79 : 0.65;
}

// The places beside a point, best first; of each, where the text stands sideways and upwards.
struct Side {
  int across;  // -1 left, 1 right
  int up;      // -1 below, 0 beside, 1 above
};
constexpr std::array<Side, 6> kSides = {{{1, 1}, {-1, 1}, {1, -1}, {-1, -1}, {1, 0}, {-1, 0}}};

struct Placing {
  PlacedLabel label;
  Box box;
};

Placing placing_at(const LabelWish& wish, Side side, double letter_height, double radius) {
  const double gap = radius + 1.1 * kCell;  // clear of the point's own cells
  const double width = width_of(wish.label, letter_height);
  const double x = wish.x + side.across * gap;
  const double below = kDescent * letter_height;
  const double above = kAscent * letter_height;
  const double y = side.up == 0  ? wish.y + (above - below) / 2
                   : side.up > 0 ? wish.y - radius / 2 - below
                                 : wish.y + radius / 2 + above;
  const double left = side.across > 0 ? x : x - width;
  return {{0, x, y, side.across < 0}, {left, y - above, left + width, y + below}};
}

std::optional<Placing> place(const LabelWish& wish, double letter_height, double radius, const OccupiedArea& area,
                             OccupiedArea::By allowed) {
  for (const Side side : kSides) {
    const Placing placing = placing_at(wish, side, letter_height, radius);
    if (area.is_free(placing.box, allowed)) return placing;
  }
  return std::nullopt;
}

}  // namespace

double width_of(std::string_view text, double letter_height) {
  double advance = 0.0;
  for (std::size_t at = 0; at < text.size();) {
    const auto letter = vexo_xyz_impl::text::decode(text, at);
    advance += advance_of(letter ? letter->value : U'\uFFFD');
    at += letter ? letter->bytes : 1;
  }
  return advance * letter_height;
}

OccupiedArea::OccupiedArea(const Box& area)
    : area_(area),
      columns_(static_cast<std::size_t>(std::ceil(area.width() / kCell)) + 1),
      rows_(static_cast<std::size_t>(std::ceil(area.height() / kCell)) + 1),
      cells_(columns_ * rows_) {}

OccupiedArea::Cells OccupiedArea::cells_of(const Box& box) const {
  const auto cell = [](double at, std::size_t count) {
    return static_cast<std::size_t>(std::clamp(at / kCell, 0.0, static_cast<double>(count - 1)));
  };
  return {cell(box.left - area_.left, columns_), cell(box.top - area_.top, rows_),
          cell(box.right - area_.left, columns_), cell(box.bottom - area_.top, rows_)};
}

void OccupiedArea::occupy(const Box& box, By by) {
  const Cells cells = cells_of(box);
  for (std::size_t row = cells.top; row <= cells.bottom; ++row)
    for (std::size_t column = cells.left; column <= cells.right; ++column) {
      By& cell = cells_[row * columns_ + column];
      cell = std::max(cell, by);
    }
}

bool OccupiedArea::is_free(const Box& box, By allowed) const {
  if (!area_.holds(box.left, box.top) || !area_.holds(box.right, box.bottom)) return false;
  const Cells cells = cells_of(box);
  for (std::size_t row = cells.top; row <= cells.bottom; ++row)
    for (std::size_t column = cells.left; column <= cells.right; ++column)
      if (cells_[row * columns_ + column] > allowed) return false;
  return true;
}

std::vector<PlacedLabel> place_labels(const std::vector<LabelWish>& wishes, double letter_height, double radius,
                                      OccupiedArea& area) {
  constexpr double kLonely = 300.0;  // a square of this side without a label gets one
  std::vector<PlacedLabel> placed;
  std::set<std::pair<long, long>> with_label;
  const auto try_all = [&](OccupiedArea::By allowed) {
    for (std::size_t i = 0; i < wishes.size(); ++i) {
      if (wishes[i].label.empty()) continue;
      const std::pair square(std::lround(wishes[i].x / kLonely), std::lround(wishes[i].y / kLonely));
      if (allowed != OccupiedArea::By::nothing && with_label.contains(square)) continue;
      auto placing = place(wishes[i], letter_height, radius, area, allowed);
      if (!placing) continue;
      placing->label.point = i;
      placed.push_back(placing->label);
      area.occupy(placing->box, OccupiedArea::By::label);
      with_label.insert(square);
    }
  };
  try_all(OccupiedArea::By::nothing);
  try_all(OccupiedArea::By::point);
  return placed;
}

}  // namespace console
