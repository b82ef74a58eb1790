#include "console/check/points_in_drawing.h"

#include <unordered_map>
#include <utility>

#include "console/dxf/tag_reader.h"
#include "siblings/vexo_reaktywne_core/reaktywne_core.h"
#include "vexo_xyz_impl/drawing/control.h"
#include "vexo_xyz_impl/text/ascii.h"

namespace console {
namespace {

// Takes one of the three reals that stand under `base`, `base` + 10 and `base` + 20.
bool take_real(Position& position, const Tag& tag, int base) {
  double* const part = tag.code == base        ? &position.x
                       : tag.code == base + 10 ? &position.y
                       : tag.code == base + 20 ? &position.z
                                               : nullptr;
  const auto value = tag.real();
  if (part == nullptr || !value) return false;
  *part = *value;
  return true;
}

// Follows the tags of entities, one after the other.
class EntityReader {
 public:
  explicit EntityReader(std::vector<PointInDrawing>& points) : points_(points) {}

  void tag(const Tag& tag) {
    if (tag.code == 0) {
      begin(tag);
    } else if (kind_ == Kind::point) {
      of_point(tag);
    } else if (kind_ == Kind::label && tag.code == 1) {
      points_.back().label = tag.value;
    } else if (kind_ == Kind::block && tag.code == 2) {
      block_ = tag.trimmed();
      if (is_layout(block_)) block_ = {};
    }
  }

 private:
  enum class Kind { point, label, block, other };

  // *Model_Space, *Paper_Space0 and the like.
  static bool is_layout(std::string_view name) {
    using vexo_xyz_impl::text::starts_with_ascii_case;
    return starts_with_ascii_case(name, "*MODEL_SPACE") || starts_with_ascii_case(name, "*PAPER_SPACE");
  }

  void begin(const Tag& tag) {
    const bool is_behind_point = kind_ == Kind::point;
    kind_ = tag.says("POINT")                     ? Kind::point
            : is_behind_point && tag.says("TEXT") ? Kind::label
            : tag.says("BLOCK")                   ? Kind::block
                                                  : Kind::other;
    if (tag.says("ENDBLK")) block_ = {};
    if (kind_ != Kind::point) return;
    points_.emplace_back();
    points_.back().block = block_;
    is_ours_ = false;
    is_record_ = false;
  }

  void of_point(const Tag& tag) {
    PointInDrawing& point = points_.back();
    if (tag.code == 5 && point.own == 0) point.own = tag.handle().value_or(0);
    if (tag.code < 1000) {
      take_real(point.now, tag, 10);
      return;
    }
    if (tag.code == 1001) is_ours_ = tag.says(vexo_reaktywne_core::kApplication);
    if (tag.code == 1001 || tag.code == 1000) is_record_ = is_ours_ && tag.says(vexo_xyz_impl::kRecordKind);
    if (!is_record_) return;
    if (tag.code == 1005 && point.recorded == 0) point.recorded = tag.handle().value_or(0);
    if (take_real(point.registered, tag, 1010)) point.has_record = true;
  }

  std::vector<PointInDrawing>& points_;
  Kind kind_ = Kind::other;
  std::string_view block_;
  bool is_ours_ = false;    // the extended data are this program's
  bool is_record_ = false;  // and a record of control
};

template <class Visit>
void for_each_tag(std::string_view bytes, const Outline& outline, std::string_view section, Visit visit) {
  const auto found = outline.sections.find(section);
  if (found == outline.sections.end()) return;
  TagReader reader(bytes.substr(0, found->second.end), found->second.begin);
  Tag tag;
  while (reader.next(tag)) visit(std::as_const(tag));
}

// Records among the objects, by handle.
class RecordReader {
 public:
  void tag(const Tag& tag) {
    if (tag.code == 0) {
      own_ = 0;
      is_record_ = false;
      may_be_record_ = tag.says("XRECORD");
    } else if (tag.code == 5 && own_ == 0) {
      own_ = tag.handle().value_or(0);
    } else if (may_be_record_ && tag.code == 100) {
      is_record_ = tag.says("AcDbXrecord");
    } else if (is_record_) {
      of_record(tag);
    }
  }

  void take_lists_of(const DictionaryOutline& control, DrawingPoints& found) const {
    for (const DictionaryEntry& entry : control.entries) {
      const auto record = records_.find(entry.pointer.handle().value_or(0));
      if (record == records_.end()) continue;
      for (ListedPoint point : record->second) {
        point.list = found.lists.size();
        found.listed.push_back(point);
      }
      found.lists.push_back(entry.name);
    }
  }

 private:
  void of_record(const Tag& tag) {
    auto& list = records_[own_];
    if (tag.code == 320) list.push_back({tag.handle().value_or(0), {}, {}, 0});
    if (list.empty()) return;
    take_real(list.back().registered, tag, 10);
    if (tag.code == 1) list.back().label = tag.value;
  }

  std::unordered_map<Handle, std::vector<ListedPoint>> records_;
  Handle own_ = 0;
  bool may_be_record_ = false;
  bool is_record_ = false;
};

}  // namespace

DrawingPoints points_in(std::string_view bytes, const Outline& outline) {
  DrawingPoints found;
  for (const std::string_view section : {"BLOCKS", "ENTITIES"}) {
    EntityReader entities(found.points);
    for_each_tag(bytes, outline, section, [&entities](const Tag& tag) { entities.tag(tag); });
  }
  if (!outline.control) return found;
  RecordReader records;
  for_each_tag(bytes, outline, "OBJECTS", [&records](const Tag& tag) { records.tag(tag); });
  records.take_lists_of(*outline.control, found);
  return found;
}

}  // namespace console
