#include "siblings/vexo_teksty/teksty.h"

#include <algorithm>
#include <array>

namespace vexo_teksty {

std::span<const Language> languages() {
  static const std::array kLanguages = {Language{"PL", polish()}, Language{"DE", german()}, Language{"RO", romanian()},
                                        Language{"EN", english()}};
  return kLanguages;
}

const Language& language_of(std::string_view code) {
  const auto all = languages();
  const auto found = std::find_if(all.begin(), all.end(), [code](const Language& own) { return own.code == code; });
  return found != all.end() ? *found : all.front();
}

std::string Catalogue::T(std::string_view key) const {
  const auto found = std::lower_bound(entries_.begin(), entries_.end(), key,
                                      [](const Entry& entry, std::string_view wanted) { return entry.first < wanted; });
  return found != entries_.end() && found->first == key ? std::string(found->second) : std::string(key);
}

}  // namespace vexo_teksty
