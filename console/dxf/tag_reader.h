// The tags of a DXF file that is text, as views of its bytes: a group code line and a value line each.
//
// Lines end with LF or CR LF. Blanks around a code count for nothing, in a value they are kept: only its reader knows
// whether it is a text.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string_view>

namespace console {

/// The number that all of the text is; none where it is none or more than the type holds.
[[nodiscard]] std::optional<long long> whole_in(std::string_view text);

struct Tag {
  int code = 0;
  std::string_view value;  ///< without the line's end
  std::size_t begin = 0;   ///< offset of the code line in the bytes
  std::size_t end = 0;     ///< offset behind the end of the value line

  /// Whether the value is `text`, blanks around it and the case of ASCII letters aside, which names and keywords of the
  /// format leave open.
  [[nodiscard]] bool says(std::string_view text) const;
  [[nodiscard]] std::string_view trimmed() const;
  /// The value as a number; empty where it is none or more than the type holds.
  [[nodiscard]] std::optional<long long> whole() const;
  [[nodiscard]] std::optional<double> real() const;  ///< finite
  [[nodiscard]] std::optional<std::uint64_t> handle() const;
};

class TagReader {
 public:
  /// Reads `bytes`, which outlive the reader, from offset `from` on, where a tag begins. A byte order mark before the
  /// first tag is passed over.
  explicit TagReader(std::string_view bytes, std::size_t from = 0);

  /// The next tag; false when all bytes are read. Throws DrawingFault with the line where a code is none or where the
  /// bytes end between a code and its value.
  bool next(Tag& tag);

  /// The line of the code of the tag read last, from 1 where reading began.
  [[nodiscard]] std::size_t line() const { return tags_ * 2 - 1; }

 private:
  [[nodiscard]] const char* read_code(int& code) const;

  std::string_view bytes_;
  std::size_t at_ = 0;
  std::size_t tags_ = 0;
};

}  // namespace console
