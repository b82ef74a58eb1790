#include "vexo_xyz_impl/input/pattern.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <span>
#include <string>

#define PCRE2_CODE_UNIT_WIDTH 8
#include <pcre2.h>

#include "vexo_xyz_impl/failure.h"

namespace vexo_xyz_impl {
namespace {

constexpr std::uint32_t kPlaces = 3;  // the match and its two groups

std::string message_of(int error) {
  std::array<PCRE2_UCHAR8, 256> text{};
  pcre2_get_error_message(error, text.data(), text.size());
  return {text.begin(), std::find(text.begin(), text.end(), PCRE2_UCHAR8{0})};
}

std::uint32_t compile_options(unsigned options) {
  std::uint32_t flags = 0;
  if ((options & Pattern::dot_matches_line_ends) != 0) flags |= PCRE2_DOTALL;
  if ((options & Pattern::anchored) != 0) flags |= PCRE2_ANCHORED;
  if ((options & Pattern::unicode) != 0) flags |= PCRE2_UTF | PCRE2_UCP;
  return flags;
}

}  // namespace

void Matcher::Free::operator()(pcre2_real_match_data_8* data) const { pcre2_match_data_free(data); }
void Matcher::Free::operator()(pcre2_real_match_context_8* context) const { pcre2_match_context_free(context); }

Pattern::Pattern(std::string_view expression, unsigned options) {
  int error = 0;
  PCRE2_SIZE offset = 0;
  code_ = pcre2_compile(reinterpret_cast<PCRE2_SPTR8>(expression.data()), expression.size(), compile_options(options),
                        &error, &offset, nullptr);
  if (code_ == nullptr && error == PCRE2_ERROR_HEAP_FAILED) {
    throw MemoryError("not enough memory to compile a pattern");
  }
  if (code_ == nullptr) throw ValueError("pattern '" + std::string(expression) + "': " + message_of(error));
  // Where the machine has no just-in-time compiler the pattern is interpreted.
  has_machine_code_ = pcre2_jit_compile(code_, PCRE2_JIT_COMPLETE) == 0;
}

Matcher::Matcher() : data_(pcre2_match_data_create(kPlaces, nullptr)), context_(pcre2_match_context_create(nullptr)) {
  if (!data_ || !context_) throw MemoryError("not enough memory to search a text");
  constexpr auto kNoLimit = std::numeric_limits<std::uint32_t>::max();
  pcre2_set_match_limit(context_.get(), kNoLimit);
  pcre2_set_depth_limit(context_.get(), kNoLimit);
  pcre2_set_heap_limit(context_.get(), kNoLimit);
}

std::optional<Matcher::Match> Matcher::find(const Pattern& pattern, std::string_view subject, std::size_t from) {
  if (subject.empty()) subject = "";  // machine code takes no null pointer
  auto* const match = pattern.has_machine_code_ ? &pcre2_jit_match : &pcre2_match;
  const int found = match(pattern.code_, reinterpret_cast<PCRE2_SPTR8>(subject.data()), subject.size(), from, 0,
                          data_.get(), context_.get());
  if (found == PCRE2_ERROR_NOMATCH) return std::nullopt;
  if (found == PCRE2_ERROR_NOMEMORY || found == PCRE2_ERROR_JIT_STACKLIMIT) {
    throw MemoryError("not enough memory to search a text of " + std::to_string(subject.size()) + " bytes");
  }
  if (found < 0) throw ValueError("matching a pattern: " + message_of(found));

  // Begin and end of the match, then of each group that took part.
  const std::span ends(pcre2_get_ovector_pointer(data_.get()), 2 * static_cast<std::size_t>(found));
  const auto group = [&](std::size_t number) {
    if (2 * number >= ends.size() || ends[2 * number] == PCRE2_UNSET) return std::string_view();
    return subject.substr(ends[2 * number], ends[2 * number + 1] - ends[2 * number]);
  };
  return Match{ends[0], ends[1], group(1), group(2)};
}

}  // namespace vexo_xyz_impl
