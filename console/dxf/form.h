// What a version of DXF writes of what all drawings have, and how it spells text.
#pragma once

#include <string_view>

#include "console/dxf/text_encoding.h"

namespace console {

/// Versions by the number of their $ACADVER.
enum class DxfVersion { r12 = 1009, r13 = 1012, r14 = 1014, r2000 = 1015, r2004 = 1018, r2007 = 1021, r2018 = 1032 };

/// Versions between two named ones have the form of the earlier.
struct DxfForm {
  DxfVersion version = DxfVersion::r2007;
  TextEncoding encoding;

  [[nodiscard]] bool has_subclasses() const { return version >= DxfVersion::r13; }  ///< and groups, and reactors
  [[nodiscard]] bool has_owners() const { return version >= DxfVersion::r2000; }    ///< and plot styles
  [[nodiscard]] bool is_utf8() const { return version >= DxfVersion::r2007; }
};

}  // namespace console
