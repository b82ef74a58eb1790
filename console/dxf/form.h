// What a version of DXF writes of what all drawings have, and how it spells text.
#pragma once

#include "console/dxf/text_encoding.h"
#include "console/dxf/version.h"

namespace console {

/// Versions between two named ones have the form of the earlier.
struct DxfForm {
  DxfVersion version = DxfVersion::r2007;
  TextEncoding encoding;

  [[nodiscard]] bool has_subclasses() const { return version >= DxfVersion::r13; }  ///< and groups, and reactors
  [[nodiscard]] bool has_owners() const { return version >= DxfVersion::r2000; }    ///< and plot styles
  [[nodiscard]] bool is_utf8() const { return version >= DxfVersion::r2007; }
};

}  // namespace console
