// What an edit of an existing drawing must know of its bytes: where things stand and which names and handles are taken.
//
// One pass over the tags finds it. Everything that is not looked for, whatever it is, is passed over as long as tags
// are tags and sections end.
#pragma once

#include <array>
#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "console/drawing/column.h"
#include "console/drawing/drawing.h"
#include "console/dxf/tag_reader.h"

namespace console {

/// In the order in which a file has them.
inline constexpr std::array<std::string_view, 8> kSections = {"HEADER",   "CLASSES", "TABLES",   "BLOCKS",
                                                              "ENTITIES", "OBJECTS", "ACDSDATA", "THUMBNAILIMAGE"};
inline constexpr std::array<std::string_view, 9> kTables = {"VPORT", "LTYPE", "LAYER",    "STYLE",       "VIEW",
                                                            "UCS",   "APPID", "DIMSTYLE", "BLOCK_RECORD"};

/// Names that letter case does not tell apart.
struct NoCase {
  using is_transparent = void;
  bool operator()(std::string_view one, std::string_view other) const;
};
using Names = std::set<std::string, NoCase>;

/// Offsets in a section or a table: of its first tag, of what it holds, and of the tag that ends it.
struct Stretch {
  std::size_t begin = 0;
  std::size_t first = 0;
  std::size_t end = 0;
};

struct TableOutline : Stretch {
  Handle handle = 0;
  Names names;
  std::size_t records = 0;
  std::optional<Tag> count;  ///< the 70 that says how many records there are
};

struct DictionaryEntry {
  std::string_view name;
  Tag pointer;
};

struct DictionaryOutline {
  Handle handle = 0;
  std::vector<DictionaryEntry> entries;
  int entry_code = 350;         ///< what its entries point with
  std::size_t entries_end = 0;  ///< where one more goes

  /// The entry of that name, letter case aside; null where there is none.
  [[nodiscard]] const DictionaryEntry* entry(std::string_view name) const;
};

struct Outline {
  int version = 1009;  ///< the number of $ACADVER; files that tell none are read as such
  bool crlf = false;
  Handle first_free = 1;                                ///< above every handle and not below $HANDSEED
  std::size_t begin = 0;                                ///< offset of the first section
  std::size_t end = 0;                                  ///< offset of the EOF tag
  std::map<std::string_view, std::vector<Tag>> header;  ///< the values of each variable
  std::map<std::string_view, Stretch> sections;
  std::map<std::string_view, TableOutline> tables;
  Handle model_space = 0;                   ///< its block record; 0: none
  std::vector<Tag> plot_styles;             ///< 390 and 347 of layer 0
  Names hidden_layers;                      ///< off or frozen
  std::optional<DictionaryOutline> root;    ///< the dictionary that holds the named ones
  std::optional<Tag> groups_entry;          ///< the root's pointer to the dictionary of groups
  std::optional<DictionaryOutline> groups;  ///< none: no such object
  std::optional<Tag> control_entry;         ///< likewise, of the register of imported points
  std::optional<DictionaryOutline> control;
  Column<PlanPoint> places;  ///< what model space holds

  /// The value of a header variable that has one; null where there is none.
  [[nodiscard]] const Tag* variable(std::string_view name) const;
};

/// Throws DrawingFault. The bytes outlive the outline, which holds views of them.
[[nodiscard]] Outline outline_of(std::string_view bytes);

}  // namespace console
