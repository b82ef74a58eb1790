// The part of a workbook that names its sheets, and where all else of it is found.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "intake/package_parts.h"

namespace intake {

struct Sheet {
  std::string name;    ///< on its tab
  std::string member;  ///< of the package; empty for a sheet without cells, such as a chart's, and when it is missing
  std::size_t place = 0;  ///< of the tab, from 1, hidden ones counted
  bool hidden = false;
};

struct WorkbookPart {
  std::vector<Sheet> sheets;  ///< in the order of tabs
  std::size_t active = 0;     ///< which of them, from 0; may be none
  bool dates_from_1904 = false;
  std::string strings;  ///< the member of the shared strings, empty when there is none
  std::string styles;   ///< the member of the styles, empty when there is none
};

/// A package without such a part, as small programs write it, has its worksheets by their members' names. Fails as
/// `PackageParts::xml` and `parse_xml` do.
[[nodiscard]] WorkbookPart read_workbook_part(PackageParts& parts);

}  // namespace intake
