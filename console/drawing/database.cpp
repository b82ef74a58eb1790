#include "console/drawing/database.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <type_traits>
#include <typeinfo>
#include <utility>

#include "vexo_xyz_impl/text/ascii.h"

namespace console {

using namespace vexo_xyz_impl::host;  // NOLINT(google-build-using-namespace): the interface that is implemented

namespace {

constexpr Handle kBlockTable = handle_of(Fixed::block_table);
constexpr Handle kModelSpace = handle_of(Fixed::model_space);
constexpr Handle kGroupDictionary = handle_of(Fixed::group_dictionary);

// What is passed in as one of the database's own final classes; nullptr when it is another's. Comparing the types is
// much cheaper than a cast, which looks through all bases.
template <class Own, class Interface>
Own* own(Interface& object) {
  static_assert(std::is_final_v<Own>);
  return typeid(object) == typeid(Own) ? static_cast<Own*>(&object) : nullptr;
}

// One opening of an object that the database keeps.
template <class Interface>
class OpenResident : public Interface {
 public:
  OpenResident(Database& database, Handle object, GcDb::OpenMode mode)
      : database_(database), object_(object), mode_(mode) {}

  Gcad::ErrorStatus close() final {
    if (!open_) return Gcad::eInvalidInput;
    open_ = false;
    database_.open_objects().close(object_);
    return Gcad::eOk;
  }

 protected:
  [[nodiscard]] bool writable() const { return open_ && mode_ == GcDb::kForWrite; }
  Database& database() { return database_; }

 private:
  Database& database_;
  Handle object_;
  GcDb::OpenMode mode_;
  bool open_ = true;
};

// The opening of a new object by its maker: open for writing before and after the database takes it over.
template <class Interface>
class OpenNewcomer : public Interface {
 public:
  explicit OpenNewcomer(Database& database) : database_(database) { database.newcomer_opened(); }

  Gcad::ErrorStatus close() final {
    if (!open_) return Gcad::eInvalidInput;
    open_ = false;
    if (resident_ == 0) {
      database_.newcomer_closed();
    } else {
      database_.open_objects().close(resident_);
    }
    return Gcad::eOk;
  }

  [[nodiscard]] bool is_open() const { return open_; }
  [[nodiscard]] bool is_resident() const { return resident_ != 0; }

  // The database keeps the object from now on; it stays open.
  void became_resident(Handle handle) {
    resident_ = handle;
    database_.newcomer_closed();
    static_cast<void>(database_.open_objects().open(handle, GcDb::kForWrite));  // free: nobody knew the handle
  }

 protected:
  Database& database() { return database_; }
  [[nodiscard]] Handle resident() const { return resident_; }

 private:
  Database& database_;
  Handle resident_ = 0;
  bool open_ = true;
};

template <class Interface, class Geometry>
class OpenEntity : public OpenNewcomer<Interface> {
 public:
  OpenEntity(Database& database, const Geometry& geometry) : OpenNewcomer<Interface>(database), newcomer_(geometry) {}

  WithStatus<GcDbObjectId> move_into(Drawing& drawing) {
    if (!this->is_open() || this->is_resident()) return {Gcad::eInvalidInput, {}};
    const auto handle = drawing.add(newcomer_);
    if (!handle) {
      this->database().entity_refused();
      return {Gcad::eInvalidInput, {}};
    }
    this->became_resident(*handle);
    return {Gcad::eOk, {*handle}};
  }

 protected:
  Geometry& newcomer() { return newcomer_; }

 private:
  Geometry newcomer_;  // until the drawing has it
};

class OpenPoint final : public OpenEntity<GcDbPoint, PointGeometry> {
 public:
  using OpenEntity::OpenEntity;
};

class OpenText final : public OpenEntity<GcDbText, TextGeometry> {
 public:
  OpenText(Database& database, const Position& position, std::string_view text)
      : OpenEntity(database, {.position = position}), text_(text) {
    newcomer().text = text_;
  }

  Gcad::ErrorStatus setHeight(double height) override {
    if (!is_open()) return Gcad::eNotOpenForWrite;
    geometry().height = height;
    return Gcad::eOk;
  }

  Gcad::ErrorStatus setTextStyle(GcDbObjectId style) override {
    if (!is_open()) return Gcad::eNotOpenForWrite;
    const auto& styles = database().drawing().text_styles();
    const bool known = std::any_of(styles.begin(), styles.end(),
                                   [style](const TextStyle& candidate) { return candidate.handle == style.value; });
    if (!known) return Gcad::eNullObjectId;
    geometry().style = style.value;
    return Gcad::eOk;
  }

 private:
  // Where the geometry is now: with the maker or in the drawing.
  TextGeometry& geometry() { return is_resident() ? *database().drawing().text(resident()) : newcomer(); }

  std::string text_;
};

class IdArray final : public GcDbObjectIdArray {
 public:
  void append(GcDbObjectId id) override { ids_.push_back(id.value); }
  [[nodiscard]] std::size_t length() const override { return ids_.size(); }
  [[nodiscard]] const std::vector<Handle>& handles() const { return ids_; }

 private:
  std::vector<Handle> ids_;
};

class OpenGroup final : public OpenNewcomer<GcDbGroup> {
 public:
  OpenGroup(Database& database, std::string_view description, bool selectable) : OpenNewcomer(database) {
    newcomer_.description = description;
    newcomer_.selectable = selectable;
  }

  Gcad::ErrorStatus append(const GcDbObjectIdArray& ids) override {
    if (!is_open()) return Gcad::eNotOpenForWrite;
    const auto* array = own<const IdArray>(ids);
    if (array == nullptr) return Gcad::eInvalidInput;
    const auto& handles = array->handles();
    const Drawing& drawing = database().drawing();
    if (!std::all_of(handles.begin(), handles.end(), [&](Handle one) { return drawing.has_entity(one); })) {
      return Gcad::eInvalidInput;
    }
    auto& members = (is_resident() ? *database().drawing().group(resident()) : newcomer_).members;
    members.insert(members.end(), handles.begin(), handles.end());
    return Gcad::eOk;
  }

  WithStatus<GcDbObjectId> move_into(Drawing& drawing, std::string_view name) {
    if (!is_open() || is_resident()) return {Gcad::eInvalidInput, {}};
    if (name.empty()) return {Gcad::eInvalidKey, {}};
    newcomer_.name = name;
    const auto handle = drawing.add(newcomer_);
    if (!handle) return {Gcad::eDuplicateKey, {}};
    became_resident(*handle);
    return {Gcad::eOk, {*handle}};
  }

 private:
  Group newcomer_;
};

class OpenModelSpace final : public OpenResident<GcDbBlockTableRecord> {
 public:
  using OpenResident::OpenResident;

  WithStatus<GcDbObjectId> appendGcDbEntity(GcDbEntity& entity) override {
    if (!writable()) return {Gcad::eNotOpenForWrite, {}};
    Drawing& drawing = database().drawing();
    if (auto* const point = own<OpenPoint>(entity)) return point->move_into(drawing);
    if (auto* const text = own<OpenText>(entity)) return text->move_into(drawing);
    return {Gcad::eInvalidInput, {}};
  }
};

// Opens a resident object: the status and, with eOk, the opening made of the rest.
template <class Interface, class Opening>
WithStatus<std::unique_ptr<Interface>> open_resident(Database& database, Handle object, GcDb::OpenMode mode) {
  const Gcad::ErrorStatus status = database.open_objects().open(object, mode);
  if (status != Gcad::eOk) return {status, nullptr};
  return {Gcad::eOk, std::make_unique<Opening>(database, object, mode)};
}

class OpenBlockTable final : public OpenResident<GcDbBlockTable> {
 public:
  using OpenResident::OpenResident;

  WithStatus<std::unique_ptr<GcDbBlockTableRecord>> getAt(std::string_view name, GcDb::OpenMode mode) override {
    if (name != GCDB_MODEL_SPACE) return {Gcad::eKeyNotFound, nullptr};
    return open_resident<GcDbBlockTableRecord, OpenModelSpace>(database(), kModelSpace, mode);
  }
};

class OpenGroupDictionary final : public OpenResident<GcDbDictionary> {
 public:
  using OpenResident::OpenResident;

  [[nodiscard]] bool has(std::string_view name) override { return database().drawing().has_group(name); }

  WithStatus<GcDbObjectId> setAt(std::string_view name, GcDbGroup& group) override {
    if (!writable()) return {Gcad::eNotOpenForWrite, {}};
    auto* newcomer = own<OpenGroup>(group);
    if (newcomer == nullptr) return {Gcad::eInvalidInput, {}};
    return newcomer->move_into(database().drawing(), name);
  }
};

}  // namespace

std::unique_ptr<GcDbObjectIdArray> Database::newGcDbObjectIdArray() { return std::make_unique<IdArray>(); }

std::unique_ptr<GcDbPoint> Database::newGcDbPoint(const Position& position) {
  return std::make_unique<OpenPoint>(*this, PointGeometry{position});
}

std::unique_ptr<GcDbText> Database::newGcDbText(const Position& position, std::string_view text) {
  return std::make_unique<OpenText>(*this, position, text);
}

std::unique_ptr<GcDbGroup> Database::newGcDbGroup(std::string_view description, bool selectable) {
  return std::make_unique<OpenGroup>(*this, description, selectable && selectable_groups_);
}

WithStatus<std::unique_ptr<GcDbBlockTable>> Database::getBlockTable(GcDb::OpenMode mode) {
  return open_resident<GcDbBlockTable, OpenBlockTable>(*this, kBlockTable, mode);
}

WithStatus<std::unique_ptr<GcDbDictionary>> Database::getGroupDictionary(GcDb::OpenMode mode) {
  if (!drawing_.holds_groups()) return {Gcad::eKeyNotFound, nullptr};
  return open_resident<GcDbDictionary, OpenGroupDictionary>(*this, kGroupDictionary, mode);
}

GcDbObjectId Database::ensure_text_style(std::string_view name, std::string_view font_file) {
  return {drawing_.ensure_text_style(name, font_file)};
}

std::string Database::handle_of(GcDbObjectId oid) const {
  return drawing_.has_entity(oid.value) ? handle_text(oid.value) : std::string();
}

std::optional<Position> Database::position_of(GcDbObjectId oid) const {
  const PointGeometry* point = drawing_.point(oid.value);
  return point == nullptr ? std::nullopt : std::optional(point->position);
}

bool Database::keep(GcDbObjectId oid, vexo_reaktywne_core::ControlRecord record) {
  if (!drawing_.has_entity(oid.value) || open_objects_.is_open(oid.value)) return false;
  drawing_.keep(oid.value, std::move(record));
  return true;
}

std::string handle_text(Handle handle) {
  std::array<char, 16> digits{};
  char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), handle, 16).ptr;
  std::transform(digits.data(), end, digits.data(), vexo_xyz_impl::text::ascii_upper);
  return {digits.data(), end};
}

}  // namespace console
