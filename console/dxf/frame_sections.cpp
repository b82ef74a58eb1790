// Everything around the entities that does not depend on what was imported, but for the extents and text styles.
#include <algorithm>
#include <limits>
#include <string>

#include "console/dxf/records.h"
#include "console/dxf/sections.h"
#include "vexo_xyz_impl/text/ascii.h"

namespace console {

namespace text = vexo_xyz_impl::text;

namespace {

constexpr double kViewAspect = 1.6;     // width to height of an ordinary screen
constexpr double kViewMargin = 1.15;    // of the extents' height
constexpr double kSmallestView = 25.0;  // metres of height around a single point

// Colours by number
constexpr int kForeground = 7;  // black on white, white on black
constexpr int kGreen = 3;
constexpr int kOrange = 30;

Handle at(Fixed object) { return handle_of(object); }

void begin_section(TagWriter& tags, std::string_view name) {
  tags.lines("0\nSECTION\n");
  tags.text(2, name);
}

void end_section(TagWriter& tags) { tags.lines("0\nENDSEC\n"); }

void end_table(TagWriter& tags) { tags.lines("0\nENDTAB\n"); }

void write_viewport_table(TagWriter& tags, const DxfForm& form, const Extents& extents) {
  const double width = extents.largest.x - extents.smallest.x;
  const double height = std::max(extents.largest.y - extents.smallest.y, width / kViewAspect);
  const double view_height = std::max(height * kViewMargin, kSmallestView);
  const double centre_x = extents.smallest.x + width / 2.0;
  const double centre_y = (extents.smallest.y + extents.largest.y) / 2.0;
  // The view's centre (12, 22) counts from its target (17, 27). One reader forgets the target and takes twice the
  // centre less half the view for the middle of the screen; this split shows the points there too.
  const double offset_x = centre_x / 2.0 + view_height * kViewAspect / 4.0;
  const double offset_y = centre_y / 2.0 + view_height / 4.0;

  begin_table(tags, form, "VPORT", at(Fixed::vport_table), 1);
  begin_record(tags, form, "VPORT",
               {at(Fixed::active_vport), at(Fixed::vport_table), "AcDbViewportTableRecord", "*ACTIVE"});
  tags.lines("70\n0\n10\n0.0\n20\n0.0\n11\n1.0\n21\n1.0\n");
  tags.real(12, offset_x);
  tags.real(22, offset_y);
  tags.lines("13\n0.0\n23\n0.0\n14\n10.0\n24\n10.0\n15\n10.0\n25\n10.0\n16\n0.0\n26\n0.0\n36\n1.0\n");
  tags.real(17, centre_x - offset_x);
  tags.real(27, centre_y - offset_y);
  tags.lines("37\n0.0\n");
  tags.real(40, view_height);
  tags.real(41, kViewAspect);
  tags.lines(
      "42\n50.0\n43\n0.0\n44\n0.0\n50\n0.0\n51\n0.0\n71\n0\n72\n1000\n73\n1\n74\n3\n75\n0\n76\n0\n77\n0\n78\n0\n");
  end_table(tags);
}

void write_line_type_table(TagWriter& tags, const DxfForm& form) {
  begin_table(tags, form, "LTYPE", at(Fixed::ltype_table), 3);
  const auto line_type = [&](Fixed handle, std::string_view name, std::string_view description) {
    begin_record(tags, form, "LTYPE", {at(handle), at(Fixed::ltype_table), "AcDbLinetypeTableRecord", name});
    tags.lines("70\n0\n");
    tags.text(3, description);
    tags.lines("72\n65\n73\n0\n40\n0.0\n");
  };
  line_type(Fixed::ltype_by_block, "ByBlock", "");
  line_type(Fixed::ltype_by_layer, "ByLayer", "");
  line_type(Fixed::ltype_continuous, "Continuous", "Solid line");
  end_table(tags);
}

void write_layer_table(TagWriter& tags, const NewDrawing& file) {
  const std::vector<LayerRecord> own = layers_of(file.drawing, file.layers);
  const LayerPointer plot_style{390, at(Fixed::plot_style_normal)};  // a layer without one is repaired or refused
  begin_table(tags, file.form, "LAYER", at(Fixed::layer_table), 1 + own.size());
  const auto layer = [&](const LayerRecord& record) {
    write_layer(tags, file.form, record, at(Fixed::layer_table), {&plot_style, 1});
  };
  layer({at(Fixed::layer_0), "0", kForeground});
  for (const LayerRecord& record : own) layer(record);
  end_table(tags);
}

void write_style_table(TagWriter& tags, const NewDrawing& file) {
  const auto& own = file.drawing.text_styles();
  begin_table(tags, file.form, "STYLE", at(Fixed::style_table), 1 + own.size());
  const auto style = [&](const TextStyle& record) { write_style(tags, file.form, record, at(Fixed::style_table)); };
  style({at(Fixed::style_standard), "Standard", "txt"});
  for (const TextStyle& record : own) style(record);
  end_table(tags);
}

void write_application_table(TagWriter& tags, const DxfForm& form) {
  begin_table(tags, form, "APPID", at(Fixed::appid_table), 2);
  const Handle table = at(Fixed::appid_table);
  write_application(tags, form, at(Fixed::appid_acad), "ACAD", table);
  write_application(tags, form, at(Fixed::appid_vexo), vexo_reaktywne_core::kApplication, table);
  end_table(tags);
}

void write_dimension_style_table(TagWriter& tags, const DxfForm& form) {
  begin_table(tags, form, "DIMSTYLE", at(Fixed::dimstyle_table), 1);
  tags.lines("100\nAcDbDimStyleTable\n71\n0\n");
  begin_record(tags, form, "DIMSTYLE",
               {at(Fixed::dimstyle_standard), at(Fixed::dimstyle_table), "AcDbDimStyleTableRecord", "Standard"}, 105);
  tags.lines("70\n0\n");
  tags.handle(340, at(Fixed::style_standard));
  end_table(tags);
}

void write_block_record_table(TagWriter& tags, const DxfForm& form) {
  begin_table(tags, form, "BLOCK_RECORD", at(Fixed::block_record_table), 2);
  const auto block = [&](Fixed handle, std::string_view name, Fixed layout) {
    begin_record(tags, form, "BLOCK_RECORD", {at(handle), at(Fixed::block_record_table), "AcDbBlockTableRecord", name});
    tags.handle(340, at(layout));
    if (form.version >= DxfVersion::r2007) tags.lines("70\n6\n280\n1\n281\n0\n");
  };
  block(Fixed::model_space, "*Model_Space", Fixed::model_layout);
  block(Fixed::paper_space, "*Paper_Space", Fixed::paper_layout);
  end_table(tags);
}

void write_block(TagWriter& tags, std::string_view name, Fixed record, Fixed begin, Fixed end, bool paper) {
  const auto common = [&](std::string_view kind, Fixed handle) {
    tags.text(0, kind);
    tags.handle(5, at(handle));
    tags.handle(330, at(record));
    tags.lines("100\nAcDbEntity\n");
    if (paper) tags.lines("67\n1\n");
    tags.lines("8\n0\n");
  };
  common("BLOCK", begin);
  tags.lines("100\nAcDbBlockBegin\n");
  tags.text(2, name);
  tags.lines("70\n0\n10\n0.0\n20\n0.0\n30\n0.0\n");
  tags.text(3, name);
  tags.lines("1\n\n");
  common("ENDBLK", end);
  tags.lines("100\nAcDbBlockEnd\n");
}

}  // namespace

Extents extents_of(const Drawing& drawing) {
  if (drawing.entity_count() == 0) return {{0.0, 0.0, 0.0}, {1.0, 1.0, 0.0}};
  constexpr double kBeyond = std::numeric_limits<double>::infinity();
  Extents extents{{kBeyond, kBeyond, kBeyond}, {-kBeyond, -kBeyond, -kBeyond}};
  const auto widen = [](double value, double& smallest, double& largest) {
    smallest = std::min(smallest, value);
    largest = std::max(largest, value);
  };
  drawing.for_each_entity([&](Handle, const auto& geometry) {
    widen(geometry.position.x, extents.smallest.x, extents.largest.x);
    widen(geometry.position.y, extents.smallest.y, extents.largest.y);
    widen(geometry.position.z, extents.smallest.z, extents.largest.z);
  });
  return extents;
}

std::vector<LayerRecord> layers_of(const Drawing& drawing, const Layers& layers) {
  std::vector<LayerRecord> records;
  const auto add = [&records](Fixed handle, std::string_view name, int colour) {
    const bool is_there = name == "0" || std::any_of(records.begin(), records.end(), [name](const LayerRecord& record) {
                            return text::equal_ascii_case(record.name, name);
                          });
    if (!is_there) records.push_back({at(handle), name, colour});
  };
  if (drawing.entity_count() == 0) return records;
  add(Fixed::layer_points, layers.points, kForeground);
  add(Fixed::layer_labels, layers.labels, kGreen);
  if (drawing.height_count() > 0) add(Fixed::layer_heights, layers.heights, kOrange);
  return records;
}

void write_header(TagWriter& tags, const NewDrawing& file) {
  begin_section(tags, "HEADER");
  tags.lines("9\n$ACADVER\n");
  tags.text(1, "AC" + std::to_string(static_cast<int>(file.form.version)));
  tags.lines("9\n$DWGCODEPAGE\n");
  tags.text(3, file.code_page);
  tags.lines("9\n$INSBASE\n10\n0.0\n20\n0.0\n30\n0.0\n9\n$EXTMIN\n");
  tags.position(10, file.extents.smallest);
  tags.lines("9\n$EXTMAX\n");
  tags.position(10, file.extents.largest);
  tags.lines("9\n$LUNITS\n70\n2\n9\n$LUPREC\n70\n3\n9\n$PDMODE\n");  // decimal, millimetres shown
  tags.whole(70, file.drawing.variables.PDMODE);
  tags.lines("9\n$PDSIZE\n");
  tags.real(40, file.drawing.variables.PDSIZE);
  tags.lines("9\n$MEASUREMENT\n70\n1\n9\n$INSUNITS\n70\n6\n9\n$HANDSEED\n");  // metric, metres
  tags.handle(5, file.drawing.next_handle());
  end_section(tags);
}

void write_classes(TagWriter& tags, const NewDrawing& file) {
  begin_section(tags, "CLASSES");
  const auto object_class = [&](std::string_view record, std::string_view class_name, int instances) {
    tags.lines("0\nCLASS\n");
    tags.text(1, record);
    tags.text(2, class_name);
    tags.lines("3\nObjectDBX Classes\n90\n0\n");
    if (file.form.version >= DxfVersion::r2004) tags.whole(91, instances);
    tags.lines("280\n0\n281\n0\n");
  };
  object_class("ACDBDICTIONARYWDFLT", "AcDbDictionaryWithDefault", 1);
  object_class("ACDBPLACEHOLDER", "AcDbPlaceHolder", 1);
  object_class("LAYOUT", "AcDbLayout", 2);
  end_section(tags);
}

void write_tables(TagWriter& tags, const NewDrawing& file) {
  const DxfForm& form = file.form;
  begin_section(tags, "TABLES");
  write_viewport_table(tags, form, file.extents);
  write_line_type_table(tags, form);
  write_layer_table(tags, file);
  write_style_table(tags, file);
  begin_table(tags, form, "VIEW", at(Fixed::view_table), 0);
  end_table(tags);
  begin_table(tags, form, "UCS", at(Fixed::ucs_table), 0);
  end_table(tags);
  write_application_table(tags, form);
  write_dimension_style_table(tags, form);
  write_block_record_table(tags, form);
  end_section(tags);
}

void write_blocks(TagWriter& tags) {
  begin_section(tags, "BLOCKS");
  write_block(tags, "*Model_Space", Fixed::model_space, Fixed::model_space_block, Fixed::model_space_endblk, false);
  write_block(tags, "*Paper_Space", Fixed::paper_space, Fixed::paper_space_block, Fixed::paper_space_endblk, true);
  end_section(tags);
}

}  // namespace console
