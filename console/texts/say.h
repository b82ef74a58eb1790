// Saying something to the user in the words of the catalogue.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "vexo_xyz_impl/messages.h"

namespace console {

/// Prints the text of `key`, filled with texts, on the command line of the host that was entered.
inline void say(std::string_view key, const std::vector<std::string>& values = {}) {
  vexo_xyz_impl::print(key, {values.begin(), values.end()});
}

}  // namespace console
