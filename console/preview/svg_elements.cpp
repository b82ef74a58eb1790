#include "console/preview/svg_elements.h"

#include <array>
#include <charconv>

#include "vexo_xyz_impl/text/utf8.h"

namespace console {
namespace {

// Characters that XML 1.0 knows and that show.
bool is_shown(char32_t c) {
  return c >= 0x20 && !(c >= 0x7F && c < 0xA0) && c != 0xFFFE && c != 0xFFFF && !(c >= 0xD800 && c < 0xE000);
}

}  // namespace

std::string escaped(std::string_view text) {
  std::string safe;
  for (std::size_t at = 0; at < text.size();) {
    const auto letter = vexo_xyz_impl::text::decode(text, at);
    const char32_t c = letter ? letter->value : U'\uFFFD';
    at += letter ? letter->bytes : 1;
    if (c == '<') {
      safe += "&lt;";
    } else if (c == '>') {
      safe += "&gt;";
    } else if (c == '&') {
      safe += "&amp;";
    } else if (c == '"') {
      safe += "&quot;";
    } else if (is_shown(c)) {
      vexo_xyz_impl::text::append(safe, c);
    }
  }
  return safe;
}

std::string attribute(std::string_view name, std::string_view value) {
  std::string text = " ";
  text += name;
  text += "=\"";
  text += value;
  return text += '"';
}

std::string attribute(std::string_view name, double value) { return attribute(name, spelled(value)); }

void SvgElements::line(double x1, double y1, double x2, double y2, std::string_view colour, double width) {
  add("<line" + attribute("x1", x1) + attribute("y1", y1) + attribute("x2", x2) + attribute("y2", y2) +
      attribute("stroke-width", width) + attribute("stroke", colour) + "/>\n");
}

void SvgElements::rectangle(double x, double y, double width, double height, std::string_view attributes) {
  add("<rect" + attribute("x", x) + attribute("y", y) + attribute("width", width) + attribute("height", height));
  add(attributes);
  add("/>\n");
}

void SvgElements::text(double x, double y, double size, std::string_view content, Anchor anchor,
                       std::string_view attributes) {
  add("<text" + attribute("x", x) + attribute("y", y) + attribute("font-size", size));
  if (anchor != Anchor::start) add(attribute("text-anchor", anchor == Anchor::middle ? "middle" : "end"));
  add(attributes);
  add(">" + escaped(content) + "</text>\n");
}

}  // namespace console
