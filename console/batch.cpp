#include "console/batch.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <ostream>
#include <sstream>
#include <string_view>
#include <system_error>
#include <utility>

#include <nlohmann/json.hpp>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include "console/dialogue/line_source.h"
#include "console/plain_table.h"
#include "console/report/report_file.h"
#include "console/texts/texts.h"
#include "siblings/vexo_rynek/rynek.h"
#include "vexo_xyz_impl/text/printf_template.h"

namespace console {
namespace {

[[noreturn]] void fail(const char* what) { throw std::system_error(errno, std::generic_category(), what); }

// A file in memory, which a process leaves to the one that started it.
class Scratch {
 public:
  Scratch() : descriptor_(memfd_create("vexo-xyz", MFD_CLOEXEC)) {
    if (descriptor_ < 0) fail("making room for a process's words");
  }
  Scratch(Scratch&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
  Scratch(const Scratch&) = delete;
  Scratch& operator=(Scratch&&) = delete;
  Scratch& operator=(const Scratch&) = delete;
  ~Scratch() {
    if (descriptor_ >= 0) close(descriptor_);
  }

  void write(std::string_view bytes) const {
    while (!bytes.empty()) {
      const ssize_t written = ::write(descriptor_, bytes.data(), bytes.size());
      if (written <= 0) return;  // memory that is gone: the process's end tells of it
      bytes.remove_prefix(static_cast<std::size_t>(written));
    }
  }

  [[nodiscard]] std::string content() const {
    std::string content;
    std::array<char, 1U << 16U> piece{};
    ssize_t got = 0;
    for (off_t at = 0; (got = pread(descriptor_, piece.data(), piece.size(), at)) > 0; at += got)
      content.append(piece.data(), static_cast<std::size_t>(got));
    return content;
  }

 private:
  int descriptor_;
};

// A file's import by a process of its own.
struct Task {
  std::string file;
  pid_t process = 0;  // 0 before it is started
  bool has_ended = false;
  ExitCode code = kFailure;
  std::string words;   // what the import said
  std::string report;  // as JSON
  struct Output {
    Scratch words;
    Scratch report;
  };
  std::unique_ptr<Output> output;  // while it runs: descriptors are few
};

// The child's whole life.
[[noreturn]] void import_in_child(const Task& task, SessionOptions options) {
  options.file = task.file;
  std::istringstream nobody;
  std::ostringstream words;
  ExitCode code = kFailure;
  try {
    const auto lines = lines_of_stream(nobody, words);
    Session session(std::move(options), *lines, words);
    code = session.run();
    task.output->report.write(report_as_json(session.findings()));
  } catch (const std::exception& failure) {
    words << failure.what() << '\n';
  }
  task.output->words.write(words.view());
  _exit(code);
}

void start(Task& task, const SessionOptions& options) {
  task.output = std::make_unique<Task::Output>();
  task.process = fork();
  if (task.process < 0) fail("starting a process");
  if (task.process == 0) import_in_child(task, options);
}

// Whether one has ended.
bool wait_for_one(std::vector<Task>& tasks) {
  int status = 0;
  const pid_t ended = wait(&status);
  if (ended < 0 && errno != EINTR) fail("waiting for a process");
  const auto task = std::find_if(tasks.begin(), tasks.end(), [ended](const Task& one) { return one.process == ended; });
  if (task == tasks.end()) return false;
  task->has_ended = true;
  task->words = task->output->words.content();
  task->report = task->output->report.content();
  task->output.reset();
  const int code = WIFEXITED(status) ? WEXITSTATUS(status) : kFailure;
  task->code = code <= kFailure ? static_cast<ExitCode>(code) : kFailure;
  return true;
}

class Summary {
 public:
  Summary(const BatchOptions& options, std::ostream& out, std::ostream& reports)
      : texts_(texts_in(options.each.choice.language.empty() ? vexo_rynek::Market(options.each.choice.market).rynek()
                                                             : options.each.choice.language)),
        out_(out),
        reports_(reports) {
    rows_.push_back({text("konsola.wsad_plik"), text("konsola.wsad_punkty"), text("konsola.wsad_rysunek"),
                     text("konsola.wsad_wynik")});
  }

  // What came of a file, told as soon as all before it have been.
  void add(const Task& task) {
    if (task.words.find_first_not_of('\n') != std::string::npos) out_ << task.file << ":\n" << task.words << '\n';
    reports_ << (rows_.size() > 1 ? ",\n" : "[\n") << (task.report.empty() ? "null\n" : task.report) << std::flush;
    out_ << std::flush;
    const auto found = nlohmann::json::parse(task.report, nullptr, false);
    long long points = 0;
    std::string drawing;
    std::string reason;
    if (found.is_object()) {
      drawing = found.value("drawing", "");
      if (task.code == kImported) points = found["account"]["points"];
      if (found["reason"].is_object()) reason = found["reason"]["text"];
    }
    points_ += points;
    files_ += task.code == kImported ? 1 : 0;
    const std::string result = text(task.code == kImported          ? "konsola.wsad_wczytany"
                                    : task.code == kNothingImported ? "konsola.wsad_odlozony"
                                                                    : "konsola.wsad_blad");
    rows_.push_back({task.file, std::to_string(points), drawing.empty() ? "-" : drawing,
                     reason.empty() ? result : result + ": " + reason});
    worst_ = std::max(worst_, task.code);
  }

  ExitCode end() {
    reports_ << "]\n" << std::flush;
    out_ << plain_table({Align::left, Align::right, Align::left, Align::left}, rows_);
    const auto all = static_cast<long long>(rows_.size()) - 1;
    out_ << vexo_xyz_impl::text::try_fill(text("konsola.wsad_razem"), {files_, all, points_}).value_or("")
         << std::flush;
    return worst_;
  }

 private:
  [[nodiscard]] std::string text(std::string_view key) const { return texts_->T(key); }

  std::shared_ptr<vexo_xyz_impl::host::Texts> texts_;
  std::ostream& out_;
  std::ostream& reports_;
  std::vector<std::vector<std::string>> rows_;
  long long files_ = 0;
  long long points_ = 0;
  ExitCode worst_ = kImported;
};

}  // namespace

ExitCode run_batch(const BatchOptions& options, std::ostream& out, std::ostream& reports) {
  SessionOptions each = options.each;
  each.unattended = true;
  each.interactive = false;
  each.quiet = true;
  std::vector<Task> tasks(options.files.size());
  for (std::size_t i = 0; i < tasks.size(); ++i) tasks[i].file = options.files[i];
  Summary summary(options, out, reports);
  std::size_t told = 0;
  std::size_t started = 0;
  std::size_t ended = 0;
  while (told < tasks.size()) {
    while (started < tasks.size() && started - ended < options.jobs) start(tasks[started++], each);
    ended += wait_for_one(tasks) ? 1 : 0;
    for (; told < tasks.size() && tasks[told].has_ended; ++told) {
      summary.add(tasks[told]);
      tasks[told] = {};
      tasks[told].has_ended = true;
    }
  }
  return summary.end();
}

}  // namespace console
