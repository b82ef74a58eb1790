// Model space: the one section that grows with the import, so constant tags stand together as written.
#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "console/dxf/dxf_writer.h"
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

class EntityWriter {
 public:
  EntityWriter(TagWriter& tags, const Drawing& drawing)
      : tags_(tags), drawing_(drawing), reactors_(drawing), owner_(handle_of(Fixed::model_space)) {}

  template <class Geometry>
  void operator()(Handle handle, const Geometry& geometry) {
    write(handle, geometry);
    if (const auto* record = drawing_.control_record(handle)) write_control_record(tags_, *record);
  }

 private:
  void begin(std::string_view kind, Handle handle) {
    tags_.lines(kind);
    tags_.handle(5, handle);
    reactors_.write(tags_, handle);
    tags_.handle(330, owner_);
  }

  void write(Handle handle, const PointGeometry& point) {
    begin("0\nPOINT\n", handle);
    tags_.lines("100\nAcDbEntity\n8\n0\n100\nAcDbPoint\n");
    tags_.position(10, point.position);
  }

  void write(Handle handle, const TextGeometry& text) {
    begin("0\nTEXT\n", handle);
    tags_.lines("100\nAcDbEntity\n8\n0\n100\nAcDbText\n");
    tags_.position(10, text.position);
    tags_.real(40, text.height);
    tags_.text(1, encoded_label(text.text, changed_label_));
    tags_.text(7, style_name(text.style));
    tags_.lines("100\nAcDbText\n");
  }

  [[nodiscard]] std::string_view style_name(Handle style) const {
    for (const TextStyle& own : drawing_.text_styles())
      if (own.handle == style) return own.name;
    return "Standard";
  }

  TagWriter& tags_;
  const Drawing& drawing_;
  Reactors reactors_;
  Handle owner_;
  std::string changed_label_;
};

}  // namespace

void write_entities(TagWriter& tags, const Drawing& drawing) {
  tags.lines("0\nSECTION\n2\nENTITIES\n");
  drawing.for_each_entity(EntityWriter(tags, drawing));
  tags.lines("0\nENDSEC\n");
}

}  // namespace console
