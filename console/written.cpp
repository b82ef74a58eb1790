#include "console/written.h"

#include <iostream>

namespace console {

bool written(std::ostream& out, std::string_view text) {
  if (out << text << std::flush) return true;
  std::cerr << "vexo-xyz: standard output could not be written\n";
  return false;
}

}  // namespace console
