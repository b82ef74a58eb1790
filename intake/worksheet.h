// A worksheet's rows one by one, each cell with the text that a person sees and what is odd about it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "intake/number_formats.h"
#include "intake/shared_strings.h"
#include "intake/xml.h"

namespace intake {

struct WorksheetCell {
  std::size_t column = 0;  ///< from 0, counted on where the cell has no reference
  std::string_view text;   ///< numbers digit for digit as stored, dates as texts; valid until the next row
  bool date = false;       ///< a number in a date's format
  bool formula_without_value = false;
  bool without_reference = false;
};

struct WorksheetRow {
  std::size_t number = 0;  ///< as the spreadsheet program shows it
  bool hidden = false;     ///< by hand or by a filter
  bool prefixed = false;   ///< its elements have a prefix
  std::vector<WorksheetCell> cells;
};

/// What a workbook's sheets have in common.
struct SheetContext {
  SharedStrings strings;
  NumberFormats formats;
  bool dates_from_1904 = false;
};

class Worksheet final : private XmlHandler {
 public:
  /// Neither the bytes nor the context may go away meanwhile.
  Worksheet(std::string member, std::span<const char> xml, const SheetContext& context)
      : context_(context), parser_(std::move(member), xml, *this) {}

  /// The next row, null behind the last one. Fails as `XmlParser::run`, and with MemoryError, naming the row, for a
  /// column beyond `vexo_xyz_impl::kMostColumns`.
  [[nodiscard]] const WorksheetRow* next();

 private:
  enum { kSheet = 1, kData, kRow, kCell, kFormula, kValue, kInline, kRun, kText };
  enum class Type { number, shared, text, boolean, date, error };

  int start(int parent, const XmlElement& element) override;
  void characters(int state, std::string_view text) override;
  bool end(int state) override;

  void begin_row(const XmlElement& element);
  void begin_cell(const XmlAttributes& attributes);
  void end_cell();
  void show(const std::string& text);

  const SheetContext& context_;
  WorksheetRow row_;
  std::string text_;                 // of the row's cells
  std::vector<std::size_t> begins_;  // of each cell's text in it
  std::size_t next_column_ = 0;
  Type type_ = Type::number;
  ShownAs form_ = ShownAs::number;
  bool has_formula_ = false;
  bool has_value_ = false;
  XmlParser parser_;
};

}  // namespace intake
