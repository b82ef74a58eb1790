#include "console/batch/import_process.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <exception>
#include <sstream>
#include <system_error>

#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include "console/dialogue/line_source.h"
#include "console/failure_text.h"
#include "console/report/report_file.h"
#include "vexo_xyz_impl/messages.h"

namespace console {
namespace {

[[noreturn]] void fail(const char* what) { throw std::system_error(errno, std::generic_category(), what); }

// What the child's exit code becomes once all that it leaves is written.
ExitCode imported(ImportProcess::Output& output, SessionOptions options) {
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
[[noreturn]] void import_in_child(std::vector<ImportProcess>& tasks, ImportProcess& task, const SessionOptions& options,
                                  pid_t parent) {
  prctl(PR_SET_PDEATHSIG, SIGTERM);
  if (getppid() != parent) _exit(kFailure);  // gone before that
  int code = kFailure;
  try {
    const std::unique_ptr<ImportProcess::Output> output = std::move(task.output);
    for (ImportProcess& other : tasks) other.output.reset();  // the descriptors are for the import
    SessionOptions own = options;
    own.file = task.file;
    if (own.existing) own.existing_goes_to = &output->drawing;
    code = imported(*output, std::move(own));
  } catch (...) {  // NOLINT(bugprone-empty-catch): the code says it
  }
  _exit(code);
}

// Takes over what an ended process left. What it added to the drawing that all go into is the ground for the next.
void take_over(ImportProcess& task, int status, ExistingDrawing* existing) {
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

}  // namespace

MemoryFile::MemoryFile() : descriptor_(memfd_create("vexo-xyz", MFD_CLOEXEC)) {
  if (descriptor_ < 0) fail("making room for a process's words");
}

MemoryFile::~MemoryFile() { close(descriptor_); }

void MemoryFile::write(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(descriptor_, bytes.data(), bytes.size());
    if (written < 0 && errno != EINTR) fail("keeping a process's words");
    bytes.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(written, 0)));
  }
}

std::string MemoryFile::content() const {
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

bool start(std::vector<ImportProcess>& tasks, ImportProcess& task, const SessionOptions& options) {
  try {
    task.output = std::make_unique<ImportProcess::Output>();
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

bool wait_for_one(std::vector<ImportProcess>& tasks, ExistingDrawing* existing) {
  int status = 0;
  const pid_t ended = wait(&status);
  if (ended < 0 && errno != EINTR) fail("waiting for a process");
  const auto task =
      std::find_if(tasks.begin(), tasks.end(), [ended](const ImportProcess& one) { return one.process == ended; });
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

}  // namespace console
