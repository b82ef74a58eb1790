// Lines of text files, the same for all who read or count them: a line ends at LF, CR LF or a lone CR.
#pragma once

#include <algorithm>
#include <string_view>

namespace vexo_xyz_impl::text {

inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";  ///< of UTF-8

[[nodiscard]] constexpr bool is_line_end(char c) { return c == '\n' || c == '\r'; }

/// Whether a line that begins so, white space aside, is a comment.
[[nodiscard]] constexpr bool begins_comment(std::string_view line) {
  return line.starts_with('#') || line.starts_with("//");
}

/// Takes the mark off the beginning of a text that has one.
inline void take_byte_order_mark(std::string_view& utf8) {
  if (utf8.starts_with(kByteOrderMark)) utf8.remove_prefix(kByteOrderMark.size());
}

/// Takes the first line off a text, and returns it without its end.
inline std::string_view take_line(std::string_view& text) {
  const std::string_view line(text.begin(), std::find_if(text.begin(), text.end(), is_line_end));
  text.remove_prefix(line.size());
  if (!text.empty()) text.remove_prefix(text.starts_with("\r\n") ? 2 : 1);
  return line;
}

}  // namespace vexo_xyz_impl::text
