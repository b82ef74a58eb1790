// Watches an import and comes to what is to be told of it: the account, the doubts, what the report holds.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "console/doubts/doubts.h"
#include "console/drawing/drawing.h"
#include "console/preview/picture.h"
#include "console/report/findings.h"
#include "vexo_xyz_impl/host/command_line.h"
#include "vexo_xyz_impl/host/import_watch.h"

namespace console {

class ImportWatcher final : public vexo_xyz_impl::host::ImportWatch {
 public:
  /// `sets_open_files_aside`: of a file that leaves a question open nothing counts as imported.
  explicit ImportWatcher(bool sets_open_files_aside = false) : sets_open_files_aside_(sets_open_files_aside) {}

  void rows_taken_apart(const vexo_xyz_impl::ImportSeen& seen) override;
  void ended(const vexo_xyz_impl::ImportSeen& seen) override;

  /// Calls `tell` with the number of points when they are known.
  void tell_points(std::function<void(std::size_t)> tell) { tell_points_ = std::move(tell); }

  /// What the file says for or against a reading of its axes, for when its rows were taken apart: lines for the user.
  [[nodiscard]] std::string beside_reading(vexo_xyz_impl::host::AxisOrder order, double share) const;

  /// The points are added to a drawing whose model space holds `places`, which outlive the watcher.
  void beside(const Column<PlanPoint>& places) { drawing_ = &places; }

  /// The file that is imported next was made of another, of which these rows were not taken over.
  void made_of(std::string path, std::vector<Findings::RowNotTakenOver> left_out);

  /// From now on a picture of each import is taken, for which its points are copied.
  void take_pictures() { takes_pictures_ = true; }

  /// Of the import that ended last; without points when none was taken.
  [[nodiscard]] Picture& picture() { return picture_; }

  /// The drawing was not saved, or may not be.
  void drawing_failed() { findings_.outcome = Outcome::failed; }

  /// The drawing was saved there; the command repeats the import.
  void saved(std::string drawing, std::string repeat) {
    findings_.drawing = std::move(drawing);
    findings_.repeat = std::move(repeat);
  }

  /// Whether the import that ended last left a question open, and does not count for that.
  [[nodiscard]] bool is_set_aside() const { return is_set_aside_; }

  /// What came of the import that ended last.
  [[nodiscard]] const Findings& findings() const { return findings_; }

 private:
  std::function<void(std::size_t)> tell_points_;
  bool sets_open_files_aside_;
  bool is_set_aside_ = false;
  Findings findings_;
  bool takes_pictures_ = false;
  Picture picture_;
  std::string made_of_;
  std::vector<Findings::RowNotTakenOver> not_taken_over_;
  const Column<PlanPoint>* drawing_ = nullptr;
  const vexo_xyz_impl::ImportSeen* seen_ = nullptr;  // the import going on
  std::optional<RowPlaces> places_;                  // of it
  std::optional<Header> header_;
  std::optional<NamedAxes> named_axes_;
};

/// Prints rows without a point, doubts and the reason, nothing where there are none.
void print_findings(const Findings& findings);

}  // namespace console
