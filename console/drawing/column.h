// Many things of one kind, in blocks: unlike those of a vector they are not copied when there are more, and take hardly
// more memory than they fill.
#pragma once

#include <cstddef>
#include <vector>

namespace console {

template <class T>
class Column {
 public:
  void push_back(const T& thing) {
    if (size_ % kBlock == 0) blocks_.emplace_back().reserve(kBlock);
    blocks_.back().push_back(thing);
    ++size_;
  }

  [[nodiscard]] std::size_t size() const { return size_; }
  [[nodiscard]] const T& operator[](std::size_t at) const { return blocks_[at / kBlock][at % kBlock]; }
  [[nodiscard]] T& operator[](std::size_t at) { return blocks_[at / kBlock][at % kBlock]; }

 private:
  static constexpr std::size_t kBlock = std::size_t{1} << 12U;
  std::vector<std::vector<T>> blocks_;
  std::size_t size_ = 0;
};

}  // namespace console
