#include "console/dxf/tag_reader.h"

#include <charconv>
#include <cmath>

#include "console/dxf/drawing_fault.h"
#include "vexo_xyz_impl/text/ascii.h"

namespace console {
namespace {

constexpr int kGreatestCode = 9999;

bool is_blank(char c) { return c == ' ' || c == '\t'; }

template <class Number, class... How>
std::optional<Number> number_in(std::string_view text, How... how) {
  if (text.starts_with('+')) text.remove_prefix(1);
  Number value{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, how...);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return value;
}

}  // namespace

std::string_view Tag::trimmed() const {
  std::string_view text = value;
  while (!text.empty() && is_blank(text.front())) text.remove_prefix(1);
  while (!text.empty() && is_blank(text.back())) text.remove_suffix(1);
  return text;
}

bool Tag::says(std::string_view text) const { return vexo_xyz_impl::text::equal_ascii_case(trimmed(), text); }

std::optional<long long> whole_in(std::string_view text) { return number_in<long long>(text); }

std::optional<long long> Tag::whole() const { return whole_in(trimmed()); }

std::optional<double> Tag::real() const {
  const auto number = number_in<double>(trimmed());
  return number && std::isfinite(*number) ? number : std::nullopt;
}

std::optional<std::uint64_t> Tag::handle() const { return number_in<std::uint64_t>(trimmed(), 16); }

TagReader::TagReader(std::string_view bytes, std::size_t from) : bytes_(bytes), at_(from) {
  if (from == 0 && bytes_.starts_with("\xEF\xBB\xBF")) at_ = 3;
}

// The end of the code's line, or nowhere when it is no code.
const char* TagReader::read_code(int& code) const {
  const char* at = bytes_.data() + at_;
  const char* const end = bytes_.data() + bytes_.size();
  while (at != end && is_blank(*at)) ++at;
  const bool negative = at != end && *at == '-';  // -5 and the like are of programs' own
  if (negative) ++at;
  const char* const digits = at;
  int value = 0;
  for (; at != end && *at >= '0' && *at <= '9' && value <= kGreatestCode; ++at) value = value * 10 + (*at - '0');
  if (at == digits || value > kGreatestCode) return nullptr;
  code = negative ? -value : value;
  while (at != end && is_blank(*at)) ++at;
  if (at != end && *at == '\r') ++at;
  return at == end || *at == '\n' ? at : nullptr;
}

bool TagReader::next(Tag& tag) {
  if (at_ == bytes_.size()) return false;
  ++tags_;
  tag.begin = at_;
  const char* const code_end = read_code(tag.code);
  if (code_end == nullptr) throw DrawingFault(Damage::odd_code, line());
  const char* const end = bytes_.data() + bytes_.size();
  if (code_end == end) throw DrawingFault(Damage::cut_short, line());
  const char* const value = code_end + 1;
  const auto* const found = static_cast<const char*>(std::memchr(value, '\n', static_cast<std::size_t>(end - value)));
  const char* value_end = found == nullptr ? end : found;
  at_ = static_cast<std::size_t>((found == nullptr ? end : found + 1) - bytes_.data());
  if (value_end != value && value_end[-1] == '\r') --value_end;
  tag.value = {value, static_cast<std::size_t>(value_end - value)};
  tag.end = at_;
  return true;
}

}  // namespace console
