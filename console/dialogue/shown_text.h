// Texts as they may go to a terminal.
#pragma once

#include <string>
#include <string_view>

namespace console {

/// The text without what could steer a terminal: control characters other than line ends and tabs become U+FFFD, and
/// so does what is not UTF-8.
[[nodiscard]] std::string without_control_characters(std::string_view raw);

/// The same, and of a text that would fill many screens, as a cell as long as its file does, only both ends.
[[nodiscard]] std::string shown_text(std::string_view raw);

}  // namespace console
