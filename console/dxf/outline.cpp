#include "console/dxf/outline.h"

#include <algorithm>
#include <utility>

#include "console/dxf/dictionaries.h"
#include "console/dxf/drawing_fault.h"
#include "console/dxf/model_places.h"
#include "vexo_xyz_impl/text/ascii.h"

namespace console {
namespace {

constexpr int kVersionUntold = 1009;
constexpr Handle kGreatestHandle = 0x7FFF'FFFF'0000'0000U;  // some programs' handles have a sign

template <std::size_t n>
std::string_view known_among(const std::array<std::string_view, n>& names, const Tag& tag) {
  const auto found = std::find_if(names.begin(), names.end(), [&tag](std::string_view name) { return tag.says(name); });
  return found == names.end() ? std::string_view() : *found;
}

class OutlineReader {
 public:
  explicit OutlineReader(std::string_view bytes) : bytes_(bytes), reader_(bytes) {}

  Outline read() {
    begin_file();
    while (!is_mark("EOF")) {
      if (!is_mark("SECTION")) fail(Damage::out_of_place);
      read_section();
    }
    outline_.end = tag_.begin;
    if (const auto objects = outline_.sections.find("OBJECTS"); objects != outline_.sections.end())
      find_dictionaries(bytes_, objects->second, outline_);
    return std::move(outline_);
  }

 private:
  [[noreturn]] void fail(Damage damage) const { throw DrawingFault(damage, reader_.line()); }

  // Comments say nothing to programs, wherever they stand.
  void advance() {
    do {
      if (!reader_.next(tag_)) fail(Damage::cut_short);
    } while (tag_.code == 999);
  }

  [[nodiscard]] bool is_mark(std::string_view text) const { return tag_.code == 0 && tag_.says(text); }

  // Bytes that do not begin with a section are something else.
  void begin_file() {
    const std::size_t end = bytes_.find('\n');
    outline_.crlf = end != std::string_view::npos && end > 0 && bytes_[end - 1] == '\r';
    try {
      advance();
    } catch (const DrawingFault&) {
      throw DrawingFault(Damage::no_drawing, 0);
    }
    if (!is_mark("SECTION")) throw DrawingFault(Damage::no_drawing, 0);
    outline_.begin = tag_.begin;
  }

  void read_section() {
    const std::size_t begin = tag_.begin;
    advance();
    if (tag_.code != 2) fail(Damage::out_of_place);
    const std::string_view name = known_among(kSections, tag_);
    if (!name.empty() && outline_.sections.contains(name)) fail(Damage::out_of_place);
    advance();
    const std::size_t first = tag_.begin;
    if (name == "HEADER") {
      read_header();
    } else if (name == "TABLES") {
      read_tables();
    } else if (name == "ENTITIES") {
      read_entities();
    } else {
      while (tag_.code != 0) advance();
      while (!ends("ENDSEC")) read_record(5, [](const Tag&) {});
    }
    if (!name.empty()) outline_.sections[name] = {begin, first, tag_.begin};
    advance();
  }

  // Whether the tag ends what is read; what may not stand in it is a fault.
  [[nodiscard]] bool ends(std::string_view mark) const {
    if (is_mark(mark)) return true;
    if (is_mark("SECTION") || is_mark("EOF") || is_mark("ENDSEC")) fail(Damage::out_of_place);
    return false;
  }

  // Reads the record whose first tag was read; leaves the one behind it.
  template <class Visit>
  Handle read_record(int handle_code, Visit visit) {
    Handle own = 0;
    for (advance(); tag_.code != 0; advance()) {
      if (tag_.code == handle_code && own == 0) own = note_handle();
      visit(std::as_const(tag_));
    }
    return own;
  }

  // What the tag says as a handle; new ones are above it, or from it on where it is the seed.
  Handle note_handle(bool is_seed = false) {
    const Handle handle = tag_.handle().value_or(0);
    if (handle > kGreatestHandle) fail(Damage::no_handles);
    outline_.first_free = std::max(outline_.first_free, is_seed ? handle : handle + 1);
    return handle;
  }

  void read_header() {
    std::string_view name;
    for (; !ends("ENDSEC"); advance()) {
      if (tag_.code == 0) fail(Damage::out_of_place);  // tables, after a lost end of the header
      if (tag_.code == 9) {
        name = tag_.trimmed();
        continue;
      }
      outline_.header[name].push_back(tag_);
      if (name == "$HANDSEED") note_handle(true);
      if (name == "$ACADVER") outline_.version = version_of(tag_.trimmed());
    }
  }

  static int version_of(std::string_view text) {
    if (!text.starts_with("AC")) return kVersionUntold;
    const auto version = whole_in(text.substr(2));
    return version && *version <= 9999 ? static_cast<int>(*version) : kVersionUntold;
  }

  void read_tables() {
    while (!ends("ENDSEC")) {
      if (!is_mark("TABLE")) fail(Damage::out_of_place);
      read_table();
    }
  }

  void read_table() {
    TableOutline table;
    table.begin = tag_.begin;
    std::string_view name;
    table.handle = read_record(5, [&](const Tag& tag) {
      if (tag.code == 2 && name.empty()) name = known_among(kTables, tag);
      if (tag.code == 70 && !table.count) table.count = tag;
    });
    // In records of dimension styles 5 is the name of a block.
    const int handle_code = name == "DIMSTYLE" ? 105 : 5;
    for (; !ends("ENDTAB"); ++table.records) {
      const bool is_layer = is_mark("LAYER");
      std::string_view record;
      std::vector<Tag> plot_styles;
      bool is_hidden = false;
      const Handle handle = read_record(handle_code, [&](const Tag& tag) {
        if (tag.code == 2 && record.empty()) record = tag.trimmed();
        if (is_layer && (tag.code == 390 || tag.code == 347)) plot_styles.push_back(tag);
        if (is_layer && (tag.code == 62 || tag.code == 70)) is_hidden = is_hidden || hides_layer(tag);
      });
      if (is_hidden) outline_.hidden_layers.emplace(record);
      if (is_layer && record == "0") outline_.plot_styles = plot_styles;
      if (name == "BLOCK_RECORD" && vexo_xyz_impl::text::equal_ascii_case(record, "*Model_Space"))
        outline_.model_space = handle;
      table.names.emplace(record);
    }
    table.end = tag_.begin;
    advance();
    if (!name.empty()) outline_.tables.emplace(name, std::move(table));
  }

  // A negative colour turns a layer off, the first bit of its flags freezes it.
  static bool hides_layer(const Tag& tag) {
    const long long value = tag.whole().value_or(0);
    return tag.code == 62 ? value < 0 : (static_cast<unsigned long long>(value) & 1U) != 0;
  }

  void read_entities() {
    ModelPlaces places(outline_.places);
    while (!ends("ENDSEC")) {
      places.begin(tag_.trimmed());
      read_record(5, [&places](const Tag& tag) { places.tag(tag); });
      places.end();
    }
  }

  std::string_view bytes_;
  TagReader reader_;
  Tag tag_;
  Outline outline_;
};

}  // namespace

bool NoCase::operator()(std::string_view one, std::string_view other) const {
  return std::lexicographical_compare(one.begin(), one.end(), other.begin(), other.end(), [](char a, char b) {
    return vexo_xyz_impl::text::ascii_lower(a) < vexo_xyz_impl::text::ascii_lower(b);
  });
}

const DictionaryEntry* DictionaryOutline::entry(std::string_view name) const {
  const auto found = std::find_if(entries.begin(), entries.end(), [name](const DictionaryEntry& one) {
    return vexo_xyz_impl::text::equal_ascii_case(one.name, name);
  });
  return found == entries.end() ? nullptr : &*found;
}

const Tag* Outline::variable(std::string_view name) const {
  const auto found = header.find(name);
  return found == header.end() || found->second.empty() ? nullptr : &found->second.front();
}

Outline outline_of(std::string_view bytes) {
  if (bytes.starts_with("AutoCAD Binary DXF")) throw DrawingFault(Damage::binary, 0);
  const bool is_dwg = bytes.size() >= 6 && bytes.starts_with("AC10") &&
                      std::all_of(bytes.begin() + 4, bytes.begin() + 6, [](char c) { return c >= '0' && c <= '9'; });
  if (is_dwg) throw DrawingFault(Damage::dwg, 0);
  return OutlineReader(bytes).read();
}

}  // namespace console
