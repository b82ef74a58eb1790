// A foreign table, opened: the reader is chosen here by what the file is, and nowhere else.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "intake/dialect.h"
#include "intake/encoding.h"
#include "intake/file_kind.h"
#include "intake/records.h"

namespace intake {

class TextRecords;

struct ForeignTable {
  std::unique_ptr<Records> records;  ///< null when a workbook has no sheet of the name wanted, or none with cells
  std::vector<std::pair<std::size_t, std::string_view>> comments;  ///< before the first record
  std::optional<Encoding> encoding;                                ///< of a text
  std::optional<Dialect> dialect;                                  ///< of a text
  std::vector<char> text;                                          ///< what a text's records look into
  const TextRecords* lines = nullptr;                              ///< the same records, of a text
  std::string sheet;                                               ///< that is read, of a workbook
  std::vector<std::string> sheets;  ///< all of a workbook that a person can see, in the order of tabs
};

/// The table in a text's bytes.
[[nodiscard]] ForeignTable text_table(std::vector<char> bytes);

/// The table in the file at `path`, whose kind is `kind`: a text or a workbook, of which `sheet` is read, else the one
/// that a person sees first. Empty when it cannot be read, or is of a kind that holds no table. Fails as `Workbook`.
[[nodiscard]] std::optional<ForeignTable> open_table(const std::string& path, FileKind kind,
                                                     const std::optional<std::string>& sheet);

}  // namespace intake
