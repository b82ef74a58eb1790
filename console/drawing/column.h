// Many things of one kind, in blocks: unlike a vector's they are not copied when there are more, and unlike a deque's
// the blocks hold thousands and not nine.
#pragma once

#include <cstddef>
#include <utility>
#include <vector>

namespace console {

template <class T>
class Column {
 public:
  void push_back(const T& thing) {
    if (size_ % kBlock == 0) {
      std::vector<T> block;
      block.reserve(kBlock);
      blocks_.push_back(std::move(block));
    }
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
