#include "console/files.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>

#include <fcntl.h>
#include <signal.h>  // NOLINT(modernize-deprecated-headers): sigaction is not in <csignal>
#include <sys/stat.h>
#include <unistd.h>

namespace console {
namespace {

[[noreturn]] void fail(FileStep step) { throw FileFailure(step, errno); }

// ---- An interrupt must leave no temporary file behind. The handler may touch nothing but plain memory.

constexpr std::array kInterrupts = {SIGINT, SIGTERM, SIGHUP};
// NOLINTBEGIN(cppcoreguidelines-avoid-non-const-global-variables): all that a signal handler can reach
std::array<char, 4096> interrupted_file{};
std::array<struct sigaction, kInterrupts.size()> usual_actions{};
// NOLINTEND(cppcoreguidelines-avoid-non-const-global-variables)

extern "C" void remove_and_end(int signal_number) {
  if (interrupted_file[0] != '\0') unlink(interrupted_file.data());
  signal(signal_number, SIG_DFL);
  raise(signal_number);
}

void guard_against_interrupts(const std::string& temporary) {
  if (temporary.size() >= interrupted_file.size()) return;  // longer than any path the system takes
  std::memcpy(interrupted_file.data(), temporary.c_str(), temporary.size() + 1);
  for (std::size_t i = 0; i < kInterrupts.size(); ++i) {
    sigaction(kInterrupts[i], nullptr, &usual_actions[i]);
    if (usual_actions[i].sa_handler == SIG_IGN) continue;  // as under nohup: it will not interrupt
    struct sigaction action {};
    action.sa_handler = remove_and_end;
    sigaction(kInterrupts[i], &action, nullptr);
  }
}

void end_guard() {
  if (interrupted_file[0] == '\0') return;
  for (std::size_t i = 0; i < kInterrupts.size(); ++i) sigaction(kInterrupts[i], &usual_actions[i], nullptr);
  interrupted_file[0] = '\0';
}

std::filesystem::path or_current(const std::filesystem::path& folder) {
  return folder.empty() ? std::filesystem::path(".") : folder;
}

void flush_folder(const std::filesystem::path& target) {
  const int descriptor = open(or_current(target.parent_path()).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return;  // the file itself is safe; a folder that cannot be opened cannot be flushed
  fsync(descriptor);
  close(descriptor);
}

}  // namespace

AtomicFile::AtomicFile(const std::filesystem::path& folder)
    : temporary_((or_current(folder) / ".vexo-xyz-XXXXXX").string()),
      descriptor_(mkostemp(temporary_.data(), O_CLOEXEC)) {
  if (descriptor_ < 0) fail(FileStep::create);
  guard_against_interrupts(temporary_);
  // mkostemp makes it private; a drawing gets the rights that any new file gets.
  const mode_t mask = umask(0);
  umask(mask);
  fchmod(descriptor_, 0666U & ~mask);
}

AtomicFile::~AtomicFile() {
  if (descriptor_ >= 0) close(descriptor_);
  if (!temporary_.empty()) unlink(temporary_.c_str());
  end_guard();
}

void AtomicFile::write(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(descriptor_, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) fail(FileStep::write);
    bytes.remove_prefix(static_cast<std::size_t>(written));
    size_ += static_cast<std::size_t>(written);
  }
  if (size_ >= next_step_) begin_step();
}

// Room for many blocks at once is much cheaper than for each, and the disk is kept busy while tags are made. Both are
// hints: where they fail, writing or flushing does, or it just takes longer.
void AtomicFile::begin_step() {
  const auto end = static_cast<off_t>(size_);
  has_room_ahead_ |= fallocate(descriptor_, FALLOC_FL_KEEP_SIZE, end, static_cast<off_t>(kStep)) == 0;
  sync_file_range(descriptor_, 0, 0, SYNC_FILE_RANGE_WRITE);
  next_step_ = size_ + kStep;
}

void AtomicFile::flush() {
  // What is left of the room; where it cannot be given back, the drawing is whole all the same.
  if (has_room_ahead_) has_room_ahead_ = ftruncate(descriptor_, static_cast<off_t>(size_)) != 0;
  if (fsync(descriptor_) != 0) fail(FileStep::flush);
  const int closing = descriptor_;
  descriptor_ = -1;
  if (close(closing) != 0) fail(FileStep::write);
}

bool AtomicFile::commit(const std::filesystem::path& target, bool replace) {
  const unsigned flags = replace ? 0U : RENAME_NOREPLACE;
  if (renameat2(AT_FDCWD, temporary_.c_str(), AT_FDCWD, target.c_str(), flags) != 0) {
    if (errno == EEXIST && !replace) return false;
    if (errno != EINVAL || replace) fail(FileStep::rename);
    // A file system without the exclusive rename: a second name for the file is refused where one exists.
    if (link(temporary_.c_str(), target.c_str()) != 0) {
      if (errno == EEXIST) return false;
      fail(FileStep::rename);
    }
    unlink(temporary_.c_str());
  }
  temporary_.clear();
  flush_folder(target);
  return true;
}

std::filesystem::path drawing_name(const std::filesystem::path& path, int number) {
  std::string name = path.stem().string();
  if (number > 1) name += "_" + std::to_string(number);
  return path.parent_path() / (name + ".dxf");
}

}  // namespace console
