#include "intake/worksheet.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <system_error>

#include "vexo_xyz_impl/failure.h"
#include "vexo_xyz_impl/input/workbook_reader.h"
#include "vexo_xyz_impl/table/numbers.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace intake {
namespace {

std::optional<std::size_t> whole_number(std::string_view text) {
  std::size_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

std::optional<std::size_t> column_of(std::string_view reference, std::size_t row) {
  std::optional<std::uint64_t> column;
  try {
    column = vexo_xyz_impl::_kol_nr(reference);
  } catch (const vexo_xyz_impl::OverflowError&) {
    column = UINT64_MAX;
  }
  if (column && *column >= vexo_xyz_impl::kMostColumns) {
    throw vexo_xyz_impl::MemoryError("row " + std::to_string(row) + ": a row may have " +
                                     std::to_string(vexo_xyz_impl::kMostColumns) +
                                     " columns; delete what stands beyond them");
  }
  return column;
}

// A date that is stored as a text: its time stands behind a letter.
std::string date_as_text(std::string_view stored) {
  const std::size_t letter = std::min(stored.size(), stored.find('T'));
  const std::string_view time = stored.substr(letter);
  std::string text(stored.substr(0, letter));
  if (time.size() > 1 && time != "T00:00:00") text.append(" ").append(time.substr(1));
  return text;
}

}  // namespace

const WorksheetRow* Worksheet::next() {
  if (!parser_.run()) return nullptr;
  const std::string_view text(text_);
  for (std::size_t i = 0; i < row_.cells.size(); ++i) {
    const std::size_t end = i + 1 < begins_.size() ? begins_[i + 1] : text.size();
    if (row_.cells[i].text.empty()) row_.cells[i].text = text.substr(begins_[i], end - begins_[i]);
  }
  return &row_;
}

int Worksheet::start(int parent, const XmlElement& element) {
  const std::string_view name = element.name;
  switch (parent) {
    case kDocument:
      return kSheet;
    case kSheet:
      return name == "sheetData" ? kData : kIgnored;
    case kData:
      if (name != "row") return kIgnored;
      begin_row(element);
      return kRow;
    case kRow:
      if (name != "c") return kIgnored;
      begin_cell(element.attributes);
      return kCell;
    case kCell:
      has_formula_ |= name == "f";
      if (name == "v") return kValue;
      return name == "is" ? kInline : kIgnored;
    case kInline:
      if (name == "r") return kRun;
      return name == "t" ? kText : kIgnored;
    case kRun:
      return name == "t" ? kText : kIgnored;
    default:
      return kIgnored;
  }
}

void Worksheet::begin_row(const XmlElement& element) {
  row_.number = whole_number(element.attributes["r"]).value_or(row_.number + 1);
  const std::string_view hidden = element.attributes["hidden"];
  row_.hidden = hidden == "1" || hidden == "true";
  row_.prefixed = element.prefixed;
  row_.cells.clear();
  text_.clear();
  begins_.clear();
  next_column_ = 0;
}

void Worksheet::begin_cell(const XmlAttributes& attributes) {
  const auto column = column_of(attributes["r"], row_.number);
  WorksheetCell& cell = row_.cells.emplace_back();
  cell.column = column.value_or(next_column_);
  cell.without_reference = !column;
  next_column_ = cell.column + 1;
  begins_.push_back(text_.size());

  const std::string_view type = attributes["t"];
  type_ = type.empty() || type == "n" ? Type::number
          : type == "s"               ? Type::shared
          : type == "b"               ? Type::boolean
          : type == "d"               ? Type::date
          : type == "e"               ? Type::error
                                      : Type::text;
  form_ = type_ == Type::number ? context_.formats.of_style(attributes["s"]) : ShownAs::number;
  has_formula_ = has_value_ = false;
}

void Worksheet::characters(int state, std::string_view text) {
  if (state != kValue && state != kText) return;
  text_.append(text);
  has_value_ = true;
}

bool Worksheet::end(int state) {
  if (state == kCell) end_cell();
  has_value_ |= state == kValue && type_ == Type::text;  // a formula's empty text is a value
  return state == kRow;
}

void Worksheet::end_cell() {
  WorksheetCell& cell = row_.cells.back();
  const std::string_view stored = std::string_view(text_).substr(begins_.back());
  cell.formula_without_value = has_formula_ && !has_value_;
  if (!has_value_) return;
  switch (type_) {
    case Type::shared: {
      cell.text = context_.strings.find(stored).value_or(std::string_view());
      show({});
      break;
    }
    case Type::text:
      if (stored.find("_x") != std::string_view::npos) show(without_escapes(stored));
      break;
    case Type::boolean:
      show(stored == "0" || stored == "false" ? "FALSE" : "TRUE");
      break;
    case Type::date:
      cell.date = true;
      show(date_as_text(stored));
      break;
    case Type::number:
      if (form_ == ShownAs::number) break;
      if (const auto number = vexo_xyz_impl::parse_number(stored)) {
        const auto date = date_text(*number, form_, context_.dates_from_1904);
        cell.date = date.has_value();
        if (date) show(*date);
      }
      break;
    case Type::error:
      break;
  }
}

// In the place of what is stored for the cell that ends.
void Worksheet::show(const std::string& text) {
  text_.resize(begins_.back());
  text_ += text;
}

}  // namespace intake
