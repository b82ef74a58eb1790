// Files of the console: what replaces what, with which rights, and what no signal may leave behind.
#include "console/files.h"

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace console {
namespace {

namespace fs = std::filesystem;

std::string content(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void put(const fs::path& path, const std::string& text) { std::ofstream(path, std::ios::binary) << text; }

class Files : public testing::Test {
 protected:
  Files() {
    std::string name = testing::TempDir() + "/vexo-files-XXXXXX";
    folder_ = mkdtemp(name.data());
  }
  ~Files() override { fs::remove_all(folder_); }

  [[nodiscard]] std::size_t count() const {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder_), fs::directory_iterator()));
  }

  fs::path folder_;
};

TEST_F(Files, AreAsLongAsWhatWasWritten) {
  for (const std::size_t pieces : {std::size_t{1}, std::size_t{34}, std::size_t{70}}) {
    AtomicFile file(folder_);
    const std::string piece(std::size_t{1} << 20U, static_cast<char>('0' + pieces % 10));
    for (std::size_t i = 0; i < pieces; ++i) file.write(piece);
    file.write("end");
    file.flush();
    file.replace(folder_ / "drawing.dxf");
    std::ifstream written(folder_ / "drawing.dxf", std::ios::binary);
    std::string read(piece.size(), ' ');
    for (std::size_t i = 0; i < pieces; ++i) ASSERT_TRUE(written.read(read.data(), std::ssize(read)) && read == piece);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(written), {}), "end");
  }
}

TEST_F(Files, HandTheirRightsOn) {
  // An access list as the system spells it: its version, then tag, rights and id of each entry: user::rw-, user 12:r--,
  // group::---, mask::r--, other::---.
  const std::string list(
      "\2\0\0\0\1\0\6\0\xff\xff\xff\xff\2\0\4\0\f\0\0\0\4\0\0\0\xff\xff\xff\xff\20\0\4\0\xff\xff\xff\xff "
      "\0\0\0\xff\xff\xff\xff",
      44);
  const fs::path target = folder_ / "drawing.dxf";
  const fs::path link = folder_ / "link.dxf";
  put(target, "old");
  fs::permissions(target, fs::perms(0604));
  fs::create_symlink("drawing.dxf", link);
  fs::create_symlink(link, folder_ / "link to link.dxf");
  const bool has_lists = setxattr(target.c_str(), "system.posix_acl_access", list.data(), list.size(), 0) == 0;
  const bool may_give = chown(target.c_str(), 12, 34) == 0;
  const fs::perms rights = fs::status(target).permissions();
  {
    AtomicFile file(final_target(folder_ / "link to link.dxf").parent_path());
    file.write("new");
    file.flush();
    EXPECT_FALSE(file.take_free(target));
    file.replace(folder_ / "link to link.dxf");
  }
  EXPECT_EQ(content(target), "new");
  EXPECT_TRUE(fs::is_symlink(link));
  EXPECT_EQ(fs::status(target).permissions(), rights);
  std::string got(100, ' ');
  if (has_lists) {
    got.resize(static_cast<std::size_t>(getxattr(target.c_str(), "system.posix_acl_access", got.data(), got.size())));
    EXPECT_EQ(got, list);
  }
  struct stat now {};
  ASSERT_EQ(stat(target.c_str(), &now), 0);
  if (may_give) {
    EXPECT_EQ(std::pair(now.st_uid, now.st_gid), std::pair(12U, 34U));
  }
}

TEST_F(Files, LeaveNothingBehindThatASignalEnds) {
  for (const int number : {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGXCPU, SIGALRM, SIGUSR1, SIGVTALRM, SIGPOLL, SIGPWR,
                           SIGSYS, SIGSEGV, SIGBUS, SIGTRAP, SIGRTMIN + 1}) {
    const pid_t child = fork();
    if (child == 0) {
      std::signal(number, SIG_DFL);  // sanitizers catch some
      std::signal(SIGUSR2, SIG_IGN);
      AtomicFile one(folder_);
      { const AtomicFile gone_again(folder_); }
      const AtomicFile other(folder_);
      raise(SIGUSR2);
      one.write("bytes");
      raise(number);
      _exit(0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == number) << number;
    EXPECT_EQ(count(), 0U) << number;
  }
}

TEST_F(Files, AreWholeUnderOneOfTheirNames) {
  const fs::path target = folder_ / "drawing.dxf";
  const fs::path backup = folder_ / "drawing.bak";
  const auto replaced_by = [&](const std::string& text) {
    AtomicFile file(folder_);
    file.write(text);
    file.flush();
    file.replace_keeping(target, backup);
    return content(target) == text;
  };
  EXPECT_TRUE(replaced_by("first") && count() == 1);
  EXPECT_TRUE(replaced_by("second") && content(backup) == "first");
  EXPECT_TRUE(replaced_by("third") && content(backup) == "second");
  fs::remove(backup);
  fs::create_hard_link(target, backup);  // as an end between the two steps leaves it
  EXPECT_TRUE(replaced_by("fourth") && content(backup) == "third" && count() == 2);
}

TEST_F(Files, AreNamedSoThatNumbersFit) {
  std::string stem(125, 'x');
  for (int i = 0; i < 63; ++i) stem += "ż";  // 251 bytes, as many as fit beside the ending
  EXPECT_EQ(drawing_name("a/" + stem + ".csv", 1), "a/" + stem + ".dxf");
  EXPECT_EQ(drawing_name("a/" + stem + ".csv", 2), "a/" + stem.substr(0, 249) + "_2.dxf");
  EXPECT_EQ(drawing_name("a/" + stem + ".csv", 12), "a/" + stem.substr(0, 247) + "_12.dxf");
  EXPECT_EQ(drawing_name("\xB9.csv", 3), "\xB9_3.dxf");
}

TEST_F(Files, AreRefusedBeforehand) {
  const fs::path fixed = folder_ / "read-only";
  fs::create_directory(fixed);
  put(fixed / "drawing.dxf", "old");
  fs::permissions(fixed, fs::perms(0555));
  put(folder_ / "file", "");
  const auto number = [&](const fs::path& target) {
    const auto refusal = refusal_of(folder_ / target);
    return refusal ? refusal->code().value() : 0;
  };
  EXPECT_EQ(number("drawing.dxf"), 0);
  EXPECT_EQ(number("file"), 0);
  EXPECT_EQ(number("none/drawing.dxf"), ENOENT);
  EXPECT_EQ(number("file/drawing.dxf"), ENOTDIR);
  EXPECT_EQ(number("none/"), EISDIR);
  EXPECT_EQ(number(std::string(300, 'd')), ENAMETOOLONG);
  if (geteuid() != 0) {
    EXPECT_EQ(number("read-only/drawing.dxf"), EACCES);
  }
  fs::permissions(fixed, fs::perms(0755));
}

}  // namespace
}  // namespace console
