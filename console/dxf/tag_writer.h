// DXF tags as bytes: a group code line and a value line each, through one buffer into a sink.
//
// Numbers are written locale-free, reals as decimals that read back to the same double and are no longer than that
// takes, without an exponent and always with a decimal point. What is written a million times is expanded where it is
// called, so that group codes become part of the program.
#pragma once

#include <cstddef>
#include <cstring>
#include <string_view>
#include <vector>

#include "console/byte_sink.h"
#include "console/drawing/drawing.h"
#include "console/dxf/numerals.h"

namespace console {

class TagWriter {
 public:
  explicit TagWriter(ByteSink& sink) : sink_(sink), buffer_(kBufferSize) {}

  /// A tag with a text, which must hold no line break.
  void text(int code, std::string_view value) {
    char* const to = put_code(room(value.size() + kLongestTag), code);
    end_line(to + value.copy(to, value.size()));  // which a view of nothing may be, too
  }

  void whole(int code, long long value) { end_line(put_whole(put_code(room(kLongestTag), code), value)); }

  /// `value` is finite.
  void real(int code, double value) { end_line(put_real(put_code(room(kLongestTag), code), value)); }

  void handle(int code, Handle value) { end_line(put_hexadecimal(put_code(room(kLongestTag), code), value)); }

  /// Three reals under `code`, `code` + 10 and `code` + 20.
  void position(int code, const Position& value) {
    real(code, value.x);
    real(code + 10, value.y);
    real(code + 20, value.z);
  }

  /// Tags that are always the same, each line ended.
  void lines(std::string_view tags) {
    std::memcpy(room(tags.size()), tags.data(), tags.size());
    used_ += tags.size();
  }

  /// Hands everything to the sink. Nothing is handed over unless this is called.
  void flush();

 private:
  // Large enough to make few calls, small enough for the system to copy into pages it has at hand: with a megabyte the
  // writing takes several times as long.
  static constexpr std::size_t kBufferSize = std::size_t{1} << 16U;
  static constexpr std::size_t kLongestTag = 20 + kLongestNumeral;  // but for a text

  // Where so many bytes can be written.
  char* room(std::size_t bytes) {
    if (buffer_.size() - used_ < bytes) make_room(bytes);
    return buffer_.data() + used_;
  }
  void make_room(std::size_t bytes);

  void end_line(char* end) {
    *end = '\n';
    used_ = static_cast<std::size_t>(end + 1 - buffer_.data());
  }

  ByteSink& sink_;
  std::vector<char> buffer_;
  std::size_t used_ = 0;
};

}  // namespace console
