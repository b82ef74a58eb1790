#include "vexo_xyz_impl/drawing/model_space.h"

#include <exception>
#include <utility>

#include "vexo_xyz_impl/bindings.h"

namespace vexo_xyz_impl {
namespace {

constexpr short kCrossPoints = 3;
constexpr double kSizeInPercentOfView = -2.0;  // negative: a percentage of the view's height

}  // namespace

ModelSpace _openModelSpace() {
  const auto db = bound().host.database.gcdbWorkingDatabase();
  if (!db) return {};
  auto [table_status, table] = db->getBlockTable(host::GcDb::kForRead);
  host::Opened<host::GcDbBlockTable> bt(std::move(table));
  if (table_status != host::Gcad::eOk) return {};

  auto [record_status, record] = bt->getAt(host::GCDB_MODEL_SPACE, host::GcDb::kForWrite);
  host::Opened<host::GcDbBlockTableRecord> ms(std::move(record));
  bt.finish();  // whatever became of model space
  if (record_status != host::Gcad::eOk) return {};
  return {db, std::move(ms)};
}

void _setPointDisplayVars() {
  try {
    host::resbuf rb;
    rb.restype = host::RTSHORT;
    rb.resval.rint = kCrossPoints;
    command_line().gcedSetVar("PDMODE", rb);
    host::resbuf rb2;
    rb2.restype = host::RTREAL;
    rb2.resval.rreal = kSizeInPercentOfView;
    command_line().gcedSetVar("PDSIZE", rb2);
  } catch (const std::exception&) {  // NOLINT(bugprone-empty-catch): points stay as visible as they were
  }
}

}  // namespace vexo_xyz_impl
