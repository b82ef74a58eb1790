// The host's opened objects as the boundary's: each method a call of the object's own.
#pragma once

#include <memory>
#include <string_view>
#include <utility>

#include <pybind11/pybind11.h>

#include "python/exceptions.h"
#include "python/host.h"

namespace scripting {

/// An opened object of the host behind one of the boundary's interfaces.
template <class Interface>
class ScriptOpen : public Interface, public ScriptObject {
 public:
  ScriptOpen(ScriptHost& scripts, pybind11::object object) : scripts_(scripts), object_(std::move(object)) {}

  host::Gcad::ErrorStatus close() final {
    return calling_script([&] {
      object_.attr("close")();
      return host::Gcad::eOk;
    });
  }

  [[nodiscard]] const pybind11::object& object() const final { return object_; }

 protected:
  [[nodiscard]] ScriptHost& scripts() const { return scripts_; }

  /// Calls a method that answers with a status and an object.
  template <class... Arguments>
  host::WithStatus<pybind11::object> call(const char* method, Arguments&&... arguments) const {
    const pybind11::tuple answer = object_.attr(method)(std::forward<Arguments>(arguments)...);
    return {scripts_.status(answer[0]), answer[1]};
  }

 private:
  ScriptHost& scripts_;
  pybind11::object object_;
};

/// Opens a further object: with eOk and only then it is wrapped.
template <class Wrapper, class Interface>
host::WithStatus<std::unique_ptr<Interface>> wrapped(ScriptHost& scripts, host::WithStatus<pybind11::object> opened) {
  if (opened.first != host::Gcad::eOk) return {opened.first, nullptr};
  return {host::Gcad::eOk, std::make_unique<Wrapper>(scripts, std::move(opened.second))};
}

inline const pybind11::object& object_of(host::OpenObject& opened) {
  return dynamic_cast<ScriptObject&>(opened).object();
}

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
      object().attr("setTextStyle")(scripts().id_object(style));
      return host::Gcad::eOk;
    });
  }
};

class ScriptGroup final : public ScriptOpen<host::GcDbGroup> {
 public:
  using ScriptOpen::ScriptOpen;
  host::Gcad::ErrorStatus append(const host::GcDbObjectIdArray& ids) override {
    return calling_script([&] {
      object().attr("append")(scripts().id_array(ids));
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
      return {status, scripts().remember(std::move(id))};
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
          name == host::GCDB_MODEL_SPACE ? scripts().name("GCDB_MODEL_SPACE") : pybind11::object(to_script(name));
      return wrapped<ScriptRecord, host::GcDbBlockTableRecord>(scripts(), call("getAt", record, scripts().mode(mode)));
    });
  }
};

class ScriptDictionary final : public ScriptOpen<host::GcDbDictionary> {
 public:
  using ScriptOpen::ScriptOpen;
  [[nodiscard]] bool has(std::string_view name) override {
    return calling_script([&] { return pybind11::bool_(object().attr("has")(to_script(name))).operator bool(); });
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
  ScriptDatabase(ScriptHost& scripts, pybind11::object object) : scripts_(scripts), object_(std::move(object)) {}
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
    return calling_script([&] {
      const pybind11::tuple answer = object_.attr(method)(scripts_.mode(mode));
      return wrapped<Wrapper, Interface>(scripts_, {scripts_.status(answer[0]), answer[1]});
    });
  }

  ScriptHost& scripts_;
  pybind11::object object_;
};

}  // namespace scripting
