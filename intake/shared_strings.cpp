#include "intake/shared_strings.h"

#include <charconv>
#include <utility>

#include "intake/xml.h"
#include "vexo_xyz_impl/failure.h"
#include "vexo_xyz_impl/input/workbook_reader.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace intake {
namespace {

constexpr std::size_t kEscape = 7;  // bytes of "_x000D_"

class StringTable final : public XmlHandler {
 public:
  int start(int parent, const XmlElement& element) override {
    if (parent == kDocument) return kTable;
    if (parent == kTable && element.name == "si") return kItem;
    if (parent == kItem && element.name == "r") return kRun;
    return (parent == kItem || parent == kRun) && element.name == "t" ? kText : kIgnored;
  }

  void characters(int state, std::string_view characters) override {
    if (state != kText) return;
    text.append(characters);
  }

  bool end(int state) override {
    if (state != kItem) return false;
    if (ends.size() == vexo_xyz_impl::kMostCells) {
      throw vexo_xyz_impl::MemoryError("too many texts in the workbook; keep the points alone in it");
    }
    const std::size_t begin = ends.empty() ? 0 : ends.back();
    if (text.find("_x", begin) != std::string::npos) {
      const std::string plain = without_escapes(std::string_view(text).substr(begin));
      text.resize(begin);
      text += plain;
    }
    ends.push_back(text.size());
    return false;
  }

  std::string text;
  std::vector<std::size_t> ends;

 private:
  enum { kTable = 1, kItem, kRun, kText };
};

}  // namespace

std::string without_escapes(std::string_view text) {
  std::string plain;
  while (!text.empty()) {
    unsigned character = 0;
    const char* const digits = text.data() + 2;
    const bool escape = text.size() >= kEscape && text.starts_with("_x") && text[kEscape - 1] == '_' &&
                        std::from_chars(digits, digits + 4, character, 16).ptr == digits + 4 &&
                        (character < 0xD800 || character > 0xDFFF);
    if (escape) {
      vexo_xyz_impl::text::append(plain, character);
      text.remove_prefix(kEscape);
    } else {
      plain += text.front();
      text.remove_prefix(1);
    }
  }
  return plain;
}

SharedStrings::SharedStrings(const std::string& member, std::span<const char> xml) {
  StringTable table;
  parse_xml(member, xml, table);
  text_ = std::move(table.text);
  ends_ = std::move(table.ends);
}

std::optional<std::string_view> SharedStrings::find(std::string_view index) const {
  std::size_t at = 0;
  const std::string_view digits = vexo_xyz_impl::text::trim(index);
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), at);
  if (error != std::errc() || end != digits.data() + digits.size() || at >= ends_.size()) return std::nullopt;
  const std::size_t begin = at == 0 ? 0 : ends_[at - 1];
  return std::string_view(text_).substr(begin, ends_[at] - begin);
}

}  // namespace intake
