#include "siblings/vexo_teksty/teksty.h"

#include <algorithm>

namespace vexo_teksty {

std::string_view Catalogue::T(std::string_view key) const {
  const auto found = std::lower_bound(entries_.begin(), entries_.end(), key,
                                      [](const Entry& entry, std::string_view wanted) { return entry.first < wanted; });
  return found != entries_.end() && found->first == key ? found->second : key;
}

}  // namespace vexo_teksty
