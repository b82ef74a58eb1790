#include "vexo_xyz_impl/command/insertion.h"

#include <optional>

#include "vexo_xyz_impl/bindings.h"
#include "vexo_xyz_impl/table/span.h"
#include "vexo_xyz_impl/table/text_height.h"

namespace vexo_xyz_impl {
namespace {

constexpr double kHeightShare = 0.02;     // label height as a share of the larger extent
constexpr double kOneSpot = 1e-06;        // metres; an extent that is no larger is a single spot
constexpr double kHeightOnOneSpot = 2.5;  // raw label height there
constexpr double kLabelOffset = 0.6;      // of the label height, to the right of the point and above it

// Appends the entity, adds its id to the ids and closes it; the id, empty when the host refused the entity.
template <class Entity>
std::optional<host::GcDbObjectId> append_and_close(host::GcDbBlockTableRecord& ms, host::Opened<Entity>& entity,
                                                   host::GcDbObjectIdArray& oidy) {
  const auto [status, oid] = ms.appendGcDbEntity(*entity);
  const bool taken = status == host::Gcad::eOk;
  if (taken) oidy.append(oid);
  entity.finish();
  return taken ? std::optional(oid) : std::nullopt;
}

}  // namespace

double label_height(std::span<const PointRecord> punkty) {
  const double rozp0 = span_of(punkty, &PointRecord::x);
  const double rozp1 = span_of(punkty, &PointRecord::y);
  const double span = rozp0 > rozp1 ? rozp0 : rozp1;
  return _rowna_wysokosc(span > kOneSpot ? span * kHeightShare : kHeightOnOneSpot);
}

Inserted insert_points(host::GcDbBlockTableRecord& ms, std::span<const PointRecord> punkty, double txtH) {
  const Bindings& bindings = bound();
  host::DatabaseServices& database = bindings.host.database;
  const double off = txtH * kLabelOffset;
  Inserted inserted;
  inserted.oidy = database.newGcDbObjectIdArray();
  inserted.oidy_punktow.reserve(punkty.size());
  for (const PointRecord& record : punkty) {
    host::Opened<host::GcDbPoint> point(database.newGcDbPoint({record.x, record.y, record.z}));
    if (const auto oid = append_and_close(ms, point, *inserted.oidy)) {
      inserted.oidy_punktow.push_back(*oid);
    } else {
      inserted.refused.push_back(inserted.placed);
    }
    host::Opened<host::GcDbText> label(database.newGcDbText({record.x + off, record.y + off, record.z}, record.nr));
    bindings.loaded.style->nadaj_styl_pl(*label);
    label->setHeight(txtH);
    append_and_close(ms, label, *inserted.oidy);
    ++inserted.placed;
  }
  return inserted;
}

}  // namespace vexo_xyz_impl
