// Texts as the lines of a DXF file spell them: in the file's encoding, and so that they show as typed.
#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace console {

class TextEncoding {
 public:
  /// UTF-8, as from version 2007 on.
  TextEncoding() = default;

  /// The code page that $DWGCODEPAGE names, "ANSI_1250" or the like, as up to version 2004. Of one that is not known,
  /// nothing but ASCII is used.
  explicit TextEncoding(std::string_view code_page);

  /// Empty: UTF-8.
  [[nodiscard]] std::string_view code_page() const;

  /// A text as group 1 of a TEXT holds it: what CAD programs would read as a code of theirs (%%d, ^J, \U+0041 …) is
  /// spelled so that they do not; control characters become blanks; letters that the code page lacks become \U+nnnn.
  /// The view is of the text itself when that needs no change, else of `changed`.
  [[nodiscard]] std::string_view label(std::string_view typed, std::string& changed) const;

  /// A name, of a layer or the like: in the file's letters, with nothing else changed.
  [[nodiscard]] std::string name(std::string_view typed) const;

 private:
  class CodePage;

  void append(std::string& to, char32_t letter) const;

  std::shared_ptr<const CodePage> code_page_;  // none: UTF-8
};

}  // namespace console
