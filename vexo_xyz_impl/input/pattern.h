// Regular expressions over bytes, compiled once and run by machine code where the machine has a compiler for it.
//
// A pattern holds compiled code only and may be used from several threads at once, to the very end of the process: its
// code is never freed. Whatever matching writes to lies in a `Matcher`, of which each reading makes its own. There is
// no match limit that a long text could meet: a row of a worksheet may be as long as the worksheet. Groups are views
// into the subject.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>

struct pcre2_real_code_8;
struct pcre2_real_match_data_8;
struct pcre2_real_match_context_8;

namespace vexo_xyz_impl {

class Pattern {
 public:
  enum Option : unsigned {
    none = 0,
    dot_matches_line_ends = 1,
    anchored = 2,  ///< matches at the place where it is tried only
    unicode = 4,   ///< the subject must be valid UTF-8, and \d, \s, \w have all scripts' digits, spaces, letters
  };

  /// Fails with ValueError for an expression that does not compile, MemoryError when memory runs out.
  explicit Pattern(std::string_view expression, unsigned options = none);

 private:
  friend class Matcher;

  pcre2_real_code_8* code_;
  bool has_machine_code_ = false;
};

class Matcher {
 public:
  /// A match: where it stands in the subject, and its groups; a group that took no part is empty.
  struct Match {
    std::size_t begin;
    std::size_t end;
    std::string_view group1;
    std::string_view group2;
  };

  /// Fails with MemoryError when memory runs out.
  Matcher();

  /// The first match of `pattern` at or after `from`, or at `from` exactly when it is anchored; `from` lies in the
  /// subject or at its end. Fails with MemoryError when memory runs out.
  [[nodiscard]] std::optional<Match> find(const Pattern& pattern, std::string_view subject, std::size_t from = 0);

 private:
  struct Free {
    void operator()(pcre2_real_match_data_8* data) const;
    void operator()(pcre2_real_match_context_8* context) const;
  };

  std::unique_ptr<pcre2_real_match_data_8, Free> data_;
  std::unique_ptr<pcre2_real_match_context_8, Free> context_;
};

}  // namespace vexo_xyz_impl
