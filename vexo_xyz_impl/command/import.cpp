#include "vexo_xyz_impl/command/import.h"

#include <exception>
#include <string_view>
#include <utility>
#include <vector>

#include "vexo_xyz_impl/bindings.h"
#include "vexo_xyz_impl/command/axes.h"
#include "vexo_xyz_impl/command/import_seen.h"
#include "vexo_xyz_impl/command/insertion.h"
#include "vexo_xyz_impl/command/questions.h"
#include "vexo_xyz_impl/command/report.h"
#include "vexo_xyz_impl/drawing/model_space.h"
#include "vexo_xyz_impl/failure.h"
#include "vexo_xyz_impl/host/import_watch.h"
#include "vexo_xyz_impl/messages.h"
#include "vexo_xyz_impl/notices.h"

namespace vexo_xyz_impl {
namespace {

using host::CommandOutcome;

constexpr std::size_t kSkippedShownWithoutPoints = 3;

// Reads the file; false, with the user told why, when it cannot be used.
bool read_file(ImportSeen& seen) {
  without_lock([&] { seen.loaded = _wczytaj(seen.path); });
  if (seen.loaded.typ == FileType::xls_stary) {
    print("xyz.xls_stary_1");
    print("xyz.xls_stary_2");
    return false;
  }
  if (!seen.loaded.rows) {
    print("xyz.blad_otworz_plik", {std::string_view(seen.path)});
    return false;
  }
  if (seen.loaded.typ == FileType::xlsx) print("xyz.info_skoroszyt");
  return true;
}

// Makes points of the data rows and forgets the rows: points and skipped lines hold what is needed of them, and the
// drawing needs the memory.
void take_rows_apart(ImportSeen& seen) {
  seen.read = _rozbierz(seen.verdict.dane, *seen.verdict.fmt);
  if (bound().host.watch != nullptr) bound().host.watch->rows_taken_apart(seen);
  seen.verdict.dane = std::vector<Row>();
  seen.loaded.rows->forget_rows();
}

double height_of_labels(std::span<const PointRecord> punkty) {
  host::Foreknowledge* const foreknowledge = bound().host.foreknowledge;
  const auto wanted = foreknowledge != nullptr ? foreknowledge->label_height() : std::nullopt;
  return wanted ? *wanted : label_height(punkty);
}

CommandOutcome import_file(ImportSeen& seen) {
  if (!read_file(seen)) return CommandOutcome::failed;

  const std::vector<Row>& rows = seen.loaded.rows->rows();
  const auto declared = columns_by_first_line(seen.loaded.rows->text(), rows);
  LayoutVerdict& verdict = seen.verdict;
  without_lock([&] { verdict = declared ? declared_layout(*declared, rows) : _wykryj_format(rows); });
  seen.columns_asked = !verdict.fmt;
  if (seen.columns_asked && !ask_layout(verdict)) return CommandOutcome::nothing_done;
  if (verdict.fmt) {
    announce_layout(*verdict.fmt, verdict.opis);
    without_lock([&] { take_rows_apart(seen); });
  }
  Decomposition& read = seen.read;
  if (read.punkty.empty()) {
    print("xyz.zero_wierszy");
    print_skipped(read.pominiete, kSkippedShownWithoutPoints);
    print("xyz.sprawdz_format");
    return CommandOutcome::nothing_done;
  }

  const auto order = declared && declared->east_north ? std::optional(host::AxisOrder::east_first) : std::nullopt;
  seen.axes = settle_axes(read.punkty, order);
  if (seen.axes.swap)
    for (PointRecord& point : read.punkty) std::swap(point.x, point.y);

  const double txtH = height_of_labels(read.punkty);
  ModelSpace model = _openModelSpace();
  if (!model.ms) {
    print("xyz.blad_model");
    return CommandOutcome::failed;
  }
  Inserted inserted = insert_points(*model.ms, read.punkty, txtH);
  seen.refused = std::move(inserted.refused);
  model.ms.finish();
  _setPointDisplayVars();

  print("xyz.wstawiono_punkty", {static_cast<long long>(inserted.placed), layout_code(*verdict.fmt)});
  mark_and_report(inserted.oidy_punktow);
  group_and_report(*model.db, *inserted.oidy, seen.path);
  seen.dubli = report_rest(read);
  return CommandOutcome::done;
}

CommandOutcome import_guarded(ImportSeen& seen) {
  try {
    return import_file(seen);
  } catch (const std::exception& failure) {
    const FailureNote note = describe(failure);
    seen.failure = note;
    notify_failure(failure);
    print("xyz.blad_ogolny", {std::string_view(note.kind), std::string_view(note.text)});
    return CommandOutcome::failed;
  }
}

}  // namespace

CommandOutcome importxyz() {
  notify_start();
  auto path = ask_path();
  if (!path) return CommandOutcome::nothing_done;
  ImportSeen seen;
  seen.path = std::move(*path);
  seen.outcome = import_guarded(seen);
  if (bound().host.watch != nullptr) bound().host.watch->ended(seen);
  return seen.outcome;
}

}  // namespace vexo_xyz_impl
