// Codes that CAD programs read in a TEXT: %%d and the like, ^J and the like, \U+0041 and \M+10041.
//
// Not every reader knows every spelling that avoids them. These were chosen so that CAD programs show the label as
// typed and a reader that does not know them shows too much, never a degree sign or a missing letter.
#include "console/dxf/text_encoding.h"

#include <algorithm>
#include <map>
#include <utility>

#include "console/dxf/code_page.h"
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

void append_unit(std::string& to, char32_t unit) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  to += "\\U+";
  for (int shift = 12; shift >= 0; shift -= 4) to += kDigits[(unit >> static_cast<unsigned>(shift)) & 0xFU];
}

// By number, in UTF-16: that is how many digits readers take.
void append_by_number(std::string& to, char32_t letter) {
  if (letter > 0xFFFF) append_unit(to, 0xD800 + ((letter - 0x10000) >> 10U));
  append_unit(to, letter > 0xFFFF ? 0xDC00 + (letter & 0x3FFU) : letter);
}

}  // namespace

// Letters beyond ASCII as one code page has them. Each is asked for once.
class TextEncoding::CodePage {
 public:
  explicit CodePage(std::string_view name) : name_(name), converted_(name, "UTF-8") {}

  [[nodiscard]] std::string_view name() const { return name_; }

  const std::string& bytes_of(char32_t letter) const {
    const auto [found, is_new] = letters_.try_emplace(letter);
    if (is_new) {
      std::string utf8;
      text::append(utf8, letter);
      if (auto bytes = converted_(utf8)) {
        found->second = *std::move(bytes);
      } else {
        append_by_number(found->second, letter);
      }
    }
    return found->second;
  }

 private:
  std::string name_;
  Conversion converted_;
  mutable std::map<char32_t, std::string> letters_;
};

TextEncoding::TextEncoding(std::string_view code_page) : code_page_(std::make_shared<CodePage>(code_page)) {}

std::string_view TextEncoding::code_page() const {
  return code_page_ == nullptr ? std::string_view() : code_page_->name();
}

void TextEncoding::append(std::string& to, char32_t letter) const {
  if (code_page_ == nullptr || letter < 0x80) {
    text::append(to, letter);
  } else {
    to += code_page_->bytes_of(letter);
  }
}

std::string_view TextEncoding::label(std::string_view typed, std::string& changed) const {
  if (!needs_encoding(typed)) return typed;
  changed.clear();
  for (std::size_t at = 0; at < typed.size();) {
    const auto code_point = text::decode(typed, at);
    const std::string_view rest = typed.substr(at + (code_point ? code_point->bytes : 1));
    const char32_t c = code_point ? code_point->value : U'\uFFFD';
    if (c == '%' && rest.starts_with('%')) {
      changed += kPercentByNumber;  // only the last of a run stands for itself
    } else if (c == '\\' && (rest.starts_with("U+") || rest.starts_with("M+"))) {
      changed += kBackslashByNumber;
    } else {
      append(changed, is_no_label_character(c) ? U' ' : c);
      if (c == '^') changed += ' ';
    }
    at = typed.size() - rest.size();
  }
  return changed;
}

std::string TextEncoding::name(std::string_view typed) const {
  std::string name;
  for (std::size_t at = 0; at < typed.size();) {
    const auto code_point = text::decode(typed, at);
    append(name, code_point ? code_point->value : U'\uFFFD');
    at += code_point ? code_point->bytes : 1;
  }
  return name;
}

}  // namespace console
