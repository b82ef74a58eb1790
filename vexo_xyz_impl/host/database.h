// The host's drawing database as the module uses it: tables, records, entities, groups.
//
// Objects come opened and must be closed exactly once; `Opened` sees to that. An operation that opens answers with
// a status and, with `eOk` only, an object. Every operation may also fail with an exception of the host's.
#pragma once

#include <cstddef>
#include <exception>
#include <memory>
#include <string_view>
#include <utility>

#include "vexo_xyz_impl/host/values.h"

namespace vexo_xyz_impl::host {

/// Anything that is open until closed.
class OpenObject {
 public:
  virtual ~OpenObject() = default;
  OpenObject() = default;
  OpenObject(const OpenObject&) = delete;
  OpenObject& operator=(const OpenObject&) = delete;

  /// Ends the opening, whatever it answers or raises: an object is never closed a second time.
  virtual Gcad::ErrorStatus close() = 0;
};

/// Owns one opening of a host object and closes it exactly once on every path.
///
/// On the way out of a failure the object is closed quietly, for the first failure is the one to report; on the
/// ordinary path `finish()` closes it and lets a failure of closing travel to the caller, and `discard()` closes it
/// without a word about an ordinary failure.
template <class Object>
class Opened {
 public:
  Opened() = default;
  explicit Opened(std::unique_ptr<Object> object) : object_(std::move(object)) {}
  Opened(Opened&&) noexcept = default;
  Opened(const Opened&) = delete;
  Opened& operator=(Opened&&) = delete;
  Opened& operator=(const Opened&) = delete;
  ~Opened() {
    try {
      finish();
    } catch (...) {  // NOLINT(bugprone-empty-catch): an earlier failure is already on its way
    }
  }

  void finish() {
    if (const std::unique_ptr<Object> closing = std::move(object_)) closing->close();
  }

  void discard() {
    try {
      finish();
    } catch (const std::exception&) {  // NOLINT(bugprone-empty-catch): what is thrown away cannot fail
    }
  }

  /// Hands the opening over to the caller, who closes it.
  [[nodiscard]] std::unique_ptr<Object> release() { return std::move(object_); }

  explicit operator bool() const { return object_ != nullptr; }
  Object* operator->() const { return object_.get(); }
  Object& operator*() const { return *object_; }

 private:
  std::unique_ptr<Object> object_;
};

class GcDbEntity : public OpenObject {};

class GcDbPoint : public GcDbEntity {};

class GcDbText : public GcDbEntity {
 public:
  virtual Gcad::ErrorStatus setHeight(double height) = 0;
  virtual Gcad::ErrorStatus setTextStyle(GcDbObjectId style) = 0;
};

/// The host's own list of object ids.
class GcDbObjectIdArray {
 public:
  virtual ~GcDbObjectIdArray() = default;
  virtual void append(GcDbObjectId id) = 0;
  [[nodiscard]] virtual std::size_t length() const = 0;
};

class GcDbGroup : public OpenObject {
 public:
  /// `ids` is an array of the same host's.
  virtual Gcad::ErrorStatus append(const GcDbObjectIdArray& ids) = 0;
};

class GcDbBlockTableRecord : public OpenObject {
 public:
  /// Adds the entity, which stays open until its owner closes it; the database keeps it from then on.
  virtual WithStatus<GcDbObjectId> appendGcDbEntity(GcDbEntity& entity) = 0;
};

class GcDbBlockTable : public OpenObject {
 public:
  virtual WithStatus<std::unique_ptr<GcDbBlockTableRecord>> getAt(std::string_view name, GcDb::OpenMode mode) = 0;
};

class GcDbDictionary : public OpenObject {
 public:
  [[nodiscard]] virtual bool has(std::string_view name) = 0;
  /// Adds the group under a name that must be free; the database keeps it from then on.
  virtual WithStatus<GcDbObjectId> setAt(std::string_view name, GcDbGroup& group) = 0;
};

class GcDbDatabase {
 public:
  virtual ~GcDbDatabase() = default;
  virtual WithStatus<std::unique_ptr<GcDbBlockTable>> getBlockTable(GcDb::OpenMode mode) = 0;
  virtual WithStatus<std::unique_ptr<GcDbDictionary>> getGroupDictionary(GcDb::OpenMode mode) = 0;
};

/// The working database and the making of new objects, which are open for writing and in no database yet.
class DatabaseServices {
 public:
  virtual ~DatabaseServices() = default;
  /// None when no drawing is open.
  virtual std::shared_ptr<GcDbDatabase> gcdbWorkingDatabase() = 0;
  virtual std::unique_ptr<GcDbObjectIdArray> newGcDbObjectIdArray() = 0;
  virtual std::unique_ptr<GcDbPoint> newGcDbPoint(const GcGePoint3d& position) = 0;
  virtual std::unique_ptr<GcDbText> newGcDbText(const GcGePoint3d& position, std::string_view text) = 0;
  virtual std::unique_ptr<GcDbGroup> newGcDbGroup(std::string_view description, bool selectable) = 0;
};

}  // namespace vexo_xyz_impl::host
