#include "console/files.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <fstream>
#include <string>
#include <system_error>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "console/file_rights.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace console {
namespace {

// Answers of file systems that cannot do what was asked, as opposed to those that will not.
constexpr std::array kNoExclusiveRename = {EINVAL, ENOSYS, ENOTSUP};
constexpr std::array kNoHardLink = {EPERM, ENOTSUP, ENOSYS, EMLINK, EXDEV};
constexpr std::array kNoFlush = {EINVAL, ENOSYS, ENOTSUP, EROFS};

template <std::size_t N>
bool is_one_of(const std::array<int, N>& numbers, int number) {
  return std::find(numbers.begin(), numbers.end(), number) != numbers.end();
}

[[noreturn]] void fail(FileStep step) { throw FileFailure(step, errno); }

std::filesystem::path or_current(const std::filesystem::path& folder) {
  return folder.empty() ? std::filesystem::path(".") : folder;
}

void flush_folder(const std::filesystem::path& target) {
  const int descriptor = open(or_current(target.parent_path()).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return;  // the file itself is safe; a folder that cannot be opened cannot be flushed
  fsync(descriptor);
  close(descriptor);
}

// Takes the name with an empty file, over which the rename goes.
bool rename_over_claim(const char* from, const char* to) {
  const SignalsHeld held;  // none may leave the claim
  const int claim = open(to, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
  if (claim < 0) return false;
  close(claim);
  if (std::rename(from, to) == 0) return true;
  const int error_number = errno;
  unlink(to);
  errno = error_number;
  return false;
}

// Gives the file a second name, which an older backup loses to it; false where the file system cannot.
bool link_as(const std::filesystem::path& original, const std::filesystem::path& backup) {
  try {
    const TemporaryName second(backup.parent_path(),
                               [&](const char* name) { return link(original.c_str(), name) == 0; });
    if (std::rename(second.c_str(), backup.c_str()) != 0) fail(FileStep::rename);
    flush_folder(backup);
    return true;
  } catch (const FileFailure& failure) {
    if (failure.step() != FileStep::create || !is_one_of(kNoHardLink, failure.code().value())) throw;
    return false;
  }
}

// The first bytes of a name, ended at a character's boundary where it has such.
std::string_view beginning(std::string_view name, std::size_t bytes) {
  std::string_view begun = name.substr(0, bytes);
  if (!vexo_xyz_impl::text::is_valid(name)) return begun;
  while (!vexo_xyz_impl::text::is_valid(begun)) begun.remove_suffix(1);
  return begun;
}

}  // namespace

AtomicFile::AtomicFile(const std::filesystem::path& folder)
    : temporary_(folder, [this](const char* name) {
        descriptor_ = open(name, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        return descriptor_ >= 0;
      }) {}

AtomicFile::~AtomicFile() {
  if (descriptor_ >= 0) close(descriptor_);
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
  if (fsync(descriptor_) != 0 && !is_one_of(kNoFlush, errno)) fail(FileStep::flush);
  const int closing = descriptor_;
  descriptor_ = -1;
  if (close(closing) != 0) fail(FileStep::write);  // some file systems tell only now
}

void AtomicFile::rename_over(const std::filesystem::path& target, const std::filesystem::path& rights_of) {
  struct stat was {};
  if (stat(rights_of.c_str(), &was) == 0) {
    const int descriptor = open(temporary_.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC);
    if (descriptor >= 0) take_over_rights(descriptor, rights_of.c_str(), was);
    if (descriptor >= 0) close(descriptor);
  }
  if (std::rename(temporary_.c_str(), target.c_str()) != 0) fail(FileStep::rename);
  flush_folder(target);
}

bool AtomicFile::rename_to_free_name(const std::filesystem::path& target) {
  if (renameat2(AT_FDCWD, temporary_.c_str(), AT_FDCWD, target.c_str(), RENAME_NOREPLACE) == 0) return true;
  if (is_one_of(kNoExclusiveRename, errno)) {
    // A second name is refused where there is a file of that name; the temporary one goes with its owner.
    if (link(temporary_.c_str(), target.c_str()) == 0) return true;
    if (is_one_of(kNoHardLink, errno) && rename_over_claim(temporary_.c_str(), target.c_str())) return true;
  }
  if (errno == EEXIST) return false;
  fail(FileStep::rename);
}

void AtomicFile::replace(const std::filesystem::path& target) {
  const std::filesystem::path final = final_target(target);
  rename_over(final, final);
}

bool AtomicFile::take_free(const std::filesystem::path& target) {
  if (!rename_to_free_name(target)) return false;
  flush_folder(target);
  return true;
}

void AtomicFile::replace_keeping(const std::filesystem::path& target, const std::filesystem::path& backup) {
  const std::filesystem::path original = final_target(target);
  std::error_code ignored;
  if (std::filesystem::exists(original, ignored) && !link_as(original, backup)) copy(original, backup);
  rename_over(original, original);
}

void AtomicFile::copy(const std::filesystem::path& original, const std::filesystem::path& backup) {
  AtomicFile file(backup.parent_path());
  std::ifstream bytes(original, std::ios::binary);
  std::vector<char> piece(std::size_t{1} << 16U);
  do {
    bytes.read(piece.data(), std::ssize(piece));
    file.write({piece.data(), static_cast<std::size_t>(bytes.gcount())});
  } while (bytes);
  if (!bytes.eof()) throw FileFailure(FileStep::write, EIO);
  file.flush();
  file.rename_over(backup, original);
}

void write_whole(const std::filesystem::path& path, std::string_view bytes) {
  AtomicFile file(final_target(path).parent_path());
  file.write(bytes);
  file.flush();
  file.replace(path);
}

bool begins_with_any(const std::filesystem::path& path, std::initializer_list<std::string_view> beginnings) {
  std::size_t longest = 0;
  for (const std::string_view known : beginnings) longest = std::max(longest, known.size());
  std::string head(longest, '\0');
  std::ifstream file(path, std::ios::binary);
  file.read(head.data(), std::ssize(head));
  head.resize(static_cast<std::size_t>(file.gcount()));
  return head.empty() ||
         std::any_of(beginnings.begin(), beginnings.end(), [&head](auto known) { return head.starts_with(known); });
}

std::filesystem::path final_target(std::filesystem::path path) {
  constexpr int kMostLinks = 40;  // as many as the system follows
  std::error_code not_a_link;
  for (int i = 0; i < kMostLinks; ++i) {
    const auto target = std::filesystem::read_symlink(path, not_a_link);
    if (not_a_link) break;
    path = path.parent_path() / target;  // an absolute one stands for itself
  }
  return path;
}

std::optional<FileFailure> refusal_in(const std::filesystem::path& folder) {
  struct stat in {};
  const std::filesystem::path path = or_current(folder);
  if (stat(path.c_str(), &in) != 0) return FileFailure(FileStep::create, errno);
  if (!S_ISDIR(in.st_mode)) return FileFailure(FileStep::create, ENOTDIR);
  if (faccessat(AT_FDCWD, path.c_str(), W_OK | X_OK, AT_EACCESS) != 0) return FileFailure(FileStep::create, errno);
  return std::nullopt;
}

std::optional<FileFailure> refusal_of(const std::filesystem::path& target) {
  if (!target.has_filename()) return FileFailure(FileStep::rename, EISDIR);
  const std::filesystem::path final = final_target(target);
  if (auto refusal = refusal_in(final.parent_path())) return refusal;
  struct stat there {};
  if (lstat(final.c_str(), &there) != 0)
    return errno == ENOENT ? std::nullopt : std::optional(FileFailure(FileStep::rename, errno));
  // In a folder such as /tmp only its owner and the file's may replace it; a file may also be immutable.
  struct stat in {};
  const uid_t user = geteuid();
  const bool is_foreign = stat(or_current(final.parent_path()).c_str(), &in) == 0 && (in.st_mode & S_ISVTX) != 0 &&
                          user != 0 && user != in.st_uid && user != there.st_uid;
  const bool is_fixed = faccessat(AT_FDCWD, final.c_str(), W_OK, AT_EACCESS) != 0 && errno == EPERM;
  if (is_foreign || is_fixed) return FileFailure(FileStep::rename, EPERM);
  return std::nullopt;
}

std::filesystem::path named_after(const std::filesystem::path& path, const std::string& ending, std::size_t spare) {
  constexpr std::size_t kMostBytes = 255;  // of a name, on most file systems
  const std::string stem = path.stem().string();
  return path.parent_path() / (std::string(beginning(stem, kMostBytes - ending.size() - spare)) + ending);
}

std::filesystem::path drawing_name(const std::filesystem::path& path, int number) {
  return named_after(path, (number > 1 ? "_" + std::to_string(number) : std::string()) + ".dxf");
}

}  // namespace console
