// Values that pass between the module and its host: status codes, open modes, ids, points, result buffers.
//
// The names are the host interface's own; the numbers behind them are each host's business, so nothing may
// depend on them but equality.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace vexo_xyz_impl::host {

/// Outcome of a prompt or of setting a system variable.
enum PromptStatus { RTNORM, RTNONE, RTCAN, RTERROR };

/// Type tag of a result buffer's value.
enum ResultType { RTSTR, RTSHORT, RTREAL };

/// A result buffer: a tagged value that prompts fill and system variables are set from.
struct resbuf {
  ResultType restype = RTSTR;
  struct {
    std::string rstring;
    std::int16_t rint = 0;
    double rreal = 0.0;
  } resval;
};

namespace Gcad {
/// Outcome of a database operation. Only `eOk` is success.
enum ErrorStatus {
  eOk,
  eWasOpenForRead,
  eWasOpenForWrite,
  eNotOpenForWrite,
  eKeyNotFound,
  eDuplicateKey,
  eInvalidKey,
  eInvalidInput,
  eNullObjectId,
};
}  // namespace Gcad

namespace GcDb {
enum OpenMode { kForRead, kForWrite };
}  // namespace GcDb

/// Name of the model space record in the block table.
inline constexpr std::string_view GCDB_MODEL_SPACE = "*Model_Space";

/// A point or direction in drawing units (metres in a survey drawing).
struct GcGePoint3d {
  double x = 0.0;
  double y = 0.0;
  double z = 0.0;
};

/// Identity of a database object within one session; 0 is no object.
struct GcDbObjectId {
  std::uint64_t value = 0;
  friend bool operator==(GcDbObjectId, GcDbObjectId) = default;
};

/// A Transverse Mercator zone on GRS80.
struct ZoneParameters {
  double lon0;  ///< central meridian, degrees
  double k0;    ///< scale on the central meridian
  double FE;    ///< false easting, metres
  double FN;    ///< false northing, metres
};

/// What a database operation answers that also yields something; the second is empty unless the first is `eOk`.
template <class Value>
using WithStatus = std::pair<Gcad::ErrorStatus, Value>;

}  // namespace vexo_xyz_impl::host
