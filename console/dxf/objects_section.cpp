#include <string>
#include <string_view>

#include "console/dxf/records.h"
#include "console/dxf/sections.h"

namespace console {
namespace {

Handle at(Fixed object) { return handle_of(object); }

struct LayoutFacts {
  Fixed handle;
  Fixed block;
  std::string_view name;
  int tab;
  int plot_flags;
  Extents extents;
};

void write_layout(TagWriter& tags, const DxfForm& form, const LayoutFacts& layout) {
  begin_owned(tags, form, "LAYOUT", at(layout.handle), at(Fixed::layout_dictionary));
  tags.lines(
      "100\nAcDbPlotSettings\n1\n\n2\nnone_device\n4\n\n6\n\n40\n0.0\n41\n0.0\n42\n0.0\n43\n0.0\n44\n0.0\n45\n0.0\n"
      "46\n0.0\n47\n0.0\n48\n0.0\n49\n0.0\n140\n0.0\n141\n0.0\n142\n1.0\n143\n1.0\n");
  tags.whole(70, layout.plot_flags);
  tags.lines("72\n1\n73\n0\n74\n5\n7\n\n75\n16\n");
  if (form.version >= DxfVersion::r2004) tags.lines("76\n0\n77\n2\n78\n300\n");  // shaded plots
  tags.lines("147\n1.0\n148\n0.0\n149\n0.0\n100\nAcDbLayout\n");
  tags.text(1, layout.name);
  tags.lines("70\n1\n");
  tags.whole(71, layout.tab);
  tags.lines("10\n0.0\n20\n0.0\n11\n420.0\n21\n297.0\n12\n0.0\n22\n0.0\n32\n0.0\n");
  tags.position(14, layout.extents.smallest);
  tags.position(15, layout.extents.largest);
  tags.lines("146\n0.0\n13\n0.0\n23\n0.0\n33\n0.0\n16\n1.0\n26\n0.0\n36\n0.0\n17\n0.0\n27\n1.0\n37\n0.0\n76\n0\n");
  tags.handle(330, at(layout.block));
}

void write_plot_styles(TagWriter& tags, const DxfForm& form) {
  begin_dictionary(tags, form, at(Fixed::plot_style_dictionary), at(Fixed::root_dictionary), "ACDBDICTIONARYWDFLT");
  write_entry(tags, "Normal", at(Fixed::plot_style_normal));
  tags.lines("100\nAcDbDictionaryWithDefault\n");
  tags.handle(340, at(Fixed::plot_style_normal));
  begin_owned(tags, form, "ACDBPLACEHOLDER", at(Fixed::plot_style_normal), at(Fixed::plot_style_dictionary));
}

void write_dictionaries(TagWriter& tags, const NewDrawing& file) {
  const Drawing& drawing = file.drawing;
  const Handle root = at(Fixed::root_dictionary);
  begin_dictionary(tags, file.form, root, 0);
  write_entry(tags, kGroupDictionary, at(Fixed::group_dictionary));
  write_entry(tags, "ACAD_LAYOUT", at(Fixed::layout_dictionary));
  write_entry(tags, "ACAD_PLOTSTYLENAME", at(Fixed::plot_style_dictionary));
  if (drawing.control_record_count() > 0) write_entry(tags, kControlDictionary, at(Fixed::control_dictionary));

  begin_dictionary(tags, file.form, at(Fixed::group_dictionary), root);
  for (const Group& group : drawing.groups()) write_entry(tags, group.name, group.handle);

  begin_dictionary(tags, file.form, at(Fixed::layout_dictionary), root);
  write_entry(tags, "Model", at(Fixed::model_layout));
  write_entry(tags, "Layout1", at(Fixed::paper_layout));
}

void write_controls(TagWriter& tags, const NewDrawing& file) {
  if (file.drawing.control_record_count() == 0) return;
  begin_dictionary(tags, file.form, at(Fixed::control_dictionary), at(Fixed::root_dictionary));
  write_entry(tags, control_list_name(file.drawing), at(Fixed::control_list));
  write_control_list(tags, file.drawing, file.form, at(Fixed::control_list), at(Fixed::control_dictionary));
}

}  // namespace

std::string_view control_list_name(const Drawing& drawing) {
  return drawing.groups().empty() ? std::string_view("PIKIETY") : drawing.groups().front().name;
}

void write_control_list(TagWriter& tags, const Drawing& drawing, const DxfForm& form, Handle list, Handle dictionary) {
  begin_owned(tags, form, "XRECORD", list, dictionary);
  tags.lines("100\nAcDbXrecord\n280\n1\n");
  std::string changed;
  drawing.for_each_control_record([&](Handle point, const vexo_reaktywne_core::ControlRecord& record) {
    tags.handle(320, point);
    tags.position(10, record.at_registration);
    const TextGeometry* const label = drawing.label_of(point);
    tags.text(1, label == nullptr ? std::string_view("") : form.encoding.label(label->text, changed));
  });
}

void write_objects(TagWriter& tags, const NewDrawing& file) {
  constexpr int kModelPlotFlags = 1712;  // what new drawings have: scaled to fit, of the model tab
  constexpr int kPaperPlotFlags = 688;
  constexpr Extents kSheet = {{0.0, 0.0, 0.0}, {420.0, 297.0, 0.0}};  // millimetres
  tags.lines("0\nSECTION\n2\nOBJECTS\n");
  write_dictionaries(tags, file);
  for (const Group& group : file.drawing.groups()) write_group(tags, file.form, group, at(Fixed::group_dictionary));
  write_layout(tags, file.form, {Fixed::model_layout, Fixed::model_space, "Model", 0, kModelPlotFlags, file.extents});
  write_layout(tags, file.form, {Fixed::paper_layout, Fixed::paper_space, "Layout1", 1, kPaperPlotFlags, kSheet});
  write_plot_styles(tags, file.form);
  write_controls(tags, file);
  tags.lines("0\nENDSEC\n");
}

}  // namespace console
