#include "python/host.h"

#include <filesystem>
#include <stdexcept>

#include "python/database.h"
#include "python/exceptions.h"
#include "python/siblings.h"

namespace scripting {

namespace py = pybind11;

namespace {

constexpr const char* kBindingModules[] = {"pygcad.core", "pygcad.core.runtime", "pygcad.pygrx"};  // NOLINT: a list

// What `from module import *` would bring.
py::list exported_names(const py::module_& module) {
  // NOLINTNEXTLINE(modernize-return-braced-init-list): that would be a list in a list
  if (py::hasattr(module, "__all__")) return py::list(module.attr("__all__"));
  py::list names;
  for (const py::handle name : py::list(module.attr("__dict__"))) {
    if (!from_script(name).starts_with('_')) names.append(name);
  }
  return names;
}

}  // namespace

py::str to_script(std::string_view utf8) {
  PyObject* text = PyUnicode_DecodeUTF8(utf8.data(), static_cast<Py_ssize_t>(utf8.size()), "surrogateescape");
  if (text == nullptr) throw py::error_already_set();
  return py::reinterpret_steal<py::str>(text);
}

std::string from_script(py::handle text) {
  const py::str own = py::isinstance<py::str>(text) ? py::reinterpret_borrow<py::str>(text) : py::str(text);
  Py_ssize_t size = 0;
  if (const char* utf8 = PyUnicode_AsUTF8AndSize(own.ptr(), &size)) return {utf8, static_cast<std::size_t>(size)};
  // Lone surrogates: mostly the bytes of a path that are no UTF-8; any other is kept as no UTF-8, and is no number.
  for (const char* errors : {"surrogateescape", "surrogatepass"}) {
    PyErr_Clear();
    const auto bytes = py::reinterpret_steal<py::bytes>(PyUnicode_AsEncodedString(own.ptr(), "utf-8", errors));
    if (bytes) return bytes;
  }
  throw py::error_already_set();
}

ScriptHost::ScriptHost(py::module_ module) : module_(std::move(module)) {
  for (const char* binding : kBindingModules) {
    const py::module_ loaded = py::module_::import(binding);
    for (const py::handle name : exported_names(loaded)) {
      names_.insert_or_assign(from_script(name), py::object(loaded.attr(py::reinterpret_borrow<py::str>(name))));
    }
  }
}

const py::object& ScriptHost::name(const char* name) const {
  const auto found = names_.find(name);
  if (found != names_.end()) return found->second;
  throw vexo_xyz_impl::Failure("NameError", std::string("name '") + name + "' is not defined by the host");
}

host::Gcad::ErrorStatus ScriptHost::status(const py::object& status) const {
  return status.equal(name("Gcad").attr("eOk")) ? host::Gcad::eOk : host::Gcad::eInvalidInput;
}

host::PromptStatus ScriptHost::prompt_status(const py::object& status) const {
  if (status.equal(name("RTNORM"))) return host::RTNORM;
  return status.equal(name("RTNONE")) ? host::RTNONE : host::RTERROR;
}

py::object ScriptHost::mode(host::GcDb::OpenMode mode) const {
  return name("GcDb").attr(mode == host::GcDb::kForWrite ? "kForWrite" : "kForRead");
}

host::GcDbObjectId ScriptHost::remember(py::object id) {
  ids_.push_back(std::move(id));
  return {ids_.size()};
}

py::object ScriptHost::point3d(const host::GcGePoint3d& position) const {
  return name("GcGePoint3d")(position.x, position.y, position.z);
}

// ---- Command line

host::PromptStatus ScriptHost::gcedGetFileD(std::string_view title, std::string_view default_name,
                                            std::string_view filter, int flags, host::resbuf& chosen) {
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

std::pair<host::PromptStatus, std::string> ScriptHost::gcedGetString(int spaces_allowed, std::string_view prompt) {
  return calling_script([&]() -> std::pair<host::PromptStatus, std::string> {
    const py::tuple answer = name("gcedGetString")(spaces_allowed, to_script(prompt));
    const auto rc = prompt_status(answer[0]);
    return {rc, rc == host::RTNORM ? from_script(answer[1]) : std::string()};
  });
}

host::PromptStatus ScriptHost::gcedInitGet(int flags, std::string_view keywords) {
  return calling_script([&] { return prompt_status(name("gcedInitGet")(flags, to_script(keywords))); });
}

std::pair<host::PromptStatus, std::string> ScriptHost::gcedGetKword(std::string_view prompt) {
  return calling_script([&]() -> std::pair<host::PromptStatus, std::string> {
    const py::tuple answer = name("gcedGetKword")(to_script(prompt));
    const auto rc = prompt_status(answer[0]);
    return {rc, rc == host::RTNORM ? from_script(answer[1]) : std::string()};
  });
}

void ScriptHost::gcutPrintf(std::string_view text) {
  calling_script([&] { name("gcutPrintf")(to_script(text)); });
}

host::PromptStatus ScriptHost::gcedSetVar(std::string_view variable, const host::resbuf& value) {
  return calling_script([&] {
    const py::object rb = name("resbuf")();
    if (value.restype == host::RTSHORT) {
      rb.attr("restype") = name("RTSHORT");
      rb.attr("resval").attr("rint") = static_cast<int>(value.resval.rint);
    } else {
      rb.attr("restype") = name("RTREAL");
      rb.attr("resval").attr("rreal") = value.resval.rreal;
    }
    return prompt_status(name("gcedSetVar")(to_script(variable), rb));
  });
}

void ScriptHost::command(std::string_view local_name, std::string_view global_name, std::string_view group_name,
                         host::CommandFunction function) {
  calling_script([&] {
    const auto run = [this, function = std::move(function)] {
      const Run whole(*this);
      function();
    };
    const py::cpp_function importxyz(
        run, py::name("importxyz"),
        py::doc("Reads a file of coordinates and inserts points and labels with their numbers."));
    module_.attr("importxyz") =
        name("command")(py::arg("local_name") = to_script(local_name), py::arg("global_name") = to_script(global_name),
                        py::arg("group_name") = to_script(group_name))(importxyz);
  });
}

// ---- Database

host::GcDbDatabase& ScriptHost::gcdbWorkingDatabase() {
  return calling_script([&]() -> host::GcDbDatabase& { return adopt_database(name("gcdbWorkingDatabase")()); });
}

host::GcDbDatabase& ScriptHost::adopt_database(py::object database) {
  database_ = std::make_unique<ScriptDatabase>(*this, std::move(database));
  return *database_;
}

const py::object& ScriptHost::database_object() const { return dynamic_cast<ScriptObject&>(*database_).object(); }

host::GcDbObjectIdArray ScriptHost::adopt_id_array(py::object ids) {
  return calling_script([&] {
    host::GcDbObjectIdArray stand_ins;
    const auto length = ids.attr("length")().cast<std::size_t>();
    for (std::size_t i = 0; i < length; ++i) stand_ins.append({});
    id_array_ = std::move(ids);
    return stand_ins;
  });
}

py::object ScriptHost::id_array(const host::GcDbObjectIdArray& ids) const {
  if (id_array_) return id_array_;
  py::object array = name("GcDbObjectIdArray")();
  const py::object append = array.attr("append");
  for (const host::GcDbObjectId id : ids) append(id_object(id));
  return array;
}

std::unique_ptr<host::GcDbPoint> ScriptHost::newGcDbPoint(const host::GcGePoint3d& position) {
  return calling_script([&] { return std::make_unique<ScriptPoint>(*this, name("GcDbPoint")(point3d(position))); });
}

std::unique_ptr<host::GcDbText> ScriptHost::newGcDbText(const host::GcGePoint3d& position, std::string_view text) {
  return calling_script(
      [&] { return std::make_unique<ScriptText>(*this, name("GcDbText")(point3d(position), to_script(text))); });
}

std::unique_ptr<host::GcDbGroup> ScriptHost::newGcDbGroup(std::string_view description, bool selectable) {
  return calling_script(
      [&] { return std::make_unique<ScriptGroup>(*this, name("GcDbGroup")(to_script(description), selectable)); });
}

// ---- Siblings

void ScriptHost::own_folder_first() {
  calling_script([&] {
    const py::module_ paths = py::module_::import("os.path");
    const py::object folder = paths.attr("dirname")(paths.attr("abspath")(module_.attr("__file__")));
    py::module_::import("sys").attr("path").attr("insert")(0, folder);
  });
}

host::SiblingModule& ScriptHost::load(std::string_view name) {
  // Texts and projections are asked for while the lock is let go of.
  const py::gil_scoped_acquire lock;
  return calling_script([&]() -> host::SiblingModule& {
    auto& kept = siblings_[std::string(name)];
    kept = sibling(std::string(name));
    return *kept;
  });
}

std::unique_ptr<host::SiblingModule> ScriptHost::sibling(const std::string& name) {
  const py::module_ loaded = py::module_::import(name.c_str());
  if (name == "vexo_teksty") {
    module_.attr("T") = loaded.attr("T");
    return std::make_unique<ScriptTexts>(loaded.attr("T"));
  }
  if (name == "vexo_cad_core") {
    module_.attr("_nadaj_styl_pl") = loaded.attr("nadaj_styl_pl");
    return std::make_unique<ScriptStyling>(loaded.attr("nadaj_styl_pl"));
  }
  if (name == "vexo_rynek") {
    module_.attr("_rynek") = loaded;
    module_.attr("_il") = py::module_::import("importlib");
    return std::make_unique<ScriptMarketChoice>(module_, loaded);
  }
  if (name == "vexo_boot") return std::make_unique<ScriptNotices>(loaded);
  if (name == "vexo_reaktywne_core") return std::make_unique<ScriptReactiveCore>(*this, loaded);
  if (name == "vexo_stereo70") return std::make_unique<ScriptStereo70>(loaded);
  return std::make_unique<Market>(loaded);
}

const Market& ScriptHost::market() const {
  for (const auto& [name, module] : siblings_) {
    const auto* market = dynamic_cast<const Market*>(module.get());
    if (market != nullptr && &market->tables() == &host::bound().market) return *market;
  }
  throw vexo_xyz_impl::ImportError("no market's data are bound");
}

void ScriptHost::run(const std::function<void()>& work) {
  const py::gil_scoped_release unlocked;
  work();
}

}  // namespace scripting
