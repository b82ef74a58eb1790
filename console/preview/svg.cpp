#include "console/preview/svg.h"

#include <cmath>
#include <utility>
#include <vector>

#include "console/files.h"
#include "console/preview/label_placement.h"
#include "console/preview/surroundings.h"

namespace console {
namespace {

// What pictures begin with, by which one may be known again.
constexpr std::string_view kBeginning = R"(<?xml version="1.0" encoding="UTF-8"?>
<!-- vexo-xyz -->
<svg)";

constexpr double kFew = 300;       // points that have room for large dots and letters
constexpr double kMany = 5000;     // and those that have little
constexpr double kLetters = 24.0;  // the letters of labels, where there is room
constexpr double kSmallLetters = 19.0;

double radius_for(std::size_t points) {
  const auto count = static_cast<double>(points);
  return count <= kFew ? 8.0 : count <= kMany ? 5.5 : 3.5;
}

// Dots of one colour as a single path: a tenth of the bytes of a circle each.
void draw_dots(SvgElements& svg, const std::vector<Mark>& marks, double radius, std::string_view colour) {
  if (marks.empty()) return;
  std::string way;
  for (const Mark& mark : marks) way += "M" + spelled(mark.x, 0) + " " + spelled(mark.y, 0) + "h0";
  svg.add("<path" + attribute("fill", "none") + attribute("stroke-linecap", "round") +
          attribute("stroke-width", 2 * radius) + attribute("stroke", colour) + attribute("d", way) + "/>\n");
}

// A title shows when the pointer rests on the dot.
void draw_suspects(SvgElements& svg, const std::vector<Mark>& marks, double radius) {
  constexpr std::size_t kMostTitles = 5000;
  if (marks.size() > kMostTitles) return draw_dots(svg, marks, radius, kSuspectColour);
  svg.add("<g" + attribute("class", "suspects") + attribute("fill", kSuspectColour) + ">\n");
  for (const auto& [point, x, y] : marks) {
    svg.add("<circle" + attribute("cx", x) + attribute("cy", y) + attribute("r", radius * 1.3) + "><title>" +
            escaped(point->label) + ": " + escaped(name_of(point->suspicion)) + "</title></circle>\n");
  }
  svg.add("</g>\n");
}

void draw_labels(SvgElements& svg, const std::vector<Mark>& marks, const std::vector<PlacedLabel>& placed,
                 double size) {
  // The ground shines through around the letters where they cover points.
  svg.add("<g" + attribute("class", "labels") + attribute("font-size", size) + attribute("stroke", "#ffffff") +
          attribute("stroke-width", 4) + attribute("paint-order", "stroke") + ">\n");
  for (const PlacedLabel& label : placed) {
    const PicturePoint& point = *marks[label.point].point;
    svg.add("<text" + attribute("x", label.x) + attribute("y", label.y));
    if (label.ends_there) svg.add(attribute("text-anchor", "end"));
    if (point.suspicion != Suspicion::none) svg.add(attribute("fill", kSuspectColour));
    svg.add(">" + escaped(point.label) + "</text>\n");
  }
  svg.add("</g>\n");
}

// Arrows at the edge towards what lies outside, named where there is room.
std::size_t draw_outside(SvgElements& svg, const Picture& picture, const Page& page, const std::vector<Mark>& marks,
                         OccupiedArea& area) {
  constexpr double kTurn = 57.29577951308232;  // degrees of a radian
  constexpr double kArrow = 16.0;
  std::vector<std::string> texts;
  std::vector<LabelWish> wishes;
  for (const auto& [point, x, y] : marks) {
    area.occupy({x - kArrow, y - kArrow, x + kArrow, y + kArrow}, OccupiedArea::By::label);
    const double distance = std::hypot(point->x - page.middle_x, point->y - page.middle_y);
    texts.push_back(std::string(point->label) + " · " + distance_in(picture, distance));
  }
  for (std::size_t i = 0; i < marks.size(); ++i) wishes.push_back({marks[i].x, marks[i].y, texts[i]});
  const auto placed = place_labels(wishes, kLetters, kArrow + 6, area);
  const auto colour_of = [&marks](std::size_t i) {
    return marks[i].point->suspicion == Suspicion::none ? kInk : kSuspectColour;
  };
  for (std::size_t i = 0; i < marks.size(); ++i) {
    const auto& [point, x, y] = marks[i];
    const double turned = std::atan2(page.middle_y - point->y, point->x - page.middle_x) * kTurn;
    draw_arrowhead(svg, x, y, turned, colour_of(i));
  }
  for (const PlacedLabel& label : placed) {
    svg.text(label.x, label.y, kLetters, texts[label.point],
             label.ends_there ? SvgElements::Anchor::end : SvgElements::Anchor::start,
             attribute("fill", colour_of(label.point)));
  }
  return placed.size();
}

std::size_t draw_points(SvgElements& svg, const Picture& picture, const Page& page, const Marks& marks) {
  const double radius = radius_for(marks.drawn());
  constexpr double kClear = 16.0;  // of the frame and its ticks
  OccupiedArea area(
      {page.frame.left + kClear, page.frame.top + kClear, page.frame.right - kClear, page.frame.bottom - kClear});
  std::vector<Mark> inside = marks.suspect;  // these are named first
  inside.insert(inside.end(), marks.usual.begin(), marks.usual.end());
  std::vector<LabelWish> wishes;
  wishes.reserve(inside.size());
  for (const auto& [point, x, y] : inside) {
    area.occupy({x - radius, y - radius, x + radius, y + radius}, OccupiedArea::By::point);
    wishes.push_back({x, y, point->label});
  }
  draw_dots(svg, marks.usual, radius, kPointColour);
  draw_suspects(svg, marks.suspect, radius);
  const std::size_t outside = draw_outside(svg, picture, page, marks.outside, area);
  const double size = static_cast<double>(marks.drawn()) <= kFew ? kLetters : kSmallLetters;
  const auto placed = place_labels(wishes, size, radius, area);
  draw_labels(svg, inside, placed, size);
  return placed.size() + outside;
}

}  // namespace

bool is_picture(const std::filesystem::path& path) { return begins_with_any(path, {kBeginning}); }

std::string svg_of(const Picture& picture) {
  const Page page = page_for(picture.points);
  const Marks marks = marks_of(picture, page);
  SvgElements svg;
  svg.add(kBeginning);
  svg.add(attribute("xmlns", "http://www.w3.org/2000/svg") + attribute("width", spelled(page.width / 10) + "mm") +
          attribute("height", spelled(page.height / 10) + "mm") +
          attribute("viewBox", "0 0 " + spelled(page.width) + " " + spelled(page.height)) +
          attribute("font-family", "Arial, Helvetica, sans-serif") + attribute("fill", kInk) + ">\n");
  svg.add("<title>" + escaped(picture.title()) + "</title>\n");
  svg.rectangle(0, 0, page.width, page.height, attribute("fill", "#ffffff"));
  draw_frame(svg, picture, page);
  const std::size_t labels = draw_points(svg, picture, page, marks);
  draw_title(svg, picture, page);
  draw_foot(svg, picture, page, marks, labels);
  svg.add("</svg>\n");
  return std::move(svg.markup());
}

void write_picture(const Picture& picture, const std::filesystem::path& path) { write_whole(path, svg_of(picture)); }

}  // namespace console
