#include "vexo_xyz_impl/input/workbook_reader.h"

#include "vexo_xyz_impl/failure.h"

namespace vexo_xyz_impl {

Table _czytaj_xlsx(const std::string& path) {
  throw NotImplementedError("workbooks (.xlsx) cannot be read yet: " + path +
                            "; save the worksheet as CSV text and import that");
}

}  // namespace vexo_xyz_impl
