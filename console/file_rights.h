// The rights of a file that is replaced by another.
#pragma once

#include <sys/stat.h>

namespace console {

/// Gives the open file `descriptor` the owner, the group, the mode and the access list of the file at `replaced`, whose
/// state is `was`. What the user may not give away, or the file system does not know, is left as it is; a group that
/// cannot be kept leaves no right that others have not.
void take_over_rights(int descriptor, const char* replaced, const struct stat& was);

}  // namespace console
