// The sections of a DXF file, in the order in which a file has them, and what edits of a file write of them.
#pragma once

#include <string_view>
#include <vector>

#include "console/drawing/drawing.h"
#include "console/drawing/wishes.h"
#include "console/dxf/form.h"
#include "console/dxf/tag_writer.h"

namespace console {

/// The box around all entities' positions; a unit square at the origin for a drawing without any.
struct Extents {
  Position smallest;
  Position largest;
};

[[nodiscard]] Extents extents_of(const Drawing& drawing);

/// How and where entities are written.
struct EntityPlaces {
  const DxfForm& form;
  const Layers& layers;
  Handle model_space;  ///< their owner, in versions that have owners; 0: there is none
};

/// The drawing's entities, without the section around them. Handles rise.
void write_entities(TagWriter& tags, const Drawing& drawing, const EntityPlaces& places);

/// A layer's name and what shows it apart from others.
struct LayerRecord {
  Handle handle;
  std::string_view name;
  int colour;  ///< by number
};

/// The layers that the drawing's entities stand on, each once, letter case aside; "0", which all drawings have, is not
/// among them. Their handles are those of new drawings.
[[nodiscard]] std::vector<LayerRecord> layers_of(const Drawing& drawing, const Layers& layers);

/// Dictionaries in the root one: of groups, and of lists of points under control.
inline constexpr std::string_view kGroupDictionary = "ACAD_GROUP";
inline constexpr std::string_view kControlDictionary = "VEXO_KONTROLA";

/// The name of this drawing's list.
[[nodiscard]] std::string_view control_list_name(const Drawing& drawing);

/// The list of an import's points under control, for the dictionary of that handle: by it points are missed that are
/// no longer in the drawing.
void write_control_list(TagWriter& tags, const Drawing& drawing, const DxfForm& form, Handle list, Handle dictionary);

/// What the sections of a new drawing are written of.
struct NewDrawing {
  const Drawing& drawing;
  const DxfForm& form;
  const Layers& layers;
  std::string_view code_page;
  Extents extents;
};

void write_header(TagWriter& tags, const NewDrawing& file);
void write_classes(TagWriter& tags, const NewDrawing& file);
void write_tables(TagWriter& tags, const NewDrawing& file);
void write_blocks(TagWriter& tags);
void write_objects(TagWriter& tags, const NewDrawing& file);

}  // namespace console
