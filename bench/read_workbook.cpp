// Reads a workbook into the table of rows, as an import does, and says how many it found.
#include <cstdio>

#include "vexo_xyz_impl/input/workbook_reader.h"

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  std::printf("%zu rows\n", vexo_xyz_impl::_czytaj_xlsx(argv[1]).size());
}
