// Failures with a kind: what the user reads as "kind: text".
//
// Every failure that this module raises derives from `Failure`; a host turns the kind into its own exception of
// the same name. Expected conditions (no file, no points, a refused entity) are results, never failures.
#pragma once

#include <algorithm>
#include <cstddef>
#include <exception>
#include <string>
#include <string_view>
#include <utility>

namespace vexo_xyz_impl {

/// A failure with the name of its kind and a text for people. Kinds that come from a script keep the script's name.
class Failure : public std::exception {
 public:
  Failure(std::string kind, std::string text) : kind_(std::move(kind)), text_(std::move(text)) {}
  [[nodiscard]] const std::string& kind() const noexcept { return kind_; }
  [[nodiscard]] const char* what() const noexcept override { return text_.c_str(); }

  /// Whether it is of that kind, or of one that counts as it.
  [[nodiscard]] virtual bool is(std::string_view kind) const { return kind_ == kind; }

 private:
  std::string kind_;
  std::string text_;
};

/// A kind's name as a template argument.
template <std::size_t N>
struct KindName {
  consteval KindName(const char (&name)[N]) { std::copy_n(name, N, text); }  // NOLINT: implicit and a C array
  char text[N]{};                                                            // NOLINT: structural type
};

/// One kind of failure that code can catch by type.
template <KindName Name>
class FailureOf : public Failure {
 public:
  explicit FailureOf(std::string text) : Failure(Name.text, std::move(text)) {}
};

using ValueError = FailureOf<"ValueError">;
using TypeError = FailureOf<"TypeError">;
using IndexError = FailureOf<"IndexError">;
using KeyError = FailureOf<"KeyError">;
using OverflowError = FailureOf<"OverflowError">;
using ZeroDivisionError = FailureOf<"ZeroDivisionError">;
using OSError = FailureOf<"OSError">;
using ImportError = FailureOf<"ImportError">;
using ModuleNotFoundError = FailureOf<"ModuleNotFoundError">;
using MemoryError = FailureOf<"MemoryError">;
using BadZipFile = FailureOf<"BadZipFile">;
using NotImplementedError = FailureOf<"NotImplementedError">;

/// Kind and text of a failure, ready to be shown.
struct FailureNote {
  std::string kind;
  std::string text;
};

/// Describes any ordinary failure; those of the standard library get the kind that says the same
/// (`std::bad_alloc` is MemoryError, `std::system_error` OSError, anything unknown RuntimeError).
[[nodiscard]] FailureNote describe(const std::exception& failure);

}  // namespace vexo_xyz_impl
