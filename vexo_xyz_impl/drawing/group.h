// The named group that gathers the points and labels of one import.
#pragma once

#include <string>

#include "vexo_xyz_impl/host/database.h"

namespace vexo_xyz_impl {

/// Whether something succeeded; on failure a message in the catalogue's words, else empty.
struct GroupingResult {
  bool ok = false;
  std::string message;
};

/// A group name made of the local date and the file's name, in the letters that a group dialog takes (A to Z, digits,
/// "_" and "-", 66 characters at most) and not in use in `db`: a repeated import gets "_2" to "_99", then the time.
/// When the group dictionary cannot be opened the name is not checked.
[[nodiscard]] std::string _nazwa_grupy(host::GcDbDatabase& db, const std::string& path);

/// Creates the group `nazwa` with the members `ids`. What the result does not cover (a failing append among it)
/// fails, after everything opened here has been closed.
[[nodiscard]] GroupingResult _grupuj(host::GcDbDatabase& db, const host::GcDbObjectIdArray& ids,
                                     const std::string& nazwa);

}  // namespace vexo_xyz_impl
