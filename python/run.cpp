#include "python/run.h"

#include "python/database.h"
#include "python/exceptions.h"
#include "python/lock.h"
#include "python/siblings.h"
#include "python/values.h"

namespace scripting {

namespace py = pybind11;

namespace {

// What loading has bound, its styling made anew: it may look things up once a run.
vexo_xyz_impl::Loaded for_one_run(const vexo_xyz_impl::Loaded& loaded) {
  vexo_xyz_impl::Loaded own = loaded;
  if (const auto* styling = dynamic_cast<const ScriptStyling*>(loaded.style.get())) {
    own.style = std::make_shared<ScriptStyling>(*styling);
  }
  return own;
}

}  // namespace

Run::Run(std::shared_ptr<const ScriptModule> module)
    : module_(std::move(module)), entered_({{*this, *this, *this, this}, for_one_run(module_->loaded)}) {}

void Run::know_statuses() {
  if (!ok_) ok_ = name("Gcad").attr("eOk");
}

host::Gcad::ErrorStatus Run::status(const py::object& status) {
  know_statuses();
  return status.equal(ok_) ? host::Gcad::eOk : host::Gcad::eInvalidInput;
}

host::PromptStatus Run::prompt_status(const py::object& status) const {
  if (status.equal(name("RTNORM"))) return host::RTNORM;
  return status.equal(name("RTNONE")) ? host::RTNONE : host::RTERROR;
}

py::object Run::mode(host::GcDb::OpenMode mode) const {
  return name("GcDb").attr(mode == host::GcDb::kForWrite ? "kForWrite" : "kForRead");
}

host::GcDbObjectId Run::remember(py::object id) {
  ids_.push_back(std::move(id));
  return {ids_.size()};
}

py::object Run::point3d(const host::GcGePoint3d& position) const {
  return name("GcGePoint3d")(position.x, position.y, position.z);
}

// ---- Command line

host::PromptStatus Run::gcedGetFileD(std::string_view title, std::string_view default_name, std::string_view filter,
                                     int flags, host::resbuf& chosen) {
  return calling_script([&] {
    const py::object rb = name("resbuf")();
    const auto rc =
        prompt_status(name("gcedGetFileD")(to_script(title), to_script(default_name), to_script(filter), flags, rb));
    try {
      const py::object path = rb.attr("resval").attr("rstring");
      if (!path.is_none()) chosen.resval.rstring = from_script(path);
    } catch (const py::error_already_set& error) {
      if (!error.matches(PyExc_Exception)) throw;
      chosen.resval.rstring.clear();  // a path that cannot be read is asked for instead
    }
    return rc;
  });
}

std::pair<host::PromptStatus, std::string> Run::gcedGetString(int spaces_allowed, std::string_view prompt) {
  return calling_script([&]() -> std::pair<host::PromptStatus, std::string> {
    const py::list answer = items_of(name("gcedGetString")(spaces_allowed, to_script(prompt)), 2);
    const auto rc = prompt_status(answer[0]);
    return {rc, rc == host::RTNORM ? from_script(answer[1]) : std::string()};
  });
}

host::PromptStatus Run::gcedInitGet(int flags, std::string_view keywords) {
  return calling_script([&] {
    name("gcedInitGet")(flags, to_script(keywords));
    return host::RTNORM;  // whatever it answers
  });
}

std::pair<host::PromptStatus, std::string> Run::gcedGetKword(std::string_view prompt) {
  return calling_script([&]() -> std::pair<host::PromptStatus, std::string> {
    const py::list answer = items_of(name("gcedGetKword")(to_script(prompt)), 2);
    const auto rc = prompt_status(answer[0]);
    return {rc, rc == host::RTNORM ? from_script(answer[1]) : std::string()};
  });
}

void Run::gcutPrintf(std::string_view text) {
  calling_script([&] { name("gcutPrintf")(to_script(text)); });
}

host::PromptStatus Run::gcedSetVar(std::string_view variable, const host::resbuf& value) {
  return calling_script([&] {
    const py::object rb = name("resbuf")();
    if (value.restype == host::RTSHORT) {
      rb.attr("restype") = name("RTSHORT");
      rb.attr("resval").attr("rint") = static_cast<int>(value.resval.rint);
    } else {
      rb.attr("restype") = name("RTREAL");
      rb.attr("resval").attr("rreal") = value.resval.rreal;
    }
    name("gcedSetVar")(to_script(variable), rb);
    return host::RTNORM;  // whatever it answers
  });
}

// ---- Database

std::shared_ptr<host::GcDbDatabase> Run::gcdbWorkingDatabase() {
  return calling_script([&]() -> std::shared_ptr<host::GcDbDatabase> {
    py::object database = name("gcdbWorkingDatabase")();
    if (database.is_none()) return nullptr;
    return std::make_shared<ScriptDatabase>(*this, std::move(database));
  });
}

std::unique_ptr<host::GcDbObjectIdArray> Run::newGcDbObjectIdArray() {
  return calling_script([&] { return std::make_unique<ScriptIdArray>(*this, name("GcDbObjectIdArray")()); });
}

std::unique_ptr<host::GcDbPoint> Run::newGcDbPoint(const host::GcGePoint3d& position) {
  return calling_script([&] { return std::make_unique<ScriptPoint>(*this, name("GcDbPoint")(point3d(position))); });
}

std::unique_ptr<host::GcDbText> Run::newGcDbText(const host::GcGePoint3d& position, std::string_view text) {
  return calling_script(
      [&] { return std::make_unique<ScriptText>(*this, name("GcDbText")(point3d(position), to_script(text))); });
}

std::unique_ptr<host::GcDbGroup> Run::newGcDbGroup(std::string_view description, bool selectable) {
  return calling_script(
      [&] { return std::make_unique<ScriptGroup>(*this, name("GcDbGroup")(to_script(description), selectable)); });
}

// ---- Siblings

std::shared_ptr<host::SiblingModule> Run::load(std::string_view name) {
  const Locked lock;  // rows are interpreted while it is let go of
  return calling_script([&]() -> std::shared_ptr<host::SiblingModule> {
    const std::string own(name);
    const py::module_ loaded = py::module_::import(own.c_str());
    if (name == "vexo_boot") return make_guarded<ScriptNotices>(loaded);
    if (name == "vexo_miejsca") return make_guarded<ScriptPlaces>(loaded);
    if (name == "vexo_reaktywne_core") return make_guarded<ScriptReactiveCore>(*this, loaded);
    if (name == "vexo_stereo70") return make_guarded<ScriptStereo70>(loaded);
    throw vexo_xyz_impl::ImportError("nothing is known of module '" + own + "'");
  });
}

// ---- The interpreter's lock

void Run::let_go(const std::function<void()>& work) {
  const Unlocked unlocked;
  work();
}

void Run::hold(const std::function<void()>& work) {
  const Locked lock;
  work();
}

}  // namespace scripting
