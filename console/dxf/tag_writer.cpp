#include "console/dxf/tag_writer.h"

namespace console {

void TagWriter::make_room(std::size_t bytes) {
  flush();
  if (buffer_.size() < bytes) buffer_.resize(bytes);
}

void TagWriter::flush() {
  sink_.write({buffer_.data(), used_});
  used_ = 0;
}

}  // namespace console
