// Which objects are open, and in which mode: any number of readers, or one writer.
#pragma once

#include <cstddef>
#include <vector>

#include "console/drawing/drawing.h"
#include "vexo_xyz_impl/host/values.h"

namespace console {

class OpenObjects {
 public:
  /// Opens the object if its present openings allow the mode; else says which opening is in the way.
  [[nodiscard]] vexo_xyz_impl::host::Gcad::ErrorStatus open(Handle object, vexo_xyz_impl::host::GcDb::OpenMode mode);

  /// Ends one opening of the object.
  void close(Handle object);

  [[nodiscard]] bool is_open(Handle object) const;
  [[nodiscard]] std::size_t count() const { return openings_.size(); }

 private:
  struct Opening {
    Handle object;
    vexo_xyz_impl::host::GcDb::OpenMode mode;
  };
  std::vector<Opening> openings_;  // a handful at any time
};

}  // namespace console
