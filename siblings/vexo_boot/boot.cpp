#include "siblings/vexo_boot/boot.h"

#include <algorithm>
#include <string>

#include "vexo_xyz_impl/text/local_time.h"

namespace vexo_boot {

void Notices::blad(std::string_view name, const std::exception& failure) {
  const auto [kind, text] = vexo_xyz_impl::describe(failure);
  std::string line =
      vexo_xyz_impl::text::local_time("%Y-%m-%dT%H:%M:%S%z") + " " + std::string(name) + " " + kind + ": " + text;
  std::replace_if(
      line.begin(), line.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
  log_(line);
}

}  // namespace vexo_boot
