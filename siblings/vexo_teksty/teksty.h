// The message catalogue: the text of every key the user may see, in the market's language.
//
// Templates are printf-style; the values that each takes stand beside it in the catalogues. Whether a text ends with
// a line break is decided by the text.
#pragma once

#include <span>
#include <string_view>
#include <utility>

#include "vexo_xyz_impl/host/siblings.h"

namespace vexo_teksty {

/// A key and its text, UTF-8.
using Entry = std::pair<std::string_view, std::string_view>;

/// The Polish catalogue, sorted by key.
[[nodiscard]] std::span<const Entry> polish();

class Catalogue final : public vexo_xyz_impl::host::Texts {
 public:
  /// `entries` sorted by key; they outlive the catalogue.
  explicit Catalogue(std::span<const Entry> entries) : entries_(entries) {}
  [[nodiscard]] std::string_view T(std::string_view key) const override;

 private:
  std::span<const Entry> entries_;
};

}  // namespace vexo_teksty
