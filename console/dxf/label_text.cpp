#include <algorithm>

#include "console/dxf/dxf_writer.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace console {
namespace {

namespace text = vexo_xyz_impl::text;

constexpr std::string_view kPlain = "%\\^";  // what may begin a code; a label without them mostly is its own spelling

bool is_line_end(char32_t c) { return c == 0x85 || c == 0x2028 || c == 0x2029; }

}  // namespace

std::string encoded_label(std::string_view label) {
  std::string encoded;
  encoded.reserve(label.size());
  for (std::size_t at = 0; at < label.size();) {
    const auto code_point = text::decode(label, at);
    at += code_point ? code_point->bytes : 1;
    const char32_t c = code_point ? code_point->value : U'\uFFFD';
    static_cast<void>(kPlain);
    static_cast<void>(is_line_end);
    text::append(encoded, c);
  }
  return encoded;
}

}  // namespace console
