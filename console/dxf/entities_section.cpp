// Model space: the one section that grows with the import, so constant tags stand together as written.
#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "console/drawing/database.h"
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

// The tags between an entity's reactors and its geometry: owner and layer.
std::string head_of(const EntityPlaces& places, std::string_view layer, std::string_view subclass) {
  const DxfForm& form = places.form;
  const std::string on_layer = "8\n" + form.encoding.name(layer) + "\n";
  if (!form.has_subclasses()) return on_layer;
  std::string owner;
  if (form.has_owners() && places.model_space != 0) owner = "330\n" + handle_text(places.model_space) + "\n";
  return owner + "100\nAcDbEntity\n" + on_layer + "100\n" + std::string(subclass) + "\n";
}

// Tags that many entities share are composed once.
class EntityWriter {
 public:
  EntityWriter(TagWriter& tags, const Drawing& drawing, const EntityPlaces& places)
      : tags_(tags),
        drawing_(drawing),
        form_(places.form),
        reactors_(drawing),
        point_head_(head_of(places, places.layers.points, "AcDbPoint")),
        label_head_(head_of(places, places.layers.labels, "AcDbText")),
        height_head_(head_of(places, places.layers.heights, "AcDbText")) {}

  template <class Geometry>
  void operator()(Handle handle, const Geometry& geometry) {
    write(handle, geometry);
    if (const auto* record = drawing_.control_record(handle)) write_control_record(tags_, *record);
  }

 private:
  void begin(std::string_view kind, Handle handle, std::string_view head) {
    tags_.lines(kind);
    tags_.handle(5, handle);
    if (form_.has_subclasses()) reactors_.write(tags_, handle);
    tags_.lines(head);
  }

  void write(Handle handle, const PointGeometry& point) {
    begin("0\nPOINT\n", handle, point_head_);
    tags_.position(10, point.position);
  }

  void write(Handle handle, const TextGeometry& text) { write(handle, text, label_head_); }
  void write(Handle handle, const HeightGeometry& height) { write(handle, height, height_head_); }

  void write(Handle handle, const TextGeometry& text, std::string_view head) {
    begin("0\nTEXT\n", handle, head);
    tags_.position(10, text.position);
    tags_.real(40, text.height);
    tags_.text(1, form_.encoding.label(text.text, changed_label_));
    if (text_tail_.empty() || text.style != style_) compose_text_tail(text.style);
    tags_.lines(text_tail_);
  }

  void compose_text_tail(Handle style) {
    style_ = style;
    text_tail_ = "7\n" + form_.encoding.name(style_name(style)) + "\n";
    if (form_.has_subclasses()) text_tail_ += "100\nAcDbText\n";
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
  std::string point_head_;
  std::string label_head_;
  std::string height_head_;
  Handle style_ = 0;
  std::string text_tail_;  // of that style
  std::string changed_label_;
};

}  // namespace

void write_entities(TagWriter& tags, const Drawing& drawing, const EntityPlaces& places) {
  drawing.for_each_entity(EntityWriter(tags, drawing, places));
}

}  // namespace console
