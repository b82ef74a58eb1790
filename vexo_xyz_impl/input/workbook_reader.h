// Reads the first worksheet of an .xlsx workbook into the table of rows.
#pragma once

#include <string>

#include "vexo_xyz_impl/input/table.h"

namespace vexo_xyz_impl {

/// The rows of the workbook at `path`. Fails with NotImplementedError: workbooks are not read yet.
[[nodiscard]] Table _czytaj_xlsx(const std::string& path);

}  // namespace vexo_xyz_impl
