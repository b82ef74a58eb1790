// Conversion between the code pages that drawings name and UTF-8.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace console {

class Conversion {
 public:
  /// "UTF-8" or a code page as $DWGCODEPAGE names it: ANSI_1250, dos852, ISO8859-2. One that is not known converts
  /// nothing.
  Conversion(std::string_view to, std::string_view from);
  Conversion(const Conversion&) = delete;
  Conversion& operator=(const Conversion&) = delete;
  ~Conversion();

  /// The text with each letter as it is; none where one is missing on either side.
  [[nodiscard]] std::optional<std::string> operator()(std::string_view text) const;

 private:
  void* library_;
};

}  // namespace console
