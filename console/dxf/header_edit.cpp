// Header: what stands there is changed in its place, what does not is added at its end.
#include <cmath>

#include "console/drawing/database.h"
#include "console/dxf/drawing_edit_parts.h"
#include "console/dxf/numerals.h"
#include "console/dxf/sections.h"

namespace console {
void DrawingEdit::edit_header() {
  in_section("HEADER", [this](std::size_t end) {
    if (section("HEADER") == nullptr) edits_.insert(end, "9\n$ACADVER\n1\nAC1009\n");
    edit_whole(end, "$PDMODE", drawing_.variables.PDMODE);
    edit_size(end);
    edit_seed(end);
  });
  const Tag* const handling = outline_.variable("$HANDLING");
  if (handling != nullptr && handling->whole() == 0) edits_.replace(*handling, "1");
  widen_extents();
}

void DrawingEdit::edit_whole(std::size_t end, std::string_view name, int value) {
  const Tag* const there = outline_.variable(name);
  if (there == nullptr) {
    edits_.insert(end, "9\n" + std::string(name) + "\n70\n" + std::to_string(value) + "\n");
  } else if (there->whole() != value) {
    edits_.replace(*there, std::to_string(value));
  }
}

void DrawingEdit::edit_size(std::size_t end) {
  const double value = drawing_.variables.PDSIZE;
  const Tag* const there = outline_.variable("$PDSIZE");
  if (there == nullptr) {
    edits_.insert(end, "9\n$PDSIZE\n40\n" + numeral(value) + "\n");
  } else if (there->real() != value) {
    edits_.replace(*there, numeral(value));
  }
}

// The next handle is known when all new objects are.
void DrawingEdit::edit_seed(std::size_t end) {
  const auto seed = [this](TagWriter& tags) { tags.lines(handle_text(next_handle_)); };
  if (const Tag* const there = outline_.variable("$HANDSEED")) return edits_.replace(*there, seed);
  edits_.insert(end, "9\n$HANDSEED\n5\n");
  edits_.insert(end, seed);
  edits_.insert(end, "\n");
}

template <class Beyond>
void DrawingEdit::widen(std::string_view name, const Position& wanted, Beyond beyond) {
  constexpr double kNoExtents = 1e20;  // what empty drawings say, with either sign
  const auto found = outline_.header.find(name);
  if (found == outline_.header.end()) return;
  for (const Tag& tag : found->second) {
    const double value = tag.code == 10 ? wanted.x : tag.code == 20 ? wanted.y : wanted.z;
    const auto there = tag.real();
    if (there && std::abs(*there) < kNoExtents && beyond(*there, value)) edits_.replace(tag, numeral(value));
  }
}

void DrawingEdit::widen_extents() {
  const Extents extents = extents_of(drawing_);
  widen("$EXTMIN", extents.smallest, [](double there, double wanted) { return wanted < there; });
  widen("$EXTMAX", extents.largest, [](double there, double wanted) { return wanted > there; });
}

}  // namespace console
