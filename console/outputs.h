// What a run writes: the drawing, new or an existing one with points added, the picture, the report.
//
// Each is asked about before the import and again before it is saved, for a path that was typed, or what was prepared
// meanwhile, is known only then. Texts are for the user; the module must be entered.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "console/drawing/drawing.h"
#include "console/drawing/wishes.h"
#include "console/existing_drawing.h"
#include "console/preview/picture.h"
#include "console/progress.h"
#include "console/report/findings.h"
#include "console/targets.h"

namespace console {

/// What came of saving something: where it is, or why it is not there.
struct Saved {
  std::string path;
  std::optional<std::string> failure;
};

class Outputs {
 public:
  /// `into` is the drawing that points are added to. `progress`, which may be none, shows long writing.
  Outputs(Targets targets, std::optional<std::filesystem::path> into, DrawingWishes wishes,
          IsFileOfPoints is_file_of_points, Progress* progress);

  /// Adds to a drawing that is open already; `sink` gets what is written of it, in the place of its file.
  void share(std::shared_ptr<ExistingDrawing> existing, ByteSink& sink);

  /// Why the picture or the report cannot be written; nothing when they can.
  [[nodiscard]] std::optional<std::string> refusal_beside_drawing() const;

  /// Why the drawing cannot be. `points` is the file that a new one is named after, empty while that is not known. One
  /// that points are added to is opened by this.
  [[nodiscard]] std::optional<std::string> refusal_of_drawing(const std::filesystem::path& points);

  /// The drawing that points are added to, once it is open; else none.
  [[nodiscard]] const ExistingDrawing* existing() const { return existing_.get(); }

  /// Saves the drawing: `added` as a new one, named after `points` unless it has a name, or into the existing one.
  /// `code_page` is a new drawing's $DWGCODEPAGE.
  [[nodiscard]] Saved save(const Drawing& added, const std::filesystem::path& points, std::string_view code_page) const;

  /// What there is to say once the drawing is saved, lines.
  [[nodiscard]] std::string told_of(const Saved& saved) const;

  [[nodiscard]] bool has_preview() const { return targets_.preview.has_value(); }
  [[nodiscard]] Saved save_preview(const Picture& picture) const;

  [[nodiscard]] bool has_report() const { return targets_.report.has_value(); }
  [[nodiscard]] Saved save_report(const Findings& findings) const;

 private:
  [[nodiscard]] std::optional<std::string> open_existing_one();
  [[nodiscard]] std::filesystem::path write_new(const Drawing& drawing, const std::filesystem::path& points,
                                                std::string_view code_page) const;
  [[nodiscard]] Saved save_into_existing(const Drawing& added) const;

  Targets targets_;
  std::optional<std::filesystem::path> into_;
  DrawingWishes wishes_;
  IsFileOfPoints is_file_of_points_;
  Progress* progress_;
  std::shared_ptr<ExistingDrawing> existing_;
  ByteSink* sink_ = nullptr;
};

}  // namespace console
