// DXF tags as bytes: a group code line and a value line each, through one buffer into a sink.
//
// Numbers are written locale-free, reals as decimals that read back to the same double and are no longer than that
// takes, without an exponent and always with a decimal point.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "console/drawing/drawing.h"

namespace console {

/// Where finished bytes go.
class ByteSink {
 public:
  virtual ~ByteSink() = default;
  virtual void write(std::string_view bytes) = 0;
};

class TagWriter {
 public:
  explicit TagWriter(ByteSink& sink) : sink_(sink), buffer_(kBufferSize) {}

  /// A tag with a text, which must hold no line break.
  void text(int code, std::string_view value);
  void whole(int code, long long value);
  void real(int code, double value);  ///< `value` is finite
  void handle(int code, Handle value);

  /// Three reals under `code`, `code` + 10 and `code` + 20.
  void position(int code, const Position& value);

  /// Tags that are always the same, each line ended.
  void lines(std::string_view tags);

  /// Hands everything to the sink. Nothing is handed over unless this is called.
  void flush();

 private:
  // Large enough to make few calls, small enough for the system to copy into pages it has at hand: with a megabyte the
  // writing takes several times as long.
  static constexpr std::size_t kBufferSize = std::size_t{1} << 16U;
  static constexpr std::size_t kLongestNumber = 400;  // a double written out has at most 309 digits before its point

  char* room(std::size_t bytes);
  void put_code(int code);

  ByteSink& sink_;
  std::vector<char> buffer_;
  std::size_t used_ = 0;
};

}  // namespace console
