// The program's log: failures, a line each, in the user's state folder (XDG_STATE_HOME, else ~/.local/state; on Windows
// LOCALAPPDATA).
#pragma once

#include <string_view>

namespace vexo_boot {

/// Appends a line. A log that cannot be written is no reason to stop: then nothing happens.
void append_to_log(std::string_view line);

}  // namespace vexo_boot
