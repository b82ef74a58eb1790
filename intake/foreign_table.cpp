#include "intake/foreign_table.h"

#include "intake/text_records.h"
#include "intake/workbook.h"
#include "vexo_xyz_impl/input/file_bytes.h"

namespace intake {
namespace {

ForeignTable open_workbook(const std::string& path, const std::optional<std::string>& sheet) {
  Workbook workbook(path);
  ForeignTable table;
  for (const Sheet& seen : workbook.sheets())
    if (!seen.hidden) table.sheets.push_back(seen.name);
  const Sheet* const wanted = sheet ? workbook.named(*sheet) : workbook.seen_first();
  if (wanted == nullptr || wanted->member.empty()) return table;
  table.sheet = wanted->name;
  table.records = workbook.records(*wanted);
  return table;
}

}  // namespace

ForeignTable text_table(std::vector<char> bytes) {
  DecodedText decoded_text = decoded(std::move(bytes));
  ForeignTable table;
  table.encoding = decoded_text.encoding;
  table.text = std::move(decoded_text.utf8);
  const std::string_view utf8(table.text.data(), table.text.size());
  table.dialect = dialect_of(utf8);
  auto records = std::make_unique<TextRecords>(utf8, *table.dialect);
  table.comments = records->leading_comments();
  table.lines = records.get();
  table.records = std::move(records);
  return table;
}

std::optional<ForeignTable> open_table(const std::string& path, FileKind kind,
                                       const std::optional<std::string>& sheet) {
  switch (kind) {
    case FileKind::text:
    case FileKind::utf16:
      if (auto bytes = vexo_xyz_impl::all_bytes(path)) return text_table(std::move(*bytes));
      return std::nullopt;
    case FileKind::workbook:
      return open_workbook(path, sheet);
    default:
      return std::nullopt;
  }
}

}  // namespace intake
