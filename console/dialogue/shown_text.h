// Texts as they may go to a terminal.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace console {

/// The text without what could steer a terminal: control characters other than line ends and tabs become U+FFFD, and
/// so does what is not UTF-8 or turns the direction of writing, which would show a name as another one.
[[nodiscard]] std::string without_control_characters(std::string_view raw);

/// The same, and of a text that would fill many screens, as a cell as long as its file does, only both ends.
[[nodiscard]] std::string shown_text(std::string_view raw);

/// How many character cells a line of text takes on a terminal.
[[nodiscard]] std::size_t cells_of(std::string_view line);

/// How many of them a line of the terminal has; the usual 80 where the descriptor is none.
[[nodiscard]] std::size_t terminal_width(int descriptor);

}  // namespace console
