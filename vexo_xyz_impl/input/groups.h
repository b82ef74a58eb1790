// Many small groups of things in a few large blocks: a group lies in one piece, and once it is closed it never moves.
//
// Unlike a vector, it never copies closed groups when it grows, and touches no memory that it does not fill.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <span>
#include <type_traits>
#include <utility>
#include <vector>

namespace vexo_xyz_impl {

template <class T>
class Groups {
  static_assert(std::is_trivially_copyable_v<T>);

 public:
  Groups() = default;
  Groups(Groups&& other) noexcept { swap(other); }
  Groups& operator=(Groups&& other) noexcept {
    Groups(std::move(other)).swap(*this);
    return *this;
  }
  Groups(const Groups&) = delete;
  Groups& operator=(const Groups&) = delete;
  ~Groups() = default;

  /// Adds to the open group, whose things may move.
  void add(const T& thing) {
    if (next_ == end_) make_room(1);
    *next_++ = thing;
  }

  /// A copy of the things as a group of its own, which has a place also when there are none; for when the open group is
  /// empty.
  std::span<const T> keep(std::span<const T> things) {
    if (open_ == nullptr || static_cast<std::size_t>(end_ - next_) < things.size()) make_room(things.size());
    next_ = std::copy(things.begin(), things.end(), next_);
    return close();
  }
  [[nodiscard]] std::span<T> open() const { return {open_, next_}; }

  /// Forgets what stands behind the first `size` things of the open group.
  void shorten(std::size_t size) { next_ = open_ + size; }

  /// Closes the open group and opens another; returns what was closed.
  std::span<const T> close() {
    closed_ += open().size();
    return {std::exchange(open_, next_), next_};
  }

  /// Things in all groups.
  [[nodiscard]] std::size_t count() const { return closed_ + open().size(); }

 private:
  struct Free {
    std::size_t size;
    void operator()(T* block) const { std::allocator<T>().deallocate(block, size); }
  };

  void make_room(std::size_t things) {
    constexpr std::size_t kFirstBlock = 256;
    constexpr std::size_t kUsualBlock = std::size_t{1} << 16U;
    const std::size_t last = blocks_.empty() ? kFirstBlock / 2 : blocks_.back().get_deleter().size;
    const std::size_t size = std::max(2 * std::min(last, kUsualBlock / 2), 2 * open().size() + things);
    std::unique_ptr<T, Free> block(std::allocator<T>().allocate(size), Free{size});
    T* const place = block.get();
    T* const moved = std::copy(open_, next_, place);
    if (!blocks_.empty() && open_ == blocks_.back().get()) {
      blocks_.back() = std::move(block);  // it held nothing else
    } else {
      blocks_.push_back(std::move(block));
    }
    open_ = place;
    next_ = moved;
    end_ = open_ + size;
  }

  void swap(Groups& other) noexcept {
    std::swap(blocks_, other.blocks_);
    std::swap(open_, other.open_);
    std::swap(next_, other.next_);
    std::swap(end_, other.end_);
    std::swap(closed_, other.closed_);
  }

  std::vector<std::unique_ptr<T, Free>> blocks_;
  T* open_ = nullptr;
  T* next_ = nullptr;
  T* end_ = nullptr;
  std::size_t closed_ = 0;
};

}  // namespace vexo_xyz_impl
