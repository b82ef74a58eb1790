#pragma once

#include <string_view>

namespace console {

/// Where finished bytes go.
class ByteSink {
 public:
  virtual ~ByteSink() = default;
  virtual void write(std::string_view bytes) = 0;
};

}  // namespace console
