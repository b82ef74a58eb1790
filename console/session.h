// One run of the program: a new drawing, the module loaded into the console, the command, the drawing saved.
#pragma once

#include <filesystem>
#include <functional>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "console/dialogue/dialogue.h"
#include "console/drawing/database.h"
#include "console/drawing/wishes.h"
#include "console/existing_drawing.h"
#include "console/exit_code.h"
#include "console/outputs.h"
#include "console/progress.h"
#include "console/report/import_watcher.h"
#include "console/sibling_registry.h"
#include "vexo_xyz_impl/bindings.h"

namespace console {

/// What the command line asks for.
struct SessionOptions {
  std::optional<std::string> file;              ///< the file to import; without it the path is asked for
  std::optional<std::filesystem::path> output;  ///< the drawing's name; without it one that is free is made
  bool force = false;                           ///< an existing output may be replaced
  Choice choice;                                ///< market and language
  std::vector<PreparedAnswer> answers;
  std::optional<vexo_xyz_impl::host::AxisOrder> axes;  ///< which coordinate stands first, told beforehand
  std::optional<std::filesystem::path> report;         ///< where what came of the import is written
  std::optional<std::filesystem::path> into;           ///< the drawing that the points are added to
  std::shared_ptr<ExistingDrawing> existing;           ///< that drawing, if it is open already
  ByteSink* existing_goes_to = nullptr;                ///< what is written of it, in the place of its file
  std::optional<std::filesystem::path> preview;        ///< where a picture of the points is drawn
  DrawingWishes wishes;
  std::vector<std::string> words;  ///< the options as a command line has them, for the command that repeats the import
  bool unattended = false;         ///< a file that leaves a question open is set aside
  bool quiet = false;              ///< only questions, doubts and failures are told
  bool prepare = false;            ///< a file that the importer does not read is made into one that it reads
  bool interactive = false;        ///< somebody is there to be offered that
  bool shows_progress = false;     ///< standard output is a terminal, and long work is shown there
};

class Session final : private vexo_xyz_impl::host::CommandTable, private vexo_xyz_impl::host::Foreknowledge {
 public:
  Session(SessionOptions options, LineSource& lines, std::ostream& out);

  /// Runs the command and saves the drawing when something was imported. The user has been told everything.
  ExitCode run();

  /// What came of it.
  [[nodiscard]] const Findings& findings() const { return watcher_.findings(); }

 private:
  void command(std::string_view local_name, std::string_view global_name, std::string_view group_name,
               vexo_xyz_impl::host::CommandFunction function) override;
  std::optional<vexo_xyz_impl::host::AxisOrder> axis_order() override { return options_.axes; }
  std::string beside_reading(vexo_xyz_impl::host::AxisOrder order, double share) override {
    return watcher_.beside_reading(order, share);
  }
  std::optional<double> label_height() override { return options_.wishes.text_height; }
  [[nodiscard]] bool is_file_of_points(const std::filesystem::path& path) const;
  bool told_failure(const std::optional<std::string>& text);
  bool is_drawing_refused(const std::filesystem::path& points);
  ExitCode import_and_save();
  vexo_xyz_impl::host::CommandOutcome import_once();
  [[nodiscard]] bool prepares_instead();
  [[nodiscard]] std::filesystem::path source() const;
  ExitCode save();
  ExitCode save_preview();
  ExitCode save_report(ExitCode so_far);
  void end_quietly(ExitCode code);

  SessionOptions options_;
  std::unique_ptr<Progress> progress_;  // at a terminal
  Outputs outputs_;
  PausedLines lines_;
  std::optional<std::filesystem::path> prepared_from_;  // the file that the user chose
  Database database_;
  bool has_ground_ = false;  // the drawing began with what an existing one holds
  Dialogue dialogue_;
  SiblingRegistry siblings_;
  ImportWatcher watcher_;
  bool is_refused_ = false;  // what comes of the path that was typed cannot be written
  vexo_xyz_impl::host::CommandFunction import_;
  vexo_xyz_impl::Entered entered_;  // for as long as the session lasts
};

}  // namespace console
