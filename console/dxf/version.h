#pragma once

namespace console {

/// Versions of DXF by the number of their $ACADVER.
enum class DxfVersion { r12 = 1009, r13 = 1012, r14 = 1014, r2000 = 1015, r2004 = 1018, r2007 = 1021, r2018 = 1032 };

}  // namespace console
