#include <string_view>

#include "console/dxf/dxf_writer.h"
#include "console/dxf/sections.h"

namespace console {
namespace {

Handle at(Fixed object) { return handle_of(object); }

void write_reactor(TagWriter& tags, Handle reactor) {
  tags.lines("102\n{ACAD_REACTORS\n");
  tags.handle(330, reactor);
  tags.lines("102\n}\n");
}

// A dictionary without its entries; the root has no owner and no reactor.
void begin_dictionary(TagWriter& tags, Fixed dictionary) {
  tags.lines("0\nDICTIONARY\n");
  tags.handle(5, at(dictionary));
  if (dictionary == Fixed::root_dictionary) {
    tags.lines("330\n0\n");
  } else {
    write_reactor(tags, at(Fixed::root_dictionary));
    tags.handle(330, at(Fixed::root_dictionary));
  }
  tags.lines("100\nAcDbDictionary\n281\n1\n");  // on a clash while merging drawings the present entry stays
}

void write_entry(TagWriter& tags, std::string_view name, Handle object) {
  tags.text(3, name);
  tags.handle(350, object);
}

void write_group(TagWriter& tags, const Group& group) {
  tags.lines("0\nGROUP\n");
  tags.handle(5, group.handle);
  write_reactor(tags, at(Fixed::group_dictionary));
  tags.handle(330, at(Fixed::group_dictionary));
  tags.lines("100\nAcDbGroup\n");
  tags.text(300, encoded_label(group.description));
  tags.lines("70\n0\n");  // named
  tags.whole(71, group.selectable ? 1 : 0);
  for (const Handle member : group.members) tags.handle(340, member);
}

void write_layout(TagWriter& tags, Fixed layout, std::string_view name, Fixed block, int tab, int plot_flags) {
  tags.lines("0\nLAYOUT\n");
  tags.handle(5, at(layout));
  write_reactor(tags, at(Fixed::layout_dictionary));
  tags.handle(330, at(Fixed::layout_dictionary));
  tags.lines(
      "100\nAcDbPlotSettings\n1\n\n2\nnone_device\n4\n\n6\n\n40\n0.0\n41\n0.0\n42\n0.0\n43\n0.0\n44\n0.0\n45\n0.0\n"
      "46\n0.0\n47\n0.0\n48\n0.0\n49\n0.0\n140\n0.0\n141\n0.0\n142\n1.0\n143\n1.0\n");
  tags.whole(70, plot_flags);
  tags.lines(
      "72\n1\n73\n0\n74\n5\n7\n\n75\n16\n76\n0\n77\n2\n78\n300\n147\n1.0\n148\n0.0\n149\n0.0\n100\nAcDbLayout\n");
  tags.text(1, name);
  tags.lines("70\n1\n");
  tags.whole(71, tab);
  tags.lines(
      "10\n0.0\n20\n0.0\n11\n420.0\n21\n297.0\n12\n0.0\n22\n0.0\n32\n0.0\n14\n0.0\n24\n0.0\n34\n0.0\n15\n420.0\n"
      "25\n297.0\n35\n0.0\n146\n0.0\n13\n0.0\n23\n0.0\n33\n0.0\n16\n1.0\n26\n0.0\n36\n0.0\n17\n0.0\n27\n1.0\n37\n0.0\n"
      "76\n0\n");
  tags.handle(330, at(block));
}

}  // namespace

void write_objects(TagWriter& tags, const Drawing& drawing) {
  constexpr int kModelPlotFlags = 1712;  // what new drawings have: scaled to fit, of the model tab
  constexpr int kPaperPlotFlags = 688;
  tags.lines("0\nSECTION\n2\nOBJECTS\n");
  begin_dictionary(tags, Fixed::root_dictionary);
  write_entry(tags, "ACAD_GROUP", at(Fixed::group_dictionary));
  write_entry(tags, "ACAD_LAYOUT", at(Fixed::layout_dictionary));

  begin_dictionary(tags, Fixed::group_dictionary);
  for (const Group& group : drawing.groups()) write_entry(tags, group.name, group.handle);
  begin_dictionary(tags, Fixed::layout_dictionary);
  write_entry(tags, "Model", at(Fixed::model_layout));
  write_entry(tags, "Layout1", at(Fixed::paper_layout));

  for (const Group& group : drawing.groups()) write_group(tags, group);
  write_layout(tags, Fixed::model_layout, "Model", Fixed::model_space, 0, kModelPlotFlags);
  write_layout(tags, Fixed::paper_layout, "Layout1", Fixed::paper_space, 1, kPaperPlotFlags);
  tags.lines("0\nENDSEC\n");
}

}  // namespace console
