// What stands around a picture's points: title, frame and coordinates, north arrow, scale bar, legend.
#pragma once

#include <string>
#include <string_view>

#include "console/preview/marks.h"
#include "console/preview/svg_elements.h"

namespace console {

inline constexpr std::string_view kInk = "#222222";
inline constexpr std::string_view kPointColour = "#1f4e79";
inline constexpr std::string_view kSuspectColour = "#d0021b";

/// Frame, crosses where round coordinates meet, and these beside the frame.
void draw_frame(SvgElements& svg, const Picture& picture, const Page& page);

/// Group, count, system, file and the date of today; the north arrow beside them.
void draw_title(SvgElements& svg, const Picture& picture, const Page& page);

/// Scale bar, legend and how much of everything is shown.
void draw_foot(SvgElements& svg, const Picture& picture, const Page& page, const Marks& marks, std::size_t labels);

/// What a suspicion is called in the user's language.
[[nodiscard]] std::string name_of(Suspicion suspicion);

/// A distance for people, in metres or kilometres; or in degrees where the picture is in these.
[[nodiscard]] std::string distance_in(const Picture& picture, double distance);

/// An arrowhead that points to the right, turned by degrees clockwise.
void draw_arrowhead(SvgElements& svg, double x, double y, double turned, std::string_view colour);

}  // namespace console
