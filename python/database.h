// The host's opened objects as the boundary's: each method a call of the object's own.
#pragma once

#include <memory>
#include <string_view>
#include <utility>

#include <pybind11/pybind11.h>

#include "python/exceptions.h"
#include "python/run.h"
#include "python/values.h"

namespace scripting {

/// What every wrapper of a host's object is.
class ScriptObject {
 public:
  virtual ~ScriptObject() = default;
  [[nodiscard]] virtual const pybind11::object& object() const = 0;
};

inline const pybind11::object& object_of(host::OpenObject& opened) {
  return dynamic_cast<ScriptObject&>(opened).object();
}

/// What a method of the host's answers with: a status, and an object that is open when that is eOk.
template <class... Arguments>
host::WithStatus<pybind11::object> answer_of(Run& run, const pybind11::object& object, const char* method,
                                             Arguments&&... arguments) {
  run.know_statuses();  // before there is anything to lose
  const pybind11::list answer = items_of(object.attr(method)(std::forward<Arguments>(arguments)...), 2);
  try {
    return {run.status(answer[0]), answer[1]};
  } catch (...) {  // nobody has what was opened, if it was
    try {
      answer[1].attr("close")();
    } catch (const pybind11::error_already_set&) {  // NOLINT(bugprone-empty-catch): the first failure is the one
    }
    throw;
  }
}

/// An opened object of the host behind one of the boundary's interfaces.
template <class Interface>
class ScriptOpen : public Interface, public ScriptObject {
 public:
  ScriptOpen(Run& run, pybind11::object object) : run_(run), object_(std::move(object)) {}

  host::Gcad::ErrorStatus close() final {
    return calling_script([&] {
      object_.attr("close")();
      return host::Gcad::eOk;
    });
  }

  [[nodiscard]] const pybind11::object& object() const final { return object_; }

 protected:
  [[nodiscard]] Run& run() const { return run_; }

  /// Calls a method that answers with a status and an object.
  template <class... Arguments>
  host::WithStatus<pybind11::object> call(const char* method, Arguments&&... arguments) const {
    return answer_of(run_, object_, method, std::forward<Arguments>(arguments)...);
  }

 private:
  Run& run_;
  pybind11::object object_;
};

/// Opens a further object: with eOk and only then it is wrapped.
template <class Wrapper, class Interface>
host::WithStatus<std::unique_ptr<Interface>> wrapped(Run& run, host::WithStatus<pybind11::object> opened) {
  if (opened.first != host::Gcad::eOk) return {opened.first, nullptr};
  return {host::Gcad::eOk, std::make_unique<Wrapper>(run, std::move(opened.second))};
}

/// The host's own list of ids, or one that a script passes.
class ScriptIdArray final : public host::GcDbObjectIdArray {
 public:
  ScriptIdArray(Run& run, pybind11::object object) : run_(run), object_(std::move(object)) {}

  void append(host::GcDbObjectId id) override {
    calling_script([&] { object_.attr("append")(run_.id_object(id)); });
  }
  [[nodiscard]] std::size_t length() const override {
    return calling_script([&] { return object_.attr("length")().cast<std::size_t>(); });
  }
  [[nodiscard]] const pybind11::object& object() const { return object_; }

 private:
  Run& run_;
  pybind11::object object_;
};

using ScriptPoint = ScriptOpen<host::GcDbPoint>;

class ScriptText final : public ScriptOpen<host::GcDbText> {
 public:
  using ScriptOpen::ScriptOpen;
  host::Gcad::ErrorStatus setHeight(double height) override {
    return calling_script([&] {
      object().attr("setHeight")(height);
      return host::Gcad::eOk;
    });
  }
  host::Gcad::ErrorStatus setTextStyle(host::GcDbObjectId style) override {
    return calling_script([&] {
      object().attr("setTextStyle")(run().id_object(style));
      return host::Gcad::eOk;
    });
  }
};

class ScriptGroup final : public ScriptOpen<host::GcDbGroup> {
 public:
  using ScriptOpen::ScriptOpen;
  host::Gcad::ErrorStatus append(const host::GcDbObjectIdArray& ids) override {
    return calling_script([&] {
      object().attr("append")(dynamic_cast<const ScriptIdArray&>(ids).object());
      return host::Gcad::eOk;
    });
  }
};

class ScriptRecord final : public ScriptOpen<host::GcDbBlockTableRecord> {
 public:
  using ScriptOpen::ScriptOpen;
  host::WithStatus<host::GcDbObjectId> appendGcDbEntity(host::GcDbEntity& entity) override {
    return calling_script([&]() -> host::WithStatus<host::GcDbObjectId> {
      auto [status, id] = call("appendGcDbEntity", object_of(entity));
      if (status != host::Gcad::eOk) return {status, {}};
      return {status, run().remember(std::move(id))};
    });
  }
};

class ScriptBlockTable final : public ScriptOpen<host::GcDbBlockTable> {
 public:
  using ScriptOpen::ScriptOpen;
  host::WithStatus<std::unique_ptr<host::GcDbBlockTableRecord>> getAt(std::string_view name,
                                                                      host::GcDb::OpenMode mode) override {
    return calling_script([&] {
      // The boundary's only record goes by the host's own name for it.
      const pybind11::object record =
          name == host::GCDB_MODEL_SPACE ? run().name("GCDB_MODEL_SPACE") : pybind11::object(to_script(name));
      return wrapped<ScriptRecord, host::GcDbBlockTableRecord>(run(), call("getAt", record, run().mode(mode)));
    });
  }
};

class ScriptDictionary final : public ScriptOpen<host::GcDbDictionary> {
 public:
  using ScriptOpen::ScriptOpen;
  [[nodiscard]] bool has(std::string_view name) override {
    return calling_script([&] { return truth_of(object().attr("has")(to_script(name))); });
  }
  host::WithStatus<host::GcDbObjectId> setAt(std::string_view name, host::GcDbGroup& group) override {
    return calling_script([&]() -> host::WithStatus<host::GcDbObjectId> {
      return {call("setAt", to_script(name), object_of(group)).first, {}};  // nobody asks for the group's id
    });
  }
};

/// The database itself, which is never opened nor closed.
class ScriptDatabase final : public host::GcDbDatabase, public ScriptObject {
 public:
  ScriptDatabase(Run& run, pybind11::object object) : run_(run), object_(std::move(object)) {}
  [[nodiscard]] const pybind11::object& object() const override { return object_; }

  host::WithStatus<std::unique_ptr<host::GcDbBlockTable>> getBlockTable(host::GcDb::OpenMode mode) override {
    return open<ScriptBlockTable, host::GcDbBlockTable>("getBlockTable", mode);
  }
  host::WithStatus<std::unique_ptr<host::GcDbDictionary>> getGroupDictionary(host::GcDb::OpenMode mode) override {
    return open<ScriptDictionary, host::GcDbDictionary>("getGroupDictionary", mode);
  }

 private:
  template <class Wrapper, class Interface>
  host::WithStatus<std::unique_ptr<Interface>> open(const char* method, host::GcDb::OpenMode mode) {
    return calling_script(
        [&] { return wrapped<Wrapper, Interface>(run_, answer_of(run_, object_, method, run_.mode(mode))); });
  }

  Run& run_;
  pybind11::object object_;
};

}  // namespace scripting
