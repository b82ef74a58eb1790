// The bytes of a foreign text as UTF-8. Marks of byte order decide where there are any, then the pattern of zero bytes
// that UTF-16 has; what is no UTF-8 is a Windows code page.
#pragma once

#include <string_view>
#include <vector>

namespace intake {

enum class Encoding { utf8, utf8_marked, utf16_le, utf16_be, cp1250, cp1252, latin1 };

/// As users know it: "UTF-8", "Windows-1250" ...
[[nodiscard]] std::string_view encoding_name(Encoding encoding);

/// Text without its mark of byte order, and what it was written in.
struct DecodedText {
  std::vector<char> utf8;
  Encoding encoding = Encoding::utf8;
};

/// The encoding that the bytes speak for, of a text's beginning or of all of it.
[[nodiscard]] Encoding encoding_of(std::string_view bytes);

/// Any sequence of bytes gives a text; what is wrong in UTF-16 becomes U+FFFD.
[[nodiscard]] DecodedText decoded(std::vector<char> bytes);

}  // namespace intake
