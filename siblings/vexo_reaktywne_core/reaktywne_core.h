// Control records: what a surveyed point was at import, kept on the entity itself as extended data.
//
// The record holds the kind, the handles it depends on and the coordinates at import, these as plain reals (group
// 1010): a world position (1011) would move with the entity and tell nothing. A later check compares the two.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "vexo_xyz_impl/host/siblings.h"

namespace vexo_reaktywne_core {

/// Application name under which the records stand.
inline constexpr std::string_view kApplication = "VEXO";

/// A control record as it is stored.
struct ControlRecord {
  std::string kind;
  std::vector<std::string> handles;                  ///< hexadecimal
  vexo_xyz_impl::host::GcGePoint3d at_registration;  ///< metres
};

/// What control records need of their host.
class ControlledEntities {
 public:
  virtual ~ControlledEntities() = default;
  /// Hexadecimal handle of a resident entity, empty when the id names none.
  [[nodiscard]] virtual std::string handle_of(vexo_xyz_impl::host::GcDbObjectId oid) const = 0;
  /// Position of a point entity, empty for anything else.
  [[nodiscard]] virtual std::optional<vexo_xyz_impl::host::GcGePoint3d> position_of(
      vexo_xyz_impl::host::GcDbObjectId oid) const = 0;
  /// Keeps the record on the entity, in the place of an earlier one; false when the entity is open elsewhere.
  virtual bool keep(vexo_xyz_impl::host::GcDbObjectId oid, ControlRecord record) = 0;
};

class ReactiveCore final : public vexo_xyz_impl::host::ReactiveCore {
 public:
  explicit ReactiveCore(ControlledEntities& entities) : entities_(entities) {}
  [[nodiscard]] std::string handle_z_oid(vexo_xyz_impl::host::GcDbObjectId oid) override {
    return entities_.handle_of(oid);
  }
  bool zapisz_reakt(vexo_xyz_impl::host::GcDbObjectId oid, std::string_view kind,
                    const std::vector<std::string>& handles) override;

 private:
  ControlledEntities& entities_;
};

}  // namespace vexo_reaktywne_core
