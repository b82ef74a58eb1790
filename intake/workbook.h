// Reads an .xlsx as a person sees it in a spreadsheet program: by tabs and names, with an XML parser.
//
// Members are found by relationships, whatever they are called; elements may have any prefix, rows and cells no
// reference. Texts come decoded and joined, dates as the text of their day, numbers digit for digit as they are stored;
// a formula gives its stored value. Hidden rows are rows. What merged cells cover is read as it is stored, which is
// empty but for the first.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "intake/records.h"
#include "intake/workbook_part.h"

namespace intake {

/// What in a sheet the importer's reader sees otherwise than a person does, by the numbers of rows as the spreadsheet
/// program shows them, each row once.
struct Flaws {
  using Rows = std::vector<std::size_t>;

  Rows formulas_without_value;
  Rows dates;                    ///< in one of the first four columns, where numbers are due
  Rows hidden_rows;              ///< with values; by a filter or by hand
  Rows cells_without_reference;  ///< which are not seen
  Rows prefixed;                 ///< rows that are not seen, since their element has a prefix
};

class Workbook {
 public:
  /// Fails as `vexo_xyz_impl::Package` does, and with ParseError, naming member and line, for what is no XML.
  explicit Workbook(const std::string& path);
  Workbook(Workbook&&) noexcept;
  Workbook& operator=(Workbook&&) noexcept;
  Workbook(const Workbook&) = delete;
  Workbook& operator=(const Workbook&) = delete;
  ~Workbook();

  /// In the order of tabs.
  [[nodiscard]] const std::vector<Sheet>& sheets() const;

  /// The sheet with cells that a person sees first: on the active tab, else on the first that is not hidden; null when
  /// there is none.
  [[nodiscard]] const Sheet* seen_first() const;

  /// The sheet that the importer's reader reads; null when it reads none.
  [[nodiscard]] const Sheet* imported() const;

  /// By the tab's name; null when there is none.
  [[nodiscard]] const Sheet* named(std::string_view name) const;

  /// The sheet's rows that have a value, a record each. Fails as the constructor does, there or while reading; with
  /// MemoryError for what is too large, KeyError when the sheet has no member. May outlive the workbook.
  [[nodiscard]] std::unique_ptr<Records> records(const Sheet& sheet);

  /// Whether `inspect` is worth its time, which is that of an import: a glance at the bytes that the importer's reader
  /// has unpacked. False for a sheet that is sound.
  [[nodiscard]] bool may_be_flawed(std::string_view sheet);

  /// Fails as `records`.
  [[nodiscard]] Flaws inspect(const Sheet& sheet);

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace intake
