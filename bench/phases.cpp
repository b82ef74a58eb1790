// One import and its drawing as the program makes them, each step timed.
//
//     phases FILE OUT.dxf
//
// Prints a line for each step: its name, its wall time in seconds, the pages it touched for the first time; separated
// by tabs. The steps are those of the command and of the session (command/import.cpp, console/session.cpp), in their
// order, and memory is released where they release it.
#include <chrono>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <sys/resource.h>

#include "console/dialogue/dialogue.h"
#include "console/drawing/database.h"
#include "console/dxf/dxf_writer.h"
#include "console/files.h"
#include "console/sibling_registry.h"
#include "vexo_xyz_impl/command/insertion.h"
#include "vexo_xyz_impl/command/module.h"
#include "vexo_xyz_impl/command/questions.h"
#include "vexo_xyz_impl/command/report.h"
#include "vexo_xyz_impl/drawing/model_space.h"
#include "vexo_xyz_impl/input/loading.h"
#include "vexo_xyz_impl/table/layout.h"
#include "vexo_xyz_impl/table/points.h"

namespace {

using Clock = std::chrono::steady_clock;
using Seconds = std::chrono::duration<double>;

long faults_so_far() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_minflt;
}

class Steps {
 public:
  // Ends the step that began with the last call.
  void done(std::string_view name, Seconds of_which_not_its_own = {}, long faults_not_its_own = 0) {
    const auto now = Clock::now();
    const long faults = faults_so_far();
    add(name, now - begun_ - of_which_not_its_own, faults - faults_ - faults_not_its_own);
    faults_ = faults_so_far();
    begun_ = Clock::now();
  }

  void add(std::string_view name, Seconds time, long faults) { lines_.push_back({std::string(name), time, faults}); }

  void print() const {
    for (const Line& line : lines_) std::printf("%s\t%.6f\t%ld\n", line.name.c_str(), line.time.count(), line.faults);
  }

 private:
  struct Line {
    std::string name;
    Seconds time;
    long faults;
  };
  std::vector<Line> lines_;
  long faults_ = faults_so_far();
  Clock::time_point begun_ = Clock::now();
};

// Tells writing from the formatting around it.
class TimedSink final : public console::ByteSink {
 public:
  explicit TimedSink(console::ByteSink& sink) : sink_(sink) {}

  void write(std::string_view bytes) override {
    const long faults = faults_so_far();
    const auto begun = Clock::now();
    sink_.write(bytes);
    time_ += Clock::now() - begun;
    faults_ += faults_so_far() - faults;
  }

  [[nodiscard]] Seconds time() const { return time_; }
  [[nodiscard]] long faults() const { return faults_; }

 private:
  console::ByteSink& sink_;
  Seconds time_{};
  long faults_ = 0;
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
  steps.done("take the rows apart");

  if (settle_axes(read->punkty))
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
  console::write_dxf(drawing, "ANSI_1250", sink);
  steps.done("make the DXF text", sink.time(), sink.faults());
  steps.add("write to the file", sink.time(), sink.faults());
  file.flush();
  if (!file.commit(target, true)) throw std::runtime_error("cannot name the drawing " + target);
  steps.done("flush to the disk and rename");
}

void run(const std::string& path, const std::string& target) {
  Console console(path);
  Steps steps;
  import(path, steps);
  save(console.database->drawing(), target, steps);
  console.database.reset();
  steps.done("release the drawing");
  steps.print();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: phases FILE OUT.dxf\n";
    return 2;
  }
  try {
    run(argv[1], argv[2]);
    return 0;
  } catch (const std::exception& failure) {
    std::cerr << "phases: " << failure.what() << '\n';
    return 1;
  }
}
