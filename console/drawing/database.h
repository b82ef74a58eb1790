// The embedded drawing database: the host interface over a drawing held in memory.
//
// A real little host: tables, records, dictionaries and entities come opened, conflicting opens are refused with the
// status that says why, what is not sound is refused with a status, and an object id is the object's handle.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "console/drawing/drawing.h"
#include "console/drawing/open_objects.h"
#include "console/progress.h"
#include "siblings/vexo_cad_core/cad_core.h"
#include "siblings/vexo_reaktywne_core/reaktywne_core.h"
#include "vexo_xyz_impl/host/database.h"

namespace console {

class Database final : public vexo_xyz_impl::host::DatabaseServices,
                       public vexo_xyz_impl::host::GcDbDatabase,
                       public vexo_cad_core::TextStyles,
                       public vexo_reaktywne_core::ControlledEntities {
 public:
  /// `selectable_groups` false: groups are made unselectable whatever their maker says.
  explicit Database(bool selectable_groups = true) : selectable_groups_(selectable_groups) {}

  [[nodiscard]] Drawing& drawing() { return drawing_; }
  [[nodiscard]] bool selectable_groups() const { return selectable_groups_; }
  [[nodiscard]] OpenObjects& open_objects() { return open_objects_; }

  /// Tells `progress` from now on how many new objects there have been.
  void count_for(Progress* progress) {
    progress_ = progress;
    newcomers_ = 0;
  }

  /// Objects now open, those that belong to no drawing yet among them.
  [[nodiscard]] std::size_t open_count() const { return open_objects_.count() + open_newcomers_; }

  /// Entities refused because they were not sound.
  [[nodiscard]] std::size_t refused_count() const { return refused_; }

  // What opened objects tell their database.
  void newcomer_opened() {
    ++open_newcomers_;
    if (++newcomers_ % kTold == 0 && progress_ != nullptr) progress_->done(newcomers_);
  }
  void newcomer_closed() { --open_newcomers_; }
  void entity_refused() { ++refused_; }

  // DatabaseServices
  std::shared_ptr<vexo_xyz_impl::host::GcDbDatabase> gcdbWorkingDatabase() override {
    return {std::shared_ptr<void>(), this};  // owned by whoever made it
  }
  std::unique_ptr<vexo_xyz_impl::host::GcDbObjectIdArray> newGcDbObjectIdArray() override;
  std::unique_ptr<vexo_xyz_impl::host::GcDbPoint> newGcDbPoint(const Position& position) override;
  std::unique_ptr<vexo_xyz_impl::host::GcDbText> newGcDbText(const Position& position, std::string_view text) override;
  std::unique_ptr<vexo_xyz_impl::host::GcDbGroup> newGcDbGroup(std::string_view description, bool selectable) override;

  // GcDbDatabase
  vexo_xyz_impl::host::WithStatus<std::unique_ptr<vexo_xyz_impl::host::GcDbBlockTable>> getBlockTable(
      vexo_xyz_impl::host::GcDb::OpenMode mode) override;
  vexo_xyz_impl::host::WithStatus<std::unique_ptr<vexo_xyz_impl::host::GcDbDictionary>> getGroupDictionary(
      vexo_xyz_impl::host::GcDb::OpenMode mode) override;

  // TextStyles
  vexo_xyz_impl::host::GcDbObjectId ensure_text_style(std::string_view name, std::string_view font_file) override;

  // ControlledEntities
  [[nodiscard]] std::string handle_of(vexo_xyz_impl::host::GcDbObjectId oid) const override;
  [[nodiscard]] std::optional<Position> position_of(vexo_xyz_impl::host::GcDbObjectId oid) const override;
  bool keep(vexo_xyz_impl::host::GcDbObjectId oid, vexo_reaktywne_core::ControlRecord record) override;

 private:
  bool selectable_groups_;
  Drawing drawing_;
  OpenObjects open_objects_;
  static constexpr std::size_t kTold = 4096;  // of so many newcomers one is told

  std::size_t open_newcomers_ = 0;
  std::size_t newcomers_ = 0;
  Progress* progress_ = nullptr;
  std::size_t refused_ = 0;
};

/// A handle as files and records show it: hexadecimal, upper case.
[[nodiscard]] std::string handle_text(Handle handle);

}  // namespace console
