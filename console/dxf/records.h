// Records of tables and objects of the kinds that an import adds, as new drawings and existing ones have them.
#pragma once

#include <span>
#include <string_view>
#include <utility>

#include "console/drawing/drawing.h"
#include "console/dxf/form.h"
#include "console/dxf/sections.h"
#include "console/dxf/tag_writer.h"

namespace console {

struct RecordHead {
  Handle handle;
  Handle table;
  std::string_view subclass;
  std::string_view name;  ///< in the file's letters
};

/// The part that all records of symbol tables share; `handle_code` is 105 in DIMSTYLE and 5 elsewhere.
void begin_record(TagWriter& tags, const DxfForm& form, std::string_view kind, const RecordHead& head,
                  int handle_code = 5);

/// A pointer of a layer's, to a plot style or a material, under its group code.
using LayerPointer = std::pair<int, Handle>;

void write_layer(TagWriter& tags, const DxfForm& form, const LayerRecord& layer, Handle table,
                 std::span<const LayerPointer> pointers);
void write_style(TagWriter& tags, const DxfForm& form, const TextStyle& style, Handle table);
void write_application(TagWriter& tags, const DxfForm& form, Handle handle, std::string_view name, Handle table);

/// A table up to its records; `table` is 0 in versions without handles of tables.
void begin_table(TagWriter& tags, const DxfForm& form, std::string_view name, Handle table, std::size_t records);

/// The beginning of an object: handle, owner, and the owner's watching it. The owner of the root dictionary is 0.
void begin_owned(TagWriter& tags, const DxfForm& form, std::string_view kind, Handle handle, Handle owner);

/// A dictionary up to its entries.
void begin_dictionary(TagWriter& tags, const DxfForm& form, Handle dictionary, Handle owner,
                      std::string_view kind = "DICTIONARY");
void write_entry(TagWriter& tags, std::string_view name, Handle object, int code = 350);

void write_group(TagWriter& tags, const DxfForm& form, const Group& group, Handle dictionary);

}  // namespace console
