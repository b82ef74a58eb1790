// Codes that CAD programs read in a TEXT: %%d and the like, ^J and the like, \U+0041 and \M+10041.
//
// Not every reader knows every spelling that avoids them. These were chosen so that CAD programs show the label as
// typed and a reader that does not know them shows too much, never a degree sign or a missing letter.
#include <algorithm>

#include "console/dxf/dxf_writer.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace console {
namespace {

namespace text = vexo_xyz_impl::text;

constexpr std::string_view kPercentByNumber = "%%037";
constexpr std::string_view kBackslashByNumber = "\\U+005C";

// A control character, or one that some readers take for the end of a line.
bool is_no_label_character(char32_t c) { return c < 0x20 || (c >= 0x7F && c < 0xA0) || c == 0x2028 || c == 0x2029; }

bool needs_encoding(std::string_view label) {
  return std::any_of(label.begin(), label.end(), [](char c) {
    return c < ' ' || c > '~' || c == '%' || c == '^' || c == '\\';  // also all beyond ASCII, be char signed or not
  });
}

}  // namespace

std::string_view encoded_label(std::string_view label, std::string& changed) {
  if (!needs_encoding(label)) return label;
  changed.clear();
  for (std::size_t at = 0; at < label.size();) {
    const auto code_point = text::decode(label, at);
    const std::string_view rest = label.substr(at + (code_point ? code_point->bytes : 1));
    const char32_t c = code_point ? code_point->value : U'\uFFFD';
    if (c == '%' && rest.starts_with('%')) {
      changed += kPercentByNumber;  // only the last of a run stands for itself
    } else if (c == '\\' && (rest.starts_with("U+") || rest.starts_with("M+"))) {
      changed += kBackslashByNumber;
    } else {
      text::append(changed, is_no_label_character(c) ? U' ' : c);
      if (c == '^') changed += ' ';
    }
    at = label.size() - rest.size();
  }
  return changed;
}

}  // namespace console
