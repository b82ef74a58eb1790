// Texts of a drawing as people read them, out of how its file spells them.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "console/dxf/code_page.h"
#include "console/dxf/text_encoding.h"

namespace console {

class TextDecoding {
 public:
  /// Of texts in the letters of `encoding`.
  explicit TextDecoding(const TextEncoding& encoding);

  /// In UTF-8, with U+FFFD for what is none; \U+nnnn and the codes of group 1 (%%nnn, ^ and a blank) are undone.
  [[nodiscard]] std::string operator()(std::string_view spelled) const;

 private:
  std::shared_ptr<const Conversion> to_utf8_;  // none: they are in UTF-8
};

}  // namespace console
