#include "console/report/reasons.h"

#include <algorithm>
#include <array>
#include <exception>
#include <optional>
#include <string>

#include "intake/cell_number.h"
#include "intake/dialect.h"
#include "intake/file_kind.h"
#include "intake/raster.h"
#include "intake/workbook.h"
#include "vexo_xyz_impl/messages.h"
#include "vexo_xyz_impl/table/numbers.h"
#include "vexo_xyz_impl/text/lines.h"

namespace console {
namespace {

using intake::FileKind;
using vexo_xyz_impl::ImportSeen;
using vexo_xyz_impl::Row;
using vexo_xyz_impl::T;

// The beginning of the text that was read, up to its last whole line.
std::string_view beginning_of(std::string_view text) {
  constexpr std::size_t kEnough = std::size_t{1} << 18U;
  vexo_xyz_impl::text::take_byte_order_mark(text);
  if (text.size() <= kEnough) return text;
  const std::string_view beginning = text.substr(0, kEnough);
  const std::size_t end = beginning.find_last_of("\r\n");
  return end == std::string_view::npos ? beginning : beginning.substr(0, end + 1);
}

// Whether most rows have two cells, or more, that are angles.
bool are_angles(std::span<const Row> rows) {
  constexpr std::size_t kSample = 200;
  const auto sample = rows.first(std::min(rows.size(), kSample));
  const auto angular = std::count_if(sample.begin(), sample.end(), [](Row row) {
    std::size_t angles = 0;
    row.for_each_stored(
        [&angles](std::size_t, std::string_view cell) { angles += intake::is_sexagesimal(cell) ? 1 : 0; });
    return angles >= 2;
  });
  return static_cast<std::size_t>(angular) * 2 > sample.size();
}

// The first line that has a number beside something that is none, and no third cell, where two columns prevail.
std::optional<std::size_t> line_of_odd_row(const ImportSeen& seen) {
  const auto& rows = seen.loaded.rows->rows();
  const auto odd = std::find_if(rows.begin(), rows.end(), [](Row row) {
    return row.size() == 2 && !vexo_xyz_impl::_czy_liczba(row[0]) && vexo_xyz_impl::_czy_liczba(row[1]);
  });
  if (odd == rows.end()) return std::nullopt;
  return RowPlaces(seen).line_of_row(static_cast<std::size_t>(odd - rows.begin()));
}

// Whether the user was asked about the columns, and left it open.
bool was_asked(const ImportSeen& seen) { return !seen.verdict.fmt && !seen.verdict.dane.empty(); }

// The reason of a workbook of which no row was read: its values stand on another sheet, or in a spelling of their own.
Reason reason_without_rows(const std::string& path) {
  try {
    intake::Workbook workbook(path);
    for (const intake::Sheet& sheet : workbook.sheets()) {
      intake::Record record;
      if (sheet.member.empty() || !workbook.records(sheet)->next(record)) continue;
      if (workbook.imported() == nullptr || &sheet == workbook.imported()) return reason_named("cells_unreadable");
      const auto text = vexo_xyz_impl::filled(
          "konsola.powod_inny_arkusz", {std::string_view(workbook.imported()->name), std::string_view(sheet.name)});
      return {"cells_unreadable", text};
    }
    return reason_named("empty");
  } catch (const std::exception&) {
    return reason_named("unreadable");
  }
}

// Of rows of which none gave a point: no numbers where two are due, or only the height's missing, which is doubted.
Reason reason_of_rows(const ImportSeen& seen, const Findings& findings) {
  if (!seen.read.punkty.empty() || was_asked(seen)) return {};
  if (findings.doubts.empty()) return reason_named("no_numbers");
  return {"no_numbers", T("konsola.powod_bez_wysokosci")};
}

Reason reason_of_text(const ImportSeen& seen, const Findings& findings) {
  if (!seen.loaded.rows) return reason_named("unreadable");
  if (are_angles(seen.loaded.rows->rows())) return reason_named("dms");
  const intake::Dialect dialect = intake::dialect_of(beginning_of(seen.loaded.rows->text()));
  if (dialect.is_decided && dialect.separator == ',') return reason_named("comma_separated");
  if (dialect.is_decided && dialect.separator == '|') return reason_named("pipe_separated");
  if (seen.failure && seen.failure->kind == "IndexError") {
    if (const auto line = line_of_odd_row(seen))
      return {"mixed_separators", vexo_xyz_impl::filled("konsola.powod_linia", {static_cast<long long>(*line)})};
  }
  if (dialect.mixed) return reason_named("mixed_separators");
  if (dialect.quoted) return reason_named("quoted");
  return reason_of_rows(seen, findings);
}

// Whether what was imported is to be looked at all the same.
bool is_suspicious(const ImportSeen& seen, const Findings& findings) {
  constexpr std::size_t kHead = std::size_t{1} << 12U;
  if (findings.outcome != Outcome::imported || findings.account.points * 2 < findings.account.rows) return true;
  return seen.loaded.typ == vexo_xyz_impl::FileType::tekst &&
         intake::is_raster(seen.loaded.rows->text().substr(0, kHead));
}

}  // namespace

Reason reason_named(std::string_view code) { return {code, T("konsola.powod_" + std::string(code))}; }

std::string_view kind_code(FileKind kind) {
  switch (kind) {
    case FileKind::ods:
      return "ods";
    case FileKind::xlsb:
      return "xlsb";
    case FileKind::encrypted:
      return "encrypted";
    case FileKind::old_xls:
      return "old_xls";
    case FileKind::zip:
      return "zip";
    case FileKind::dxf:
      return "dxf";
    case FileKind::dwg:
      return "dwg";
    case FileKind::pdf:
      return "pdf";
    case FileKind::image:
      return "image";
    case FileKind::utf16:
      return "utf16";
    case FileKind::raster:
      return "raster";
    case FileKind::empty:
      return "empty";
    case FileKind::unreadable:
      return "unreadable";
    case FileKind::text:
    case FileKind::workbook:
      break;
  }
  return {};
}

Reason reason_of(const ImportSeen& seen, const Findings& findings) {
  const bool had_points = !seen.read.punkty.empty();
  if (had_points && findings.outcome != Outcome::imported) return {};  // the doubts say what was the matter with them
  if (!is_suspicious(seen, findings)) return {};
  const FileKind kind = intake::file_kind(seen.path);
  if (const std::string_view code = kind_code(kind); !code.empty()) return reason_named(code);
  if (kind == FileKind::text) return reason_of_text(seen, findings);
  if (findings.outcome == Outcome::imported) return {};
  if (seen.loaded.rows && findings.account.rows > 0) return reason_of_rows(seen, findings);
  if (seen.failure && (seen.failure->kind == "MemoryError" || seen.failure->kind == "OverflowError"))
    return {"unreadable", T("konsola.powod_ponad_miare")};
  return reason_without_rows(seen.path);
}

bool can_be_prepared(const Reason& reason) {
  constexpr std::array<std::string_view, 7> kReadable = {"comma_separated",  "pipe_separated",   "quoted",    "utf16",
                                                         "mixed_separators", "cells_unreadable", "no_numbers"};
  return std::find(kReadable.begin(), kReadable.end(), reason.code) != kReadable.end();
}

}  // namespace console
