#include "vexo_xyz_impl/input/table.h"

#include <algorithm>
#include <utility>

namespace vexo_xyz_impl {
namespace {

constexpr std::size_t kKeptBlock = std::size_t{1} << 20U;  // texts that are kept share blocks of this size

}  // namespace

std::string_view Table::adopt(std::vector<char> buffer) {
  buffers_.push_back(std::move(buffer));
  return {buffers_.back().data(), buffers_.back().size()};
}

std::string_view Table::keep(std::string_view text) {
  const auto has_room = [&](const std::vector<char>& block) { return block.capacity() - block.size() >= text.size(); };
  if (kept_ == 0 || !has_room(buffers_[kept_ - 1])) {
    buffers_.emplace_back().reserve(std::max(kKeptBlock, text.size()));
    kept_ = buffers_.size();
  }
  std::vector<char>& block = buffers_[kept_ - 1];
  const std::size_t at = block.size();
  block.insert(block.end(), text.begin(), text.end());  // within its capacity: earlier views stay valid
  return {block.data() + at, text.size()};
}

std::vector<Row> Table::rows() const {
  std::vector<Row> rows;
  rows.reserve(size());
  for (std::size_t row = 0; row < size(); ++row) rows.push_back((*this)[row]);
  return rows;
}

}  // namespace vexo_xyz_impl
