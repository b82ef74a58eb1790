#include "console/file_rights.h"

#include <cerrno>
#include <cstddef>
#include <vector>

#include <linux/limits.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace console {
namespace {

constexpr const char* kAccessList = "system.posix_acl_access";
constexpr mode_t kRights = 0777;  // a drawing has no use for the bits above

// The list as the system hands it out; empty for none.
std::vector<char> access_list(const char* path) {
  std::vector<char> list(static_cast<std::size_t>(XATTR_SIZE_MAX));
  const ssize_t size = getxattr(path, kAccessList, list.data(), list.size());
  list.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
  return list;
}

// Whether the file now has the group it is to have.
bool take_over_owner(int descriptor, const struct stat& was) {
  if (fchown(descriptor, was.st_uid, was.st_gid) == 0) return true;
  if (fchown(descriptor, static_cast<uid_t>(-1), was.st_gid) == 0) return true;
  struct stat now {};
  return fstat(descriptor, &now) == 0 && now.st_gid == was.st_gid;
}

// The mode for a group that is another one than the file's was: what everybody may.
mode_t for_another_group(mode_t mode) { return (mode & ~static_cast<mode_t>(S_IRWXG)) | ((mode & S_IRWXO) << 3U); }

}  // namespace

void take_over_rights(int descriptor, const char* replaced, const struct stat& was) {
  const bool has_group = take_over_owner(descriptor, was);
  const mode_t mode = was.st_mode & kRights;
  const std::vector<char> list = has_group ? access_list(replaced) : std::vector<char>();
  if (list.empty()) {
    fremovexattr(descriptor, kAccessList);  // one that the folder gave it
  } else {
    fsetxattr(descriptor, kAccessList, list.data(), list.size(), 0);
  }
  fchmod(descriptor, has_group ? mode : for_another_group(mode));
}

}  // namespace console
