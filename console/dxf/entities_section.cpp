// Model space: the one section that grows with the import, so constant tags stand together as written.
#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "console/dxf/sections.h"

namespace console {
namespace {

// Which groups an entity belongs to, asked for in the order of rising handles.
class Reactors {
 public:
  explicit Reactors(const Drawing& drawing) {
    std::size_t members = 0;
    for (const Group& group : drawing.groups()) members += group.members.size();
    pairs_.reserve(members);
    for (const Group& group : drawing.groups())
      for (const Handle member : group.members) pairs_.emplace_back(member, group.handle);
    if (!std::is_sorted(pairs_.begin(), pairs_.end()))
      std::sort(pairs_.begin(), pairs_.end());  // an import's rise already
    next_ = pairs_.begin();
  }
  Reactors(const Reactors&) = delete;
  Reactors& operator=(const Reactors&) = delete;
  ~Reactors() = default;

  void write(TagWriter& tags, Handle entity) {
    while (next_ != pairs_.end() && next_->first < entity) ++next_;
    if (next_ == pairs_.end() || next_->first != entity) return;
    tags.lines("102\n{ACAD_REACTORS\n");
    for (; next_ != pairs_.end() && next_->first == entity; ++next_) tags.handle(330, next_->second);
    tags.lines("102\n}\n");
  }

 private:
  std::vector<std::pair<Handle, Handle>> pairs_;  // entity, group
  std::vector<std::pair<Handle, Handle>>::const_iterator next_;
};

void write_control_record(TagWriter& tags, const vexo_reaktywne_core::ControlRecord& record) {
  tags.text(1001, vexo_reaktywne_core::kApplication);
  tags.text(1000, record.kind);
  for (const std::string& handle : record.handles) tags.text(1005, handle);
  tags.position(1010, record.at_registration);
}

// The tags between an entity's owner and its geometry.
std::string head_of(const DxfForm& form, std::string_view layer, std::string_view subclass) {
  const std::string on_layer = "8\n" + form.encoding.name(layer) + "\n";
  if (!form.has_subclasses()) return on_layer;
  return "100\nAcDbEntity\n" + on_layer + "100\n" + std::string(subclass) + "\n";
}

class EntityWriter {
 public:
  EntityWriter(TagWriter& tags, const Drawing& drawing, const EntityPlaces& places)
      : tags_(tags),
        drawing_(drawing),
        form_(places.form),
        reactors_(drawing),
        owner_(places.model_space),
        point_head_(head_of(form_, places.layers.points, "AcDbPoint")),
        label_head_(head_of(form_, places.layers.labels, "AcDbText")),
        height_head_(head_of(form_, places.layers.heights, "AcDbText")) {}

  template <class Geometry>
  void operator()(Handle handle, const Geometry& geometry) {
    write(handle, geometry);
    if (const auto* record = drawing_.control_record(handle)) write_control_record(tags_, *record);
  }

 private:
  void begin(std::string_view kind, Handle handle) {
    tags_.lines(kind);
    tags_.handle(5, handle);
    if (form_.has_subclasses()) reactors_.write(tags_, handle);
    if (form_.has_owners() && owner_ != 0) tags_.handle(330, owner_);
  }

  void write(Handle handle, const PointGeometry& point) {
    begin("0\nPOINT\n", handle);
    tags_.lines(point_head_);
    tags_.position(10, point.position);
  }

  void write(Handle handle, const TextGeometry& text) { write(handle, text, label_head_); }
  void write(Handle handle, const HeightGeometry& height) { write(handle, height, height_head_); }

  void write(Handle handle, const TextGeometry& text, std::string_view head) {
    begin("0\nTEXT\n", handle);
    tags_.lines(head);
    tags_.position(10, text.position);
    tags_.real(40, text.height);
    tags_.text(1, form_.encoding.label(text.text, changed_label_));
    tags_.text(7, style_name(text.style));
    if (form_.has_subclasses()) tags_.lines("100\nAcDbText\n");
  }

  [[nodiscard]] std::string_view style_name(Handle style) const {
    for (const TextStyle& own : drawing_.text_styles())
      if (own.handle == style) return own.name;
    return "Standard";
  }

  TagWriter& tags_;
  const Drawing& drawing_;
  const DxfForm& form_;
  Reactors reactors_;
  Handle owner_;
  std::string point_head_;
  std::string label_head_;
  std::string height_head_;
  std::string changed_label_;
};

}  // namespace

void write_entities(TagWriter& tags, const Drawing& drawing, const EntityPlaces& places) {
  drawing.for_each_entity(EntityWriter(tags, drawing, places));
}

}  // namespace console
