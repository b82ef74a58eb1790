#include "intake/workbook_part.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string_view>
#include <utility>

#include "intake/xml.h"

namespace intake {
namespace {

using Related = std::vector<Relationship>;

const Relationship* of_type(const Related& related, std::string_view type) {
  const auto found = std::find_if(related.begin(), related.end(), [type](const auto& one) { return one.type == type; });
  return found != related.end() ? &*found : nullptr;
}

// The member of the workbook's relationship, else the one of the usual name.
std::string member_of(const PackageParts& parts, const Related& related, std::string_view type,
                      std::string_view usual) {
  const Relationship* const named = of_type(related, type);
  return named != nullptr && !named->member.empty() ? named->member : parts.member(usual);
}

class SheetList final : public XmlHandler {
 public:
  SheetList(const PackageParts& parts, const Related& related) : parts_(parts), related_(related) {}

  int start(int parent, const XmlElement& element) override {
    const XmlAttributes& attributes = element.attributes;
    if (parent == kDocument) return kBook;
    if (parent == kBook && element.name == "workbookPr") from_1904 = is_true(attributes["date1904"]);
    if (parent == kBook && element.name == "bookViews") return kViews;
    if (parent == kBook && element.name == "sheets") return kSheets;
    if (parent == kViews && !active) active = number(attributes["activeTab"]);
    if (parent == kSheets && element.name == "sheet") add_sheet(attributes);
    return kIgnored;
  }

  std::vector<Sheet> sheets;
  std::optional<std::size_t> active;
  bool from_1904 = false;

 private:
  enum { kBook = 1, kViews, kSheets };

  static bool is_true(std::string_view value) { return value == "1" || value == "true"; }

  static std::size_t number(std::string_view text) {
    std::size_t number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
  }

  void add_sheet(const XmlAttributes& attributes) {
    Sheet& sheet = sheets.emplace_back();
    sheet.name = attributes["name"];
    sheet.place = sheets.size();
    sheet.hidden = attributes["state"] == "hidden" || attributes["state"] == "veryHidden";
    const char* const id = attributes.find_prefixed("id");
    const auto named = std::find_if(related_.begin(), related_.end(),
                                    [&](const Relationship& one) { return id != nullptr && one.id == id; });
    if (named == related_.end())
      sheet.member = parts_.member("xl/worksheets/sheet" + std::to_string(sheet.place) + ".xml");
    else if (named->type == "worksheet")
      sheet.member = named->member;
  }

  const PackageParts& parts_;
  const Related& related_;
};

// A package without a list of its sheets, as small programs write it: its worksheets by their names.
std::vector<Sheet> unlisted_sheets(const PackageParts& parts) {
  constexpr std::string_view kFolder = "xl/worksheets/";
  constexpr std::string_view kEnding = ".xml";
  std::vector<Sheet> sheets;
  for (const std::string_view name : parts.names()) {
    if (!name.starts_with(kFolder) || !name.ends_with(kEnding) || name.size() <= kFolder.size() + kEnding.size())
      continue;
    const std::string_view stem = name.substr(kFolder.size(), name.size() - kFolder.size() - kEnding.size());
    if (stem.find('/') == std::string_view::npos)
      sheets.push_back({std::string(stem), std::string(name), sheets.size() + 1, false});
  }
  return sheets;
}

}  // namespace

WorkbookPart read_workbook_part(PackageParts& parts) {
  WorkbookPart part;
  const std::string member = member_of(parts, parts.related(""), "officeDocument", "xl/workbook.xml");
  const Related related = member.empty() ? Related() : parts.related(member);
  SheetList list(parts, related);
  if (!member.empty()) parse_xml(member, parts.xml(member), list);
  part.sheets = member.empty() ? unlisted_sheets(parts) : std::move(list.sheets);
  part.active = list.active.value_or(0);
  part.dates_from_1904 = list.from_1904;
  part.strings = member_of(parts, related, "sharedStrings", "xl/sharedStrings.xml");
  part.styles = member_of(parts, related, "styles", "xl/styles.xml");
  return part;
}

}  // namespace intake
