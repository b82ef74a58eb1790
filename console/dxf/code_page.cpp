#include "console/dxf/code_page.h"

#include <algorithm>

#include <iconv.h>

#include "vexo_xyz_impl/text/ascii.h"

namespace console {
namespace {

// The C library's name: CP1250 for ANSI_1250, CP852 for dos852, others as they stand.
std::string library_name(std::string_view code_page) {
  std::string name(code_page);
  std::transform(name.begin(), name.end(), name.begin(), vexo_xyz_impl::text::ascii_upper);
  for (const std::string_view prefix : {"ANSI_", "DOS"})
    if (name.starts_with(prefix)) return "CP" + name.substr(prefix.size());
  return name;
}

// NOLINTNEXTLINE(performance-no-int-to-ptr,cppcoreguidelines-pro-type-cstyle-cast): as the library says failure
bool is_known(iconv_t library) { return library != (iconv_t)-1; }

}  // namespace

Conversion::Conversion(std::string_view to, std::string_view from)
    : library_(iconv_open(library_name(to).c_str(), library_name(from).c_str())) {}

Conversion::~Conversion() {
  if (is_known(library_)) iconv_close(library_);
}

std::optional<std::string> Conversion::operator()(std::string_view text) const {
  constexpr std::size_t kMostBytes = 4;  // of a letter, for one that was at least one
  if (!is_known(library_)) return std::nullopt;
  std::string from(text);
  std::string to(text.size() * kMostBytes, '\0');
  char* in = from.data();
  char* out = to.data();
  std::size_t left = from.size();
  std::size_t room = to.size();
  iconv(library_, nullptr, nullptr, nullptr, nullptr);
  if (iconv(library_, &in, &left, &out, &room) != 0) return std::nullopt;  // what is not exactly it counts too
  to.resize(to.size() - room);
  return to;
}

}  // namespace console
