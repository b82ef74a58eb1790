#include "console/dialogue/shown_text.h"

#include <algorithm>
#include <cwchar>

#include <sys/ioctl.h>

#include "vexo_xyz_impl/text/utf8.h"

namespace console {
namespace {

namespace text = vexo_xyz_impl::text;

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";
constexpr std::size_t kMostBytes = 8000;  // some screens
constexpr std::size_t kHeadCharacters = 1500;
constexpr std::size_t kTailBytes = 500;

bool turns_the_direction(char32_t code_point) {
  return code_point == 0x061C || code_point == 0x200E || code_point == 0x200F ||
         (code_point >= 0x202A && code_point <= 0x202E) || (code_point >= 0x2066 && code_point <= 0x2069);
}

bool may_be_shown(char32_t code_point) {
  if (turns_the_direction(code_point)) return false;
  return code_point == '\n' || code_point == '\t' ||
         (code_point >= 0x20 && code_point != 0x7F && !(code_point >= 0x80 && code_point < 0xA0));
}

// The end of a text, from the beginning of a character on.
std::string_view tail(std::string_view raw) {
  std::string_view end = raw.substr(raw.size() - kTailBytes);
  while (!end.empty() && !text::decode(end, 0)) end.remove_prefix(1);
  return end;
}

}  // namespace

std::string without_control_characters(std::string_view raw) {
  std::string shown;
  shown.reserve(raw.size());
  for (std::size_t at = 0; at < raw.size();) {
    const auto code_point = text::decode(raw, at);
    const std::size_t bytes = code_point ? code_point->bytes : 1;
    shown += code_point && may_be_shown(code_point->value) ? raw.substr(at, bytes) : kReplacement;
    at += bytes;
  }
  return shown;
}

std::size_t cells_of(std::string_view line) {
  std::size_t cells = 0;
  for (std::size_t at = 0; at < line.size();) {
    const auto code_point = text::decode(line, at);
    if (code_point) cells += static_cast<std::size_t>(std::max(0, wcwidth(static_cast<wchar_t>(code_point->value))));
    at += code_point ? code_point->bytes : 1;
  }
  return cells;
}

std::size_t terminal_width(int descriptor) {
  constexpr std::size_t kUsual = 80;
  winsize size{};
  return ioctl(descriptor, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : kUsual;
}

std::string shown_text(std::string_view raw) {
  if (raw.size() <= kMostBytes) return without_control_characters(raw);
  return without_control_characters(text::first_characters(raw, kHeadCharacters)) + " … " +
         without_control_characters(tail(raw));
}

}  // namespace console
