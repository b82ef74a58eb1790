#include "intake/file_kind.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <exception>
#include <fstream>
#include <string_view>
#include <utility>
#include <vector>

#include "intake/compound_file.h"
#include "intake/raster.h"
#include "vexo_xyz_impl/input/file_bytes.h"
#include "vexo_xyz_impl/input/package.h"
#include "vexo_xyz_impl/text/lines.h"
#include "vexo_xyz_impl/text/paths.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace intake {
namespace {

using namespace std::string_view_literals;
using vexo_xyz_impl::Package;
namespace text = vexo_xyz_impl::text;

constexpr std::size_t kHead = std::size_t{1} << 16U;  // a line of some thousand values

constexpr auto kSignatures = std::to_array<std::pair<std::string_view, FileKind>>({
    {"AutoCAD Binary DXF\r\n\x1A\0"sv, FileKind::dxf},
    {"%PDF-", FileKind::pdf},
    {"\x89PNG\r\n\x1A\n", FileKind::image},
    {"\xFF\xD8\xFF", FileKind::image},
    {"II*\0"sv, FileKind::image},
    {"II+\0"sv, FileKind::image},
    {"MM\0*"sv, FileKind::image},
    {"MM\0+"sv, FileKind::image},
    {"GIF87a", FileKind::image},
    {"GIF89a", FileKind::image},
    {"\x09\x00\x04\x00"sv, FileKind::old_xls},  // records without a compound file around them
    {"\x09\x02\x06\x00"sv, FileKind::old_xls},
    {"\x09\x04\x06\x00"sv, FileKind::old_xls},
    {"\x09\x08\x08\x00"sv, FileKind::old_xls},
    {"\x09\x08\x10\x00"sv, FileKind::old_xls},
    {"PK\x05\x06", FileKind::zip},  // an archive of nothing
    {"\x1F\x8B\x08", FileKind::zip},
    {"7z\xBC\xAF\x27\x1C", FileKind::zip},
    {"Rar!\x1A\x07", FileKind::zip},
    {"\xFD"
     "7zXZ",
     FileKind::zip},
});

bool is_drawing(std::string_view head) {  // "AC1032" and its predecessors, where a text would go on with a letter
  return head.size() > 6 && head.starts_with("AC1") && head[6] == '\0';
}

bool is_bitmap(std::string_view head) {  // "BM1" may well be a point's number: what follows the size is always zero
  return head.size() > 18 && head.starts_with("BM") && head.substr(6, 4) == "\0\0\0\0"sv && head[15] == '\0';
}

bool is_webp(std::string_view head) { return head.starts_with("RIFF") && head.substr(8, 4) == "WEBP"; }

// Tags of a drawing: a code and a value, a line each; comments have the code 999.
bool is_dxf(std::string_view tags) {
  while (!tags.empty()) {
    const std::string_view code = text::trim(text::take_line(tags));
    const std::string_view value = text::trim(text::take_line(tags));
    if (code == "0" && value == "SECTION") return true;
    if (code != "999") return false;
  }
  return false;
}

// Most characters of a list of points are ASCII, whatever language its names are in: of two bytes one is zero.
bool is_utf16(std::string_view head) {
  if (head.starts_with("\xFF\xFE") || head.starts_with("\xFE\xFF")) return true;
  std::array<std::size_t, 2> zeros{};
  for (std::size_t i = 0; i < head.size(); ++i) zeros[i % 2] += head[i] == '\0' ? 1U : 0U;
  const auto [few, many] = std::minmax(zeros[0], zeros[1]);
  return head.size() >= 4 && many > head.size() / 4 && few < many / 16 + 1;
}

// Random bytes hold one control character in ten.
bool is_binary(std::string_view head) {
  constexpr std::string_view kInTexts = "\t\n\v\f\r\x1A";  // the last one ended files once
  const auto control = std::count_if(head.begin(), head.end(), [&](char c) {
    return static_cast<unsigned char>(c) < 0x20 && kInTexts.find(c) == std::string_view::npos;
  });
  return static_cast<std::size_t>(control) > head.size() / 20;
}

bool is_blank(std::string_view head) { return text::trim(head).empty(); }

std::string text_of(Package& package, std::string_view member) {
  if (!package.has(member)) return {};
  const std::vector<char> bytes = package.read(member);
  return {bytes.begin(), bytes.end()};
}

bool any_begins(const std::vector<std::string_view>& names, std::string_view beginning) {
  return std::any_of(names.begin(), names.end(), [&](std::string_view name) { return name.starts_with(beginning); });
}

FileKind kind_of_package(const std::string& path) {
  Package package(path);
  const auto mentions = [](const std::string& text, std::string_view word) {
    return text.find(word) != std::string::npos;
  };
  const std::string declared = text_of(package, "mimetype") + text_of(package, "META-INF/manifest.xml");
  if (mentions(declared, "opendocument.spreadsheet") || mentions(declared, "sun.xml.calc")) return FileKind::ods;
  const std::string types = text_of(package, "[Content_Types].xml");
  if (package.has("xl/workbook.bin") || mentions(types, "sheet.binary.")) return FileKind::xlsb;
  if (package.has("xl/workbook.xml") || mentions(types, "sheet.main+xml") || mentions(types, "sheet.macroEnabled.main"))
    return FileKind::workbook;
  return any_begins(package.names(), "xl/worksheets/") ? FileKind::workbook : FileKind::zip;
}

FileKind kind_of_compound_file(const std::string& path) {
  std::ifstream file(text::path_of(path), std::ios::binary);
  return has_entry(file, {"EncryptedPackage", "EncryptionInfo"}) ? FileKind::encrypted : FileKind::old_xls;
}

FileKind kind_of_text(std::string_view head) {
  if (is_utf16(head)) return FileKind::utf16;
  text::take_byte_order_mark(head);
  if (is_blank(head)) return FileKind::empty;
  if (is_raster(head)) return FileKind::raster;
  if (is_binary(head)) return FileKind::unreadable;
  return is_dxf(head) ? FileKind::dxf : FileKind::text;
}

FileKind kind_of(const std::string& path) {
  const auto bytes = vexo_xyz_impl::first_bytes(path, kHead);
  if (!bytes) return FileKind::unreadable;
  const std::string_view head(bytes->data(), bytes->size());
  if (head.starts_with("PK\x03\x04")) return kind_of_package(path);
  if (head.starts_with(kCompoundFile)) return kind_of_compound_file(path);
  for (const auto& [signature, kind] : kSignatures)
    if (head.starts_with(signature)) return kind;
  if (is_drawing(head)) return FileKind::dwg;
  return is_bitmap(head) || is_webp(head) ? FileKind::image : kind_of_text(head);
}

}  // namespace

FileKind file_kind(const std::string& path) {
  try {
    return kind_of(path);
  } catch (const std::exception&) {  // a package that is none, or whose members do not unpack
    return FileKind::unreadable;
  }
}

}  // namespace intake
