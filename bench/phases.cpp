// One import and its drawing as the program makes them, each step timed.
//
//     phases FILE OUT.dxf
//
// Prints a line for each step: its name, its wall and its CPU time in seconds, the pages it touched for the first time;
// separated by tabs. The steps are those of the command and of the session (command/import.cpp, console/session.cpp),
// in their order, and memory is released where they release it.
#include <chrono>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <memory>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <valarray>
#include <vector>

#include <sys/resource.h>

#include "console/dialogue/dialogue.h"
#include "console/drawing/database.h"
#include "console/dxf/dxf_writer.h"
#include "console/files.h"
#include "console/kept_memory.h"
#include "console/sibling_registry.h"
#include "vexo_xyz_impl/command/axes.h"
#include "vexo_xyz_impl/command/insertion.h"
#include "vexo_xyz_impl/command/module.h"
#include "vexo_xyz_impl/command/report.h"
#include "vexo_xyz_impl/drawing/model_space.h"
#include "vexo_xyz_impl/input/loading.h"
#include "vexo_xyz_impl/table/layout.h"
#include "vexo_xyz_impl/table/points.h"

namespace {

// Seconds of wall time and of CPU time, pages touched for the first time: of this process so far, or of a part of it.
using Usage = std::valarray<double>;

Usage so_far() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  const std::chrono::duration<double> wall = std::chrono::steady_clock::now().time_since_epoch();
  return {wall.count(), static_cast<double>(std::clock()) / CLOCKS_PER_SEC, static_cast<double>(usage.ru_minflt)};
}

class Steps {
 public:
  // Ends the step that began with the last call.
  void done(std::string_view name, const Usage& not_its_own = Usage(3)) {
    add(name, so_far() - begun_ - not_its_own);
    begun_ = so_far();
  }

  void add(std::string_view name, const Usage& used) { lines_.emplace_back(name, used); }

  void print() const {
    for (const auto& [name, used] : lines_)
      std::printf("%s\t%.6f\t%.6f\t%.0f\n", name.c_str(), used[0], used[1], used[2]);
  }

 private:
  std::vector<std::pair<std::string, Usage>> lines_;
  Usage begun_ = so_far();
};

// Tells writing from the formatting around it.
struct TimedSink final : console::ByteSink {
  explicit TimedSink(console::ByteSink& to) : sink(to) {}

  void write(std::string_view bytes) override {
    const Usage begun = so_far();
    sink.write(bytes);
    used += so_far() - begun;
  }

  console::ByteSink& sink;
  Usage used = Usage(3);
};

// A console without a terminal: nothing is answered, what is printed is kept in memory.
struct Console {
  explicit Console(const std::string& path)
      : lines(console::lines_of_stream(no_answers, printed)),
        dialogue(*lines, printed, database->drawing().variables, path, {}) {
    siblings = console::family(*database, {.market = "PL", .language = "PL"});
    entered.emplace(vexo_xyz_impl::Bindings{{dialogue, *database, siblings}, vexo_xyz_impl::bind_siblings(siblings)});
  }

  std::istringstream no_answers;
  std::ostringstream printed;
  std::unique_ptr<console::Database> database = std::make_unique<console::Database>();
  std::unique_ptr<console::LineSource> lines;
  console::Dialogue dialogue;
  console::SiblingRegistry siblings;
  std::optional<vexo_xyz_impl::Entered> entered;
};

void import(const std::string& path, Steps& steps) {
  using namespace vexo_xyz_impl;  // NOLINT(google-build-using-namespace): what is measured
  LoadResult loaded = _wczytaj(path);
  if (!loaded.rows) throw std::runtime_error("cannot read " + path);
  steps.done("read, decode and split");

  std::optional<LayoutVerdict> verdict = _wykryj_format(loaded.rows->rows());
  if (!verdict->fmt) throw std::runtime_error("the column layout is not settled by the content");
  announce_layout(*verdict->fmt, verdict->opis);
  steps.done("detect the layout");

  std::optional<Decomposition> read = _rozbierz(verdict->dane, *verdict->fmt);
  if (read->punkty.empty()) throw std::runtime_error("no points");
  verdict->dane = std::vector<Row>();
  loaded.rows->forget_rows();
  steps.done("take the rows apart");

  if (settle_axes(read->punkty).swap)
    for (PointRecord& point : read->punkty) std::swap(point.x, point.y);
  steps.done("settle the axes");

  const double height = label_height(read->punkty);
  ModelSpace model = _openModelSpace();
  if (!model.ms) throw std::runtime_error("no model space");
  std::optional<Inserted> inserted = insert_points(*model.ms, read->punkty, height);
  model.ms.finish();
  _setPointDisplayVars();
  steps.done("insert points and labels");

  mark_and_report(inserted->oidy_punktow);
  group_and_report(*model.db, *inserted->oidy, path);
  steps.done("gather the group");

  report_rest(*read);
  steps.done("look for repeated numbers");

  inserted.reset();
  read.reset();
  verdict.reset();
  loaded.rows.reset();
  steps.done("release the table");
}

void save(const console::Drawing& drawing, const std::string& target, Steps& steps) {
  console::AtomicFile file(std::filesystem::path(target).parent_path());
  TimedSink sink(file);
  console::write_dxf(drawing, {}, "ANSI_1250", sink);
  steps.done("make the DXF text", sink.used);
  steps.add("write to the file", sink.used);
  file.flush();
  file.replace(target);
  steps.done("flush to the disk and rename");
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  console::keep_freed_memory();
  Console console(argv[1]);
  Steps steps;
  import(argv[1], steps);
  save(console.database->drawing(), argv[2], steps);
  console.database.reset();
  steps.done("release the drawing");
  steps.print();
}
