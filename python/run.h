// One run of an operation against the CAD host: the boundary's roles, each a call of the host's own objects.
//
// Everything that belongs to a run lives in it, so that runs nest and threads have their own: a callback of the host
// may call any operation again, import or reload the module, or take it apart.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <pybind11/pybind11.h>

#include "python/host_names.h"
#include "python/market.h"
#include "vexo_xyz_impl/bindings.h"

namespace scripting {

namespace host = vexo_xyz_impl::host;

/// A loaded module as its functions share it; they, not the module, keep it alive.
struct ScriptModule {
  HostNames names;
  vexo_xyz_impl::Loaded loaded;
  std::shared_ptr<const ScriptMarket> market;  ///< the same as in `loaded`
};

class Run final : public host::CommandLine,
                  public host::DatabaseServices,
                  public host::SiblingLoader,
                  public host::HostLock {
 public:
  /// Enters the module on this thread for as long as the run lasts.
  explicit Run(std::shared_ptr<const ScriptModule> module);

  // ---- What the wrappers of the host's objects need

  [[nodiscard]] const pybind11::object& name(std::string_view name) const { return module_->names[name]; }
  /// Looks up what statuses are judged by.
  void know_statuses();
  [[nodiscard]] host::Gcad::ErrorStatus status(const pybind11::object& status);
  [[nodiscard]] pybind11::object mode(host::GcDb::OpenMode mode) const;

  /// An id that stands for the host's own until the run ends, and the host's own behind it.
  [[nodiscard]] host::GcDbObjectId remember(pybind11::object id);
  [[nodiscard]] const pybind11::object& id_object(host::GcDbObjectId id) const { return ids_.at(id.value - 1); }

  // ---- CommandLine
  host::PromptStatus gcedGetFileD(std::string_view title, std::string_view default_name, std::string_view filter,
                                  int flags, host::resbuf& chosen) override;
  std::pair<host::PromptStatus, std::string> gcedGetString(int spaces_allowed, std::string_view prompt) override;
  host::PromptStatus gcedInitGet(int flags, std::string_view keywords) override;
  std::pair<host::PromptStatus, std::string> gcedGetKword(std::string_view prompt) override;
  void gcutPrintf(std::string_view text) override;
  host::PromptStatus gcedSetVar(std::string_view variable, const host::resbuf& value) override;

  // ---- DatabaseServices
  std::shared_ptr<host::GcDbDatabase> gcdbWorkingDatabase() override;
  std::unique_ptr<host::GcDbObjectIdArray> newGcDbObjectIdArray() override;
  std::unique_ptr<host::GcDbPoint> newGcDbPoint(const host::GcGePoint3d& position) override;
  std::unique_ptr<host::GcDbText> newGcDbText(const host::GcGePoint3d& position, std::string_view text) override;
  std::unique_ptr<host::GcDbGroup> newGcDbGroup(std::string_view description, bool selectable) override;

  // ---- SiblingLoader, of those that are looked up at each use
  void own_folder_first() override {}
  std::shared_ptr<host::SiblingModule> load(std::string_view name) override;

  // ---- HostLock
  void let_go(const std::function<void()>& work) override;
  void hold(const std::function<void()>& work) override;

 private:
  [[nodiscard]] pybind11::object point3d(const host::GcGePoint3d& position) const;
  [[nodiscard]] host::PromptStatus prompt_status(const pybind11::object& status) const;

  std::shared_ptr<const ScriptModule> module_;
  pybind11::object ok_;  // of the host's statuses, once it was asked for
  std::vector<pybind11::object> ids_;
  vexo_xyz_impl::Entered entered_;
};

}  // namespace scripting
