// A row of cells as a view of what a table holds.
#pragma once

#include <cstddef>
#include <iterator>
#include <span>
#include <string_view>

namespace vexo_xyz_impl {

/// A cell's text, UTF-8.
using Cell = std::string_view;

/// Cells beside each other in the columns from `begin` up to `end`, behind a gap or at the row's beginning.
struct CellRun {
  std::size_t begin;
  std::size_t end;
  const Cell* cells;
};

/// A row's cells; index 0 is the first column. As cheap to copy as a span. Long gaps take no memory; their cells are
/// made when they are asked for. Columns far behind many gaps are found faster by iterating than by their index.
class Row {
 public:
  class Iterator {
   public:
    using iterator_category = std::input_iterator_tag;
    using iterator_concept = std::forward_iterator_tag;
    using value_type = Cell;
    using difference_type = std::ptrdiff_t;
    using pointer = void;
    using reference = Cell;

    Iterator() = default;
    Iterator(const Cell* cells, const CellRun* run, std::size_t column) : cells_(cells), run_(run), column_(column) {}

    Cell operator*() const {
      if (run_ == nullptr) return cells_[column_];
      return column_ < run_->begin ? Cell("") : run_->cells[column_ - run_->begin];
    }
    Iterator& operator++() {
      ++column_;
      if (run_ != nullptr && column_ == run_->end) ++run_;
      return *this;
    }
    Iterator operator++(int) {  // NOLINT(cert-dcl21-cpp): what iterators return
      const Iterator before = *this;
      ++*this;
      return before;
    }
    bool operator==(const Iterator& other) const { return column_ == other.column_; }

   private:
    const Cell* cells_ = nullptr;
    const CellRun* run_ = nullptr;
    std::size_t column_ = 0;
  };

  Row() = default;
  Row(std::span<const Cell> cells) : place_(cells.data()), size_and_kind_(2 * cells.size()) {}

  /// Of runs behind each other, each but the first behind a gap; the row ends with the last.
  explicit Row(std::span<const CellRun> runs) : place_(runs.data()), size_and_kind_(2 * runs.back().end + 1) {}

  [[nodiscard]] std::size_t size() const { return size_and_kind_ / 2; }
  [[nodiscard]] bool empty() const { return size() == 0; }
  [[nodiscard]] Cell operator[](std::size_t column) const { return has_gaps() ? behind_gaps(column) : cells()[column]; }
  [[nodiscard]] Iterator begin() const { return {has_gaps() ? nullptr : cells(), has_gaps() ? runs() : nullptr, 0}; }
  [[nodiscard]] Iterator end() const { return {nullptr, nullptr, size()}; }

  /// Calls `visit(column, cell)` for each cell but those of long gaps.
  template <class Visit>
  void for_each_stored(Visit visit) const {
    const CellRun whole{0, size(), static_cast<const Cell*>(place_)};
    for (const CellRun* run = has_gaps() ? runs() : &whole;; ++run) {
      for (std::size_t i = run->begin; i < run->end; ++i) visit(i, run->cells[i - run->begin]);
      if (run->end == size()) return;
    }
  }

  /// Where the row's first cell that is no gap is kept, which tells rows apart.
  [[nodiscard]] const Cell* data() const { return has_gaps() ? runs()->cells : cells(); }

 private:
  [[nodiscard]] bool has_gaps() const { return size_and_kind_ % 2 != 0; }
  [[nodiscard]] const Cell* cells() const { return static_cast<const Cell*>(place_); }
  [[nodiscard]] const CellRun* runs() const { return static_cast<const CellRun*>(place_); }
  [[nodiscard]] Cell behind_gaps(std::size_t column) const;

  const void* place_ = nullptr;    // of the cells, or of the runs when there are gaps
  std::size_t size_and_kind_ = 0;  // twice the size, and one more when there are gaps
};

}  // namespace vexo_xyz_impl
