#include "console/preview/surroundings.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "console/preview/label_placement.h"
#include "vexo_xyz_impl/messages.h"
#include "vexo_xyz_impl/text/local_time.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace console {
namespace {

using Anchor = SvgElements::Anchor;
using vexo_xyz_impl::filled;
using vexo_xyz_impl::T;

constexpr double kSmall = 24.0;  // letters beside the frame
constexpr double kUsual = 30.0;
constexpr double kLarge = 46.0;
constexpr double kArrowRoom = 160.0;  // beside the title

std::string outline(double width) {
  return attribute("fill", "none") + attribute("stroke-width", width) + attribute("stroke", kInk);
}

long long count_of(std::size_t count) { return static_cast<long long>(count); }

// The text, or as much of its beginning as there is room for.
std::string fitting(const std::string& text, double size, double room) {
  if (width_of(text, size) <= room) return text;
  std::string shorter = text;
  for (std::size_t count = text.size(); count > 0 && width_of(shorter, size) > room; --count)
    shorter = std::string(vexo_xyz_impl::text::first_characters(text, count - 1)) + "…";
  return shorter;
}

std::string axis_name(std::string_view known, std::string_view unknown, const Picture& picture) {
  return std::string(picture.axes_known ? known : unknown) + (picture.in_degrees ? " [°]" : " [m]");
}

int decimals_of_step(double step) { return std::max(0, static_cast<int>(-std::floor(std::log10(step) + 1e-9))); }

// Every which of the round coordinates is written, so that they stand apart.
std::size_t written_each(const std::vector<double>& at, double step, double scale) {
  double widest = 0.0;
  for (const double value : at)
    widest = std::max(widest, width_of(with_decimals(value, decimals_of_step(step)), kSmall));
  return static_cast<std::size_t>(std::ceil((widest + kSmall) / (step * scale)));
}

std::string systems_of(const Picture& picture) {
  if (picture.systems.empty()) return T("konsola.podglad_bez_ukladu");
  std::string all;
  for (const std::string& system : picture.systems) all += (all.empty() ? "" : " / ") + system;
  return all;
}

void draw_north(SvgElements& svg, const Picture& picture, const Page& page) {
  constexpr double kHalf = 32.0;
  constexpr double kHeight = 130.0;
  const double x = page.frame.right - kArrowRoom / 2 + kHalf;
  const double top = 140.0;
  svg.text(x, top - 12, kLarge, picture.axes_known ? "N" : "N?", Anchor::middle, attribute("font-weight", "bold"));
  const auto at = [](double across, double down) { return spelled(across) + "," + spelled(down) + " "; };
  const std::string half = at(x, top) + at(x - kHalf, top + kHeight) + at(x, top + kHeight * 0.78);
  svg.add("<polygon" + attribute("fill", kInk) + attribute("points", half) + "/>\n");
  const std::string other_half = at(x, top) + at(x + kHalf, top + kHeight) + at(x, top + kHeight * 0.78);
  svg.add("<polygon" + outline(3) + attribute("points", other_half) + "/>\n");
}

void draw_scale_bar(SvgElements& svg, const Picture& picture, const Page& page) {
  constexpr double kBarHeight = 12.0;
  const double length = round_step(page.frame.width() / 4 / page.scale);
  const double units = length * page.scale;
  const double x = page.frame.left;
  const double y = page.frame.bottom + 62;
  svg.rectangle(x, y, units / 2, kBarHeight, attribute("fill", kInk));
  svg.rectangle(x, y, units, kBarHeight, outline(3));
  const bool in_kilometres = !picture.in_degrees && length >= 1000.0;
  const double shown = in_kilometres ? length / 1000.0 : length;
  const std::string unit = picture.in_degrees ? "°" : in_kilometres ? " km" : " m";
  const double below = y + kBarHeight + kSmall + 4;
  const int decimals = decimals_of_step(shown) + 1;
  svg.text(x, below, kSmall, "0", Anchor::middle);
  svg.text(x + units / 2, below, kSmall, spelled(shown / 2, decimals), Anchor::middle);
  svg.text(x + units, below, kSmall, spelled(shown, decimals) + unit, Anchor::middle);
  if (picture.in_degrees) return;
  const std::string scale = "1 : " + spelled(page.denominator(), 3);
  svg.text(x + units + 110, y + kBarHeight + 4, kUsual, scale);
}

// Dots and what they mean, one behind the other.
void draw_legend(SvgElements& svg, const Picture& picture, const Page& page, const Marks& marks) {
  std::array<std::size_t, kSuspicions.size()> counts{};
  for (const PicturePoint& point : picture.points)
    if (point.suspicion != Suspicion::none) ++counts[static_cast<std::size_t>(point.suspicion)];
  double x = page.frame.left;
  const double y = page.frame.bottom + 150;
  const auto item = [&](std::string_view colour, const std::string& text, bool is_arrow) {
    if (is_arrow) {
      draw_arrowhead(svg, x + 10, y - 9, -90, colour);
    } else {
      svg.add("<circle" + attribute("cx", x + 10) + attribute("cy", y - 9) + attribute("r", 9) +
              attribute("fill", colour) + "/>\n");
    }
    svg.text(x + 28, y, kSmall, text);
    x += 28 + width_of(text, kSmall) + 30;
  };
  item(kPointColour, T("konsola.podglad_punkt"), false);
  for (std::size_t i = 0; i < counts.size(); ++i) {
    if (counts[i] == 0) continue;
    item(kSuspectColour, name_of(static_cast<Suspicion>(i)) + ": " + std::to_string(counts[i]), false);
  }
  if (marks.outside_count > 0) item(kInk, filled("konsola.podglad_poza_ramka", {count_of(marks.outside_count)}), true);
}

}  // namespace

std::string name_of(Suspicion suspicion) {
  constexpr std::array<std::string_view, kSuspicions.size()> kKeys = {
      "konsola.podglad_daleko", "konsola.podglad_powtorzony", "konsola.podglad_to_samo_miejsce",
      "konsola.podglad_wysokosc"};
  return suspicion == Suspicion::none ? std::string() : T(kKeys[static_cast<std::size_t>(suspicion)]);
}

std::string distance_in(const Picture& picture, double distance) {
  return picture.in_degrees ? spelled(distance) + "°" : distance_text(distance);
}

void draw_arrowhead(SvgElements& svg, double x, double y, double turned, std::string_view colour) {
  const std::string place = "translate(" + spelled(x) + " " + spelled(y) + ") rotate(" + spelled(turned) + ")";
  svg.add("<path" + attribute("d", "M14 0L-12 -10V10Z") + attribute("fill", colour) + attribute("transform", place) +
          "/>\n");
}

void draw_frame(SvgElements& svg, const Picture& picture, const Page& page) {
  constexpr double kApart = 400.0;  // crosses, at most
  constexpr double kArm = 14.0;
  constexpr double kTick = 12.0;
  constexpr std::string_view kCross = "#b8b8b8";
  const Box& frame = page.frame;
  const double step = round_step(kApart / page.scale);
  const double half_width = frame.width() / 2 / page.scale;
  const double half_height = frame.height() / 2 / page.scale;
  const auto across = multiples(step, page.middle_x - half_width, page.middle_x + half_width);
  const auto down = multiples(step, page.middle_y - half_height, page.middle_y + half_height);
  for (const double x : across)
    for (const double y : down) {
      const double px = page.across(x);
      const double py = page.down(y);
      svg.line(px - kArm, py, px + kArm, py, kCross, 2);
      svg.line(px, py - kArm, px, py + kArm, kCross, 2);
    }
  svg.rectangle(frame.left, frame.top, frame.width(), frame.height(), outline(4));

  const int decimals = decimals_of_step(step);
  const std::string east = axis_name("E", "X", picture);
  const double room = frame.right - width_of(east, kUsual) - kSmall;
  const std::size_t each = std::max(written_each(across, step, page.scale), written_each(down, step, page.scale));
  for (std::size_t i = 0; i < across.size(); ++i) {
    const double x = page.across(across[i]);
    const std::string text = with_decimals(across[i], decimals);
    svg.line(x, frame.bottom - kTick, x, frame.bottom, kInk, 3);
    if (i % each == 0 && x + width_of(text, kSmall) / 2 < room)
      svg.text(x, frame.bottom + kSmall + 6, kSmall, text, Anchor::middle);
  }
  for (std::size_t i = 0; i < down.size(); ++i) {
    const double y = page.down(down[i]);
    const std::string turn = "rotate(-90 " + spelled(frame.left - 12) + " " + spelled(y) + ")";
    svg.line(frame.left, y, frame.left + kTick, y, kInk, 3);
    if (i % each == 0)
      svg.text(frame.left - 12, y, kSmall, with_decimals(down[i], decimals), Anchor::middle,
               attribute("transform", turn));
  }
  svg.text(frame.right, frame.bottom + kSmall + 8, kUsual, east, Anchor::end);
  svg.text(frame.left, frame.top - 14, kUsual, axis_name("N", "Y", picture));
}

void draw_title(SvgElements& svg, const Picture& picture, const Page& page) {
  const double x = page.frame.left;
  const double room = page.frame.width() - kArrowRoom;
  const std::string date = vexo_xyz_impl::text::local_time("%Y-%m-%d");
  const std::string what =
      filled("konsola.podglad_liczba", {count_of(picture.points.size())}) + " · " + systems_of(picture);
  const std::string& title = picture.title();
  svg.text(x, 148, kLarge, fitting(title, kLarge, room), Anchor::start, attribute("font-weight", "bold"));
  svg.text(x, 205, kUsual, fitting(what, kUsual, room));
  svg.text(x, 252, kUsual, fitting(picture.file + " · " + date, kUsual, room));
  draw_north(svg, picture, page);
}

void draw_foot(SvgElements& svg, const Picture& picture, const Page& page, const Marks& marks, std::size_t labels) {
  draw_scale_bar(svg, picture, page);
  draw_legend(svg, picture, page, marks);
  std::string caption = filled("konsola.podglad_numery", {count_of(labels), count_of(picture.points.size())});
  if (marks.drawn() < marks.inside_count)
    caption += " " + filled("konsola.podglad_narysowane", {count_of(marks.drawn()), count_of(marks.inside_count)});
  svg.text(page.frame.left, page.frame.bottom + 195, kSmall, caption);
}

}  // namespace console
