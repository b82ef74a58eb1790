#include "vexo_xyz_impl/command/import.h"

#include <exception>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "vexo_xyz_impl/command/axes.h"
#include "vexo_xyz_impl/command/insertion.h"
#include "vexo_xyz_impl/command/questions.h"
#include "vexo_xyz_impl/command/report.h"
#include "vexo_xyz_impl/drawing/model_space.h"
#include "vexo_xyz_impl/failure.h"
#include "vexo_xyz_impl/input/loading.h"
#include "vexo_xyz_impl/messages.h"
#include "vexo_xyz_impl/notices.h"
#include "vexo_xyz_impl/table/layout.h"
#include "vexo_xyz_impl/table/points.h"

namespace vexo_xyz_impl {
namespace {

using host::CommandOutcome;

constexpr std::size_t kSkippedShownWithoutPoints = 3;

// The table; empty, with the user told why, when the file cannot be used.
std::optional<Table> read_table(const std::string& path) {
  LoadResult loaded;
  without_lock([&] { loaded = _wczytaj(path); });
  if (loaded.typ == FileType::xls_stary) {
    print("xyz.xls_stary_1");
    print("xyz.xls_stary_2");
    return std::nullopt;
  }
  if (!loaded.rows) {
    print("xyz.blad_otworz_plik", {std::string_view(path)});
    return std::nullopt;
  }
  if (loaded.typ == FileType::xlsx) print("xyz.info_skoroszyt");
  return std::move(loaded.rows);
}

CommandOutcome import_file(const std::string& path) {
  auto table = read_table(path);
  if (!table) return CommandOutcome::failed;

  LayoutVerdict verdict;
  const auto declared = columns_by_first_line(path, table->rows());
  without_lock([&] { verdict = declared ? declared_layout(*declared, table->rows()) : _wykryj_format(table->rows()); });
  if (!verdict.fmt && !ask_layout(verdict)) return CommandOutcome::nothing_done;
  Decomposition read;
  if (verdict.fmt) {
    announce_layout(*verdict.fmt, verdict.opis);
    without_lock([&] {
      read = _rozbierz(verdict.dane, *verdict.fmt);
      // Points and skipped lines hold what is needed of them, and the drawing needs the memory.
      verdict.dane = std::vector<Row>();
      table->forget_rows();
    });
  }
  if (read.punkty.empty()) {
    print("xyz.zero_wierszy");
    print_skipped(read.pominiete, kSkippedShownWithoutPoints);
    print("xyz.sprawdz_format");
    return CommandOutcome::nothing_done;
  }

  const auto order = declared && declared->east_north ? std::optional(host::AxisOrder::east_first) : std::nullopt;
  if (settle_axes(read.punkty, order).swap)
    for (PointRecord& point : read.punkty) std::swap(point.x, point.y);

  const double txtH = label_height(read.punkty);
  ModelSpace model = _openModelSpace();
  if (!model.ms) {
    print("xyz.blad_model");
    return CommandOutcome::failed;
  }
  const Inserted inserted = insert_points(*model.ms, read.punkty, txtH);
  model.ms.finish();
  _setPointDisplayVars();

  print("xyz.wstawiono_punkty", {static_cast<long long>(inserted.placed), layout_code(*verdict.fmt)});
  mark_and_report(inserted.oidy_punktow);
  group_and_report(*model.db, *inserted.oidy, path);
  report_rest(read);
  return CommandOutcome::done;
}

}  // namespace

CommandOutcome importxyz() {
  notify_start();
  const auto path = ask_path();
  if (!path) return CommandOutcome::nothing_done;
  try {
    return import_file(*path);
  } catch (const std::exception& failure) {
    const FailureNote note = describe(failure);
    notify_failure(failure);
    print("xyz.blad_ogolny", {std::string_view(note.kind), std::string_view(note.text)});
    return CommandOutcome::failed;
  }
}

}  // namespace vexo_xyz_impl
