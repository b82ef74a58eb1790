#include "console/drawing/open_objects.h"

#include <algorithm>
#include <iterator>

namespace console {

using namespace vexo_xyz_impl::host;  // NOLINT(google-build-using-namespace): the interface that is implemented

Gcad::ErrorStatus OpenObjects::open(Handle object, GcDb::OpenMode mode) {
  for (const Opening& opening : openings_) {
    if (opening.object != object) continue;
    if (opening.mode == GcDb::kForWrite) return Gcad::eWasOpenForWrite;
    if (mode == GcDb::kForWrite) return Gcad::eWasOpenForRead;
  }
  openings_.push_back({object, mode});
  return Gcad::eOk;
}

void OpenObjects::close(Handle object) {
  const auto found = std::find_if(openings_.rbegin(), openings_.rend(),
                                  [object](const Opening& opening) { return opening.object == object; });
  if (found != openings_.rend()) openings_.erase(std::prev(found.base()));
}

bool OpenObjects::is_open(Handle object) const {
  return std::any_of(openings_.begin(), openings_.end(),
                     [object](const Opening& opening) { return opening.object == object; });
}

}  // namespace console
