#include "console/batch.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <memory>
#include <ostream>
#include <sstream>
#include <string_view>
#include <system_error>
#include <utility>
#include <variant>

#include <nlohmann/json.hpp>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include "console/dialogue/line_source.h"
#include "console/dialogue/shown_text.h"
#include "console/failure_text.h"
#include "console/plain_table.h"
#include "console/report/report_file.h"
#include "console/speaking.h"
#include "console/texts/say.h"
#include "console/written.h"

namespace console {
namespace {

using vexo_xyz_impl::T;

[[noreturn]] void fail(const char* what) { throw std::system_error(errno, std::generic_category(), what); }

// A file in memory, which a process leaves to the one that started it.
class Scratch final : public ByteSink {
 public:
  Scratch() : descriptor_(memfd_create("vexo-xyz", MFD_CLOEXEC)) {
    if (descriptor_ < 0) fail("making room for a process's words");
  }
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;
  ~Scratch() override { close(descriptor_); }

  void write(std::string_view bytes) override {
    while (!bytes.empty()) {
      const ssize_t written = ::write(descriptor_, bytes.data(), bytes.size());
      if (written < 0 && errno != EINTR) fail("keeping a process's words");
      bytes.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(written, 0)));
    }
  }

  [[nodiscard]] std::string content() const {
    std::string content(static_cast<std::size_t>(std::max<off_t>(lseek(descriptor_, 0, SEEK_END), 0)), '\0');
    std::size_t filled = 0;
    while (filled < content.size()) {
      const ssize_t got =
          pread(descriptor_, content.data() + filled, content.size() - filled, static_cast<off_t>(filled));
      if (got < 0 && errno == EINTR) continue;
      if (got <= 0) fail("reading a process's words");
      filled += static_cast<std::size_t>(got);
    }
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
  std::string report;  // as JSON; empty where there is none
  Reason reason;       // for there being none
  struct Output {
    Scratch words;
    Scratch report;
    Scratch drawing;  // the one that all go into, with this file's points
  };
  std::unique_ptr<Output> output;  // while it runs: descriptors are few

  void fail(Reason why) {
    code = kFailure;
    report.clear();
    reason = std::move(why);
  }
};

// What the child's exit code becomes once all that it leaves is written.
ExitCode imported(Task::Output& output, SessionOptions options) {
  std::istringstream nobody;
  std::ostringstream words;
  ExitCode code = kFailure;
  try {
    const auto lines = lines_of_stream(nobody, words);
    Session session(std::move(options), *lines, words);
    const ExitCode came = session.run();
    output.report.write(report_as_json(session.findings()));
    code = came;
  } catch (const std::exception& failure) {
    words << failure.what() << '\n';
  }
  output.words.write(words.view());
  return code;
}

// The child's whole life, which nothing leaves but its end; that of the parent ends it too.
[[noreturn]] void import_in_child(std::vector<Task>& tasks, Task& task, const SessionOptions& options, pid_t parent) {
  prctl(PR_SET_PDEATHSIG, SIGTERM);
  if (getppid() != parent) _exit(kFailure);  // gone before that
  int code = kFailure;
  try {
    const std::unique_ptr<Task::Output> output = std::move(task.output);
    for (Task& other : tasks) other.output.reset();  // the descriptors are for the import
    SessionOptions own = options;
    own.file = task.file;
    if (own.existing) own.existing_goes_to = &output->drawing;
    code = imported(*output, std::move(own));
  } catch (...) {  // NOLINT(bugprone-empty-catch): the code says it
  }
  _exit(code);
}

// Whether the system gave a process; else the task has the reason.
bool start(std::vector<Task>& tasks, Task& task, const SessionOptions& options) {
  try {
    task.output = std::make_unique<Task::Output>();
    const pid_t parent = getpid();
    const pid_t process = fork();
    if (process == 0) import_in_child(tasks, task, options, parent);
    if (process < 0) fail("starting a process");
    task.process = process;
    task.reason = {};
    return true;
  } catch (const std::system_error& failure) {
    task.output.reset();
    task.reason = {"not_started", failure_text(failure)};
    return false;
  }
}

// Takes over what an ended process left. What it added to the drawing that all go into is the ground for the next.
void take_over(Task& task, int status, ExistingDrawing* existing) {
  task.words = task.output->words.content();
  task.report = task.output->report.content();
  if (WIFSIGNALED(status)) {
    const long long number = WTERMSIG(status);
    task.fail({"ended_by_signal", vexo_xyz_impl::filled("konsola.wsad_sygnal", {number})});
    return;
  }
  const int code = WEXITSTATUS(status);
  if (existing != nullptr && code == kImported) existing->go_on_with(task.output->drawing.content());
  task.code = code <= kFailure && !task.report.empty() ? static_cast<ExitCode>(code) : kFailure;
}

// Whether one has ended.
bool wait_for_one(std::vector<Task>& tasks, ExistingDrawing* existing) {
  int status = 0;
  const pid_t ended = wait(&status);
  if (ended < 0 && errno != EINTR) fail("waiting for a process");
  const auto task = std::find_if(tasks.begin(), tasks.end(), [ended](const Task& one) { return one.process == ended; });
  if (task == tasks.end()) return false;
  try {
    take_over(*task, status, existing);
  } catch (const std::system_error& failure) {
    task->fail({"outcome_lost", failure_text(failure)});
  } catch (const std::exception& failure) {
    task->fail({"outcome_lost", failure.what()});
  }
  task->has_ended = true;
  task->output.reset();
  return true;
}

using nlohmann::ordered_json;

std::string as_text(const ordered_json& report) {
  return report.dump(1, ' ', false, ordered_json::error_handler_t::replace) + "\n";
}

// Of a file whose process left none.
std::string failed_report(const std::string& file, const Reason& reason) {
  ordered_json report = {{"outcome", "failed"}, {"file", {{"path", file}}}};
  if (!reason.code.empty()) report["reason"] = {{"code", reason.code}, {"text", reason.text}};
  return as_text(report);
}

// In a word; what is set aside waits for an answer.
std::string_view result_of(ExitCode code, std::string_view reason) {
  if (code == kImported) return "konsola.wsad_wczytany";
  if (code != kNothingImported) return "konsola.wsad_blad";
  return reason == "columns_open" || reason == "axes_open" ? "konsola.wsad_odlozony" : "konsola.wsad_nic";
}

std::string as_list(const std::vector<std::string>& reports) {
  std::string list;
  for (const std::string& report : reports) list += (list.empty() ? "[\n" : ",\n") + report;
  return list + "]\n";
}

class Summary {
 public:
  Summary(std::ostream& out, std::ostream* reports) : out_(out), reports_(reports) {
    rows_.push_back(
        {T("konsola.wsad_plik"), T("konsola.wsad_punkty"), T("konsola.wsad_rysunek"), T("konsola.wsad_wynik")});
  }

  // What came of a file, told as soon as all before it have been.
  void add(const Task& task) {
    if (task.words.find_first_not_of('\n') != std::string::npos)
      out_ << shown_text(task.file) << ":\n" << task.words << '\n';
    out_ << std::flush;
    const auto found = nlohmann::json::parse(task.report, nullptr, false);
    told_.push_back(found.is_object() ? task.report : failed_report(task.file, task.reason));
    long long points = 0;
    std::string drawing;
    std::string code(task.reason.code);
    std::string reason = task.reason.text;
    if (found.is_object()) {
      drawing = found.value("drawing", "");
      if (task.code == kImported) points = found["account"]["points"];
      if (found["reason"].is_object()) {
        code = found["reason"]["code"];
        reason = found["reason"]["text"];
      }
    }
    points_ += points;
    files_ += task.code == kImported ? 1 : 0;
    const std::string result = T(result_of(task.code, code));
    rows_.push_back({task.file, std::to_string(points), drawing.empty() ? "-" : drawing,
                     reason.empty() ? result : result + ": " + reason});
    worst_ = std::max(worst_, task.code);
  }

  [[nodiscard]] long long imported() const { return files_; }

  // What was to be saved for all was not.
  void nothing_was_saved() {
    for (std::size_t i = 0; i < told_.size(); ++i) {
      auto& row = rows_[i + 1];
      auto report = ordered_json::parse(told_[i]);
      if (report["outcome"] != "imported") continue;
      report["outcome"] = "failed";
      report.erase("drawing");
      report.erase("repeat");
      told_[i] = as_text(report);
      row = {row.front(), "0", "-", T("konsola.wsad_blad")};
    }
    points_ = files_ = 0;
    worst_ = kFailure;
  }

  ExitCode end() {
    if (reports_ != nullptr && !written(*reports_, as_list(told_))) worst_ = kFailure;
    out_ << plain_table({Align::left, Align::right, Align::left, Align::left}, rows_);
    const auto all = static_cast<long long>(rows_.size()) - 1;
    out_ << vexo_xyz_impl::filled("konsola.wsad_razem", {files_, all, points_}) << std::flush;
    return worst_;
  }

 private:
  std::ostream& out_;
  std::ostream* reports_;
  std::vector<std::string> told_;
  std::vector<std::vector<std::string>> rows_;
  long long files_ = 0;
  long long points_ = 0;
  ExitCode worst_ = kImported;
};

}  // namespace

ExitCode run_batch(const BatchOptions& options, std::ostream& out, std::ostream* reports) {
  SessionOptions each = options.each;
  each.unattended = true;
  each.interactive = false;
  each.shows_progress = false;  // many at a time
  each.quiet = true;
  std::istringstream nobody;
  const auto lines = lines_of_stream(nobody, out);
  const Speaking speaking(each.choice, *lines, out);
  if (each.into) {
    OpenedDrawing opened = open_existing(*each.into);
    if (const auto* const why_not = std::get_if<std::string>(&opened)) {
      out << *why_not << std::flush;
      std::vector<std::string> failed;
      for (const std::string& file : options.files) failed.push_back(failed_report(file, {}));
      if (reports != nullptr) static_cast<void>(written(*reports, as_list(failed)));  // a failure in any case
      return kFailure;
    }
    each.existing = std::move(std::get<std::unique_ptr<ExistingDrawing>>(opened));
  }
  std::vector<Task> tasks(options.files.size());
  for (std::size_t i = 0; i < tasks.size(); ++i) tasks[i].file = options.files[i];
  Summary summary(out, reports);
  const unsigned jobs = each.existing ? 1 : options.jobs;  // each adds to what the one before it made
  std::size_t told = 0;
  std::size_t started = 0;
  std::size_t ended = 0;
  while (told < tasks.size()) {
    for (; started < tasks.size() && started - ended < jobs; ++started) {
      Task& next = tasks[started];
      if (start(tasks, next, each)) continue;
      if (started > ended) break;  // what ends makes room
      next.has_ended = true;
      ++ended;
    }
    if (started > ended) ended += wait_for_one(tasks, each.existing.get()) ? 1 : 0;
    for (; told < tasks.size() && tasks[told].has_ended; ++told) {
      summary.add(tasks[told]);
      tasks[told] = {};
      tasks[told].has_ended = true;
    }
  }
  if (each.existing && summary.imported() > 0) {
    if (const auto why_not = save_existing(*each.existing, nullptr, each.wishes.layers)) {
      out << *why_not << std::flush;
      summary.nothing_was_saved();
    } else {
      say("konsola.rys_zapisano", {each.existing->path().string(), each.existing->backup().string()});
      vexo_xyz_impl::command_line().gcutPrintf(each.existing->notes(each.wishes));
    }
  }
  return summary.end();
}

}  // namespace console
