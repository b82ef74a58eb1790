// Elements of an SVG as text: numbers in whole units or tenths, texts escaped, nothing that a browser would run or
// fetch.
#pragma once

#include <string>
#include <string_view>

#include "console/decimals.h"

namespace console {

/// A text as XML holds it: markup escaped, control characters left out, U+FFFD for what is no UTF-8.
[[nodiscard]] std::string escaped(std::string_view text);

/// " name="value"", for a tag; what a value holds must need no escaping.
[[nodiscard]] std::string attribute(std::string_view name, std::string_view value);
[[nodiscard]] std::string attribute(std::string_view name, double value);

class SvgElements {
 public:
  /// What stands between tags as it is.
  void add(std::string_view markup) { markup_ += markup; }

  void line(double x1, double y1, double x2, double y2, std::string_view colour, double width);
  void rectangle(double x, double y, double width, double height, std::string_view attributes);

  enum class Anchor { start, middle, end };
  /// A text on its line; `attributes` beside place and size, as `attribute` makes them.
  void text(double x, double y, double size, std::string_view content, Anchor anchor = Anchor::start,
            std::string_view attributes = {});

  [[nodiscard]] std::string& markup() { return markup_; }

 private:
  std::string markup_;
};

}  // namespace console
