#include "vexo_xyz_impl/input/loading.h"

#include <string_view>

#include "vexo_xyz_impl/input/file_bytes.h"
#include "vexo_xyz_impl/input/text_reader.h"
#include "vexo_xyz_impl/input/workbook_reader.h"

namespace vexo_xyz_impl {
namespace {

constexpr std::string_view kZipLocalFile = "PK\x03\x04";
constexpr std::string_view kCompoundDocument = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1";

}  // namespace

std::optional<FileType> _typ_pliku(const std::string& path) {
  const auto head = first_bytes(path, kCompoundDocument.size());
  if (!head) return std::nullopt;
  const std::string_view signature(head->data(), head->size());
  if (signature.starts_with(kZipLocalFile)) return FileType::xlsx;
  if (signature == kCompoundDocument) return FileType::xls_stary;
  return FileType::tekst;
}

LoadResult _wczytaj(const std::string& path) {
  const auto typ = _typ_pliku(path);
  if (!typ) return {};
  switch (*typ) {
    case FileType::xlsx:
      return {_czytaj_xlsx(path), typ};
    case FileType::xls_stary:
      return {std::nullopt, typ};
    case FileType::tekst:
      break;
  }
  return {_czytaj_tekst(path), typ};
}

}  // namespace vexo_xyz_impl
