// Texts of a drawing as people read them, out of how its file spells them.
#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace console {

class TextDecoding {
 public:
  /// UTF-8, as from version 2007 on, whose number is 1021; before it the code page that $DWGCODEPAGE names.
  TextDecoding(int version, std::string_view code_page);

  /// In UTF-8, with U+FFFD for what is none; \U+nnnn and the codes of group 1 (%%nnn, ^ and a blank) are undone.
  [[nodiscard]] std::string operator()(std::string_view spelled) const;

 private:
  class Converter;
  std::shared_ptr<const Converter> converter_;  // none: UTF-8
};

}  // namespace console
