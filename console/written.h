// Output that another program waits for.
#pragma once

#include <ostream>
#include <string_view>

namespace console {

/// Whether all of the text could be written and let go of. If not, standard error says so.
[[nodiscard]] bool written(std::ostream& out, std::string_view text);

}  // namespace console
