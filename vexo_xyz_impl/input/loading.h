// Recognises a file by its first bytes, for an extension can lie, and sends it to the matching reader.
#pragma once

#include <optional>
#include <string>

#include "vexo_xyz_impl/input/table.h"

namespace vexo_xyz_impl {

enum class FileType {
  xlsx,       ///< ZIP package, whatever it holds
  xls_stary,  ///< compound document: an old binary workbook, refused
  tekst,      ///< anything else, an empty file among it
};

/// What `_wczytaj` finds: no table for what cannot be read or is refused, no type for what cannot be opened.
struct LoadResult {
  std::optional<Table> rows;
  std::optional<FileType> typ;
};

/// The file's type by its first 8 bytes; empty when it cannot be opened or read.
[[nodiscard]] std::optional<FileType> _typ_pliku(const std::string& path);

/// Reads the file. A damaged workbook fails with the reader's kind.
[[nodiscard]] LoadResult _wczytaj(const std::string& path);

}  // namespace vexo_xyz_impl
