// The message catalogue: the text of every key the user may see, in the language asked for.
//
// Templates are printf-style; the keys and the values that each takes stand in keys.h, and the build fails when a
// catalogue disagrees with it. Whether a text ends with a line break is decided by the text.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "vexo_xyz_impl/host/siblings.h"

namespace vexo_teksty {

/// A key and its text, UTF-8.
using Entry = std::pair<std::string_view, std::string_view>;

/// A language's entries, sorted by key.
struct Language {
  std::string_view code;  ///< "PL", "DE", "RO" or "EN"
  std::span<const Entry> entries;
};

/// All languages; the first is the one for markets that have none of their own.
[[nodiscard]] std::span<const Language> languages();

/// The language of that code; the first one for a code that names none.
[[nodiscard]] const Language& language_of(std::string_view code);

// The catalogues.
[[nodiscard]] std::span<const Entry> polish();
[[nodiscard]] std::span<const Entry> german();
[[nodiscard]] std::span<const Entry> romanian();
[[nodiscard]] std::span<const Entry> english();

class Catalogue final : public vexo_xyz_impl::host::Texts {
 public:
  /// `entries` sorted by key; they outlive the catalogue.
  explicit Catalogue(std::span<const Entry> entries) : entries_(entries) {}
  [[nodiscard]] std::string T(std::string_view key) const override;

 private:
  std::span<const Entry> entries_;
};

}  // namespace vexo_teksty
