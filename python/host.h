// The boundary over the CAD host's scripting layer: every operation is a call of the binding modules' objects.
//
// Names are looked up once, when the module is loaded, in pygcad.core, pygcad.core.runtime and pygcad.pygrx; on a clash
// the later module wins. A name that the host lacks fails with NameError where it is used. Objects of the host are
// held by reference for as long as they are open; ids for as long as a run of the command lasts.
#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include <pybind11/pybind11.h>

#include "python/market.h"
#include "vexo_xyz_impl/host/bindings.h"

namespace scripting {

namespace host = vexo_xyz_impl::host;

/// A name that every script object of the host goes by here.
class ScriptObject {
 public:
  virtual ~ScriptObject() = default;
  [[nodiscard]] virtual const pybind11::object& object() const = 0;
};

class ScriptHost final : public host::CommandLine,
                         public host::CommandTable,
                         public host::DatabaseServices,
                         public host::SiblingLoader,
                         public host::Worker {
 public:
  /// Makes the host's names available; `module` is the module being loaded, whose attributes loading sets.
  explicit ScriptHost(pybind11::module_ module);

  /// The boundary's roles, all of them this object.
  [[nodiscard]] host::Host roles() { return {*this, *this, *this, *this, this}; }

  // ---- What the module's functions and wrappers need

  [[nodiscard]] const pybind11::object& name(const char* name) const;
  [[nodiscard]] host::Gcad::ErrorStatus status(const pybind11::object& status) const;
  [[nodiscard]] pybind11::object mode(host::GcDb::OpenMode mode) const;
  [[nodiscard]] host::GcDbObjectId remember(pybind11::object id);
  [[nodiscard]] const pybind11::object& id_object(host::GcDbObjectId id) const { return ids_.at(id.value - 1); }
  void forget_ids() {
    ids_.clear(), id_array_ = pybind11::object(), database_.reset(), siblings_.erase("vexo_reaktywne_core");
  }

  /// The database and id array that a script passes; the ids stand for what only the host can look into.
  host::GcDbDatabase& adopt_database(pybind11::object database);
  [[nodiscard]] host::GcDbObjectIdArray adopt_id_array(pybind11::object ids);
  [[nodiscard]] pybind11::object id_array(const host::GcDbObjectIdArray& ids) const;
  [[nodiscard]] const pybind11::object& database_object() const;

  /// The market's tables as C++ has them, and its codes as scripts have them.
  [[nodiscard]] const Market& market() const;

  // ---- CommandLine
  host::PromptStatus gcedGetFileD(std::string_view title, std::string_view default_name, std::string_view filter,
                                  int flags, host::resbuf& chosen) override;
  std::pair<host::PromptStatus, std::string> gcedGetString(int spaces_allowed, std::string_view prompt) override;
  host::PromptStatus gcedInitGet(int flags, std::string_view keywords) override;
  std::pair<host::PromptStatus, std::string> gcedGetKword(std::string_view prompt) override;
  void gcutPrintf(std::string_view text) override;
  host::PromptStatus gcedSetVar(std::string_view variable, const host::resbuf& value) override;

  // ---- CommandTable
  void command(std::string_view local_name, std::string_view global_name, std::string_view group_name,
               host::CommandFunction function) override;

  // ---- DatabaseServices
  host::GcDbDatabase& gcdbWorkingDatabase() override;
  std::unique_ptr<host::GcDbPoint> newGcDbPoint(const host::GcGePoint3d& position) override;
  std::unique_ptr<host::GcDbText> newGcDbText(const host::GcGePoint3d& position, std::string_view text) override;
  std::unique_ptr<host::GcDbGroup> newGcDbGroup(std::string_view description, bool selectable) override;

  // ---- SiblingLoader
  void own_folder_first() override;
  host::SiblingModule& load(std::string_view name) override;

  // ---- Worker
  void run(const std::function<void()>& work) override;

 private:
  [[nodiscard]] pybind11::object point3d(const host::GcGePoint3d& position) const;
  [[nodiscard]] host::PromptStatus prompt_status(const pybind11::object& status) const;
  [[nodiscard]] std::unique_ptr<host::SiblingModule> sibling(const std::string& name);

  pybind11::module_ module_;
  std::unordered_map<std::string, pybind11::object> names_;
  std::map<std::string, std::unique_ptr<host::SiblingModule>, std::less<>> siblings_;
  std::vector<pybind11::object> ids_;
  pybind11::object id_array_;
  std::unique_ptr<host::GcDbDatabase> database_;
};

/// A run of an operation: what of the host is held by id or as its database is let go of at the end, however it ends.
class Run {
 public:
  explicit Run(ScriptHost& scripts) : scripts_(scripts) {}
  Run(const Run&) = delete;
  Run& operator=(const Run&) = delete;
  ~Run() { scripts_.forget_ids(); }

 private:
  ScriptHost& scripts_;
};

/// A text of the module for scripts. What is no UTF-8, as in a path, is kept as the scripting layer keeps it.
[[nodiscard]] pybind11::str to_script(std::string_view utf8);

/// A script's text for the module; the text form of anything that is none.
[[nodiscard]] std::string from_script(pybind11::handle text);

}  // namespace scripting
