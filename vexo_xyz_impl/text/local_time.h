// The local date and time as text.
#pragma once

#include <string>

namespace vexo_xyz_impl::text {

/// The local date and time now, in a format of strftime; at most 63 bytes. Empty when the system cannot tell it.
[[nodiscard]] std::string local_time(const char* format);

}  // namespace vexo_xyz_impl::text
