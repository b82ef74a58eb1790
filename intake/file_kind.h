// What a file is by its bytes: a name's extension can lie, and so can the first four bytes of a package.
//
// Little of the file is read: its beginning, a package's list of members, a compound file's directory. Whether a text
// holds points is for the readers of texts to say.
#pragma once

#include <string>

namespace intake {

enum class FileKind {
  text,        ///< none of the others: lines of text, whatever they hold
  workbook,    ///< .xlsx, .xlsm and their templates
  ods,         ///< spreadsheet of the OpenDocument family
  xlsb,        ///< workbook in binary records
  encrypted,   ///< workbook that asks for a password
  old_xls,     ///< binary workbook of before 2007, or another compound file
  zip,         ///< any other archive
  dxf,         ///< drawing, as text or in binary tags
  dwg,         ///< drawing
  pdf,         ///< document
  image,       ///< PNG, JPEG, TIFF, GIF, BMP, WebP
  utf16,       ///< text in two bytes a character, with or without a mark
  raster,      ///< text grid of heights: values without coordinates
  empty,       ///< no byte, or nothing but white space
  unreadable,  ///< cannot be opened or is damaged, or bytes that are no text and none of the above
};

/// The kind of the file at `path`; never fails for what the file holds.
[[nodiscard]] FileKind file_kind(const std::string& path);

}  // namespace intake
