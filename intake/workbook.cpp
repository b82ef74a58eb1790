#include "intake/workbook.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "intake/package_parts.h"
#include "intake/workbook_part.h"
#include "intake/worksheet.h"
#include "intake/worksheet_glance.h"
#include "vexo_xyz_impl/failure.h"
#include "vexo_xyz_impl/input/workbook_reader.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace intake {
namespace {

using vexo_xyz_impl::kMostCells;

constexpr std::size_t kColumnsOfPoints = 4;

// All that a reader of a sheet needs, kept for as long as one is there.
struct SheetSource {
  std::string member;
  std::vector<char> xml;
  std::shared_ptr<const SheetContext> context;
};

class SheetRecords final : public Records {
 public:
  explicit SheetRecords(std::shared_ptr<const SheetSource> source) : source_(std::move(source)) { begin(); }

  bool next(Record& record) override {
    while (const WorksheetRow* const row = sheet_->next()) {
      record.line = row->number;
      record.hidden = row->hidden;
      record.cells.clear();
      for (const WorksheetCell& cell : row->cells) set(record.cells, cell);
      if (!record.cells.empty()) return true;
    }
    return false;
  }

  void rewind() override { begin(); }

 private:
  void begin() {
    sheet_.emplace(source_->member, source_->xml, *source_->context);
    cells_ = 0;
  }

  // Empty cells behind the last value give no cell; of two with one reference the last counts.
  void set(std::vector<std::string_view>& cells, const WorksheetCell& cell) {
    const std::string_view text = vexo_xyz_impl::text::trim(cell.text);
    if (cell.column >= cells.size()) {
      if (text.empty()) return;
      cells_ += cell.column + 1 - cells.size();
      if (cells_ > kMostCells) {
        throw vexo_xyz_impl::MemoryError("a worksheet may have " + std::to_string(kMostCells) +
                                         " cells, gaps counted; keep the points alone in it");
      }
      cells.resize(cell.column + 1);
    }
    cells[cell.column] = text;
  }

  std::shared_ptr<const SheetSource> source_;
  std::optional<Worksheet> sheet_;
  std::size_t cells_ = 0;  // so far
};

void note(Flaws::Rows& rows, bool flawed, std::size_t row) {
  if (flawed && (rows.empty() || rows.back() != row)) rows.push_back(row);
}

}  // namespace

struct Workbook::State {
  explicit State(const std::string& path) : parts(path), book(read_workbook_part(parts)) {}

  const std::shared_ptr<SheetContext>& formats() {
    if (context) return context;
    auto made = std::make_shared<SheetContext>();
    if (!book.styles.empty()) made->formats = NumberFormats(book.styles, parts.xml(book.styles));
    made->dates_from_1904 = book.dates_from_1904;
    return context = std::move(made);
  }

  // The last one is kept: whoever inspects a sheet goes on to read it.
  std::shared_ptr<const SheetSource> source_of(const Sheet& sheet) {
    if (sheet.member.empty()) {
      throw vexo_xyz_impl::KeyError("sheet '" + sheet.name + "' has no cells in the workbook; choose another one");
    }
    if (source && source->member == sheet.member) return source;
    const auto& common = formats();
    if (!source && !book.strings.empty()) common->strings = SharedStrings(book.strings, parts.xml(book.strings));
    source = std::make_shared<SheetSource>(SheetSource{sheet.member, parts.xml(sheet.member), common});
    return source;
  }

  PackageParts parts;
  WorkbookPart book;
  std::shared_ptr<SheetContext> context;  // its strings come with the first source
  std::shared_ptr<const SheetSource> source;
};

Workbook::Workbook(const std::string& path) : state_(std::make_unique<State>(path)) {}
Workbook::Workbook(Workbook&&) noexcept = default;
Workbook& Workbook::operator=(Workbook&&) noexcept = default;
Workbook::~Workbook() = default;

const std::vector<Sheet>& Workbook::sheets() const { return state_->book.sheets; }

const Sheet* Workbook::seen_first() const {
  const auto& sheets = state_->book.sheets;
  const auto seen = [](const Sheet& sheet) { return !sheet.hidden && !sheet.member.empty(); };
  const std::size_t active = state_->book.active;
  if (active < sheets.size() && seen(sheets[active])) return &sheets[active];
  const auto first = std::find_if(sheets.begin(), sheets.end(), seen);
  return first != sheets.end() ? &*first : nullptr;
}

const Sheet* Workbook::imported() const {
  const std::string_view member = vexo_xyz_impl::worksheet_read(state_->parts.package());
  const auto& sheets = state_->book.sheets;
  const auto found =
      std::find_if(sheets.begin(), sheets.end(), [&](const Sheet& sheet) { return sheet.member == member; });
  return !member.empty() && found != sheets.end() ? &*found : nullptr;
}

const Sheet* Workbook::named(std::string_view name) const {
  const auto& sheets = state_->book.sheets;
  const auto found = std::find_if(sheets.begin(), sheets.end(), [&](const Sheet& sheet) { return sheet.name == name; });
  return found != sheets.end() ? &*found : nullptr;
}

std::unique_ptr<Records> Workbook::records(const Sheet& sheet) {
  return std::make_unique<SheetRecords>(state_->source_of(sheet));
}

bool Workbook::may_be_flawed(std::string_view sheet) {
  return intake::may_be_flawed(sheet, state_->formats()->formats);
}

Flaws Workbook::inspect(const Sheet& sheet) {
  const auto source = state_->source_of(sheet);
  Worksheet worksheet(source->member, source->xml, *source->context);
  Flaws flaws;
  while (const WorksheetRow* const row = worksheet.next()) {
    bool filled = false;
    for (const WorksheetCell& cell : row->cells) {
      filled |= !cell.text.empty();
      note(flaws.formulas_without_value, cell.formula_without_value, row->number);
      note(flaws.dates, cell.date && cell.column < kColumnsOfPoints, row->number);
      note(flaws.cells_without_reference, cell.without_reference && !cell.text.empty(), row->number);
    }
    note(flaws.hidden_rows, row->hidden && filled, row->number);
    note(flaws.prefixed, row->prefixed && filled, row->number);
  }
  return flaws;
}

}  // namespace intake
