#include "intake/package_parts.h"

#include <algorithm>
#include <cstddef>

#include "intake/xml.h"
#include "vexo_xyz_impl/text/ascii.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace intake {
namespace {

using namespace std::string_view_literals;

std::string compared(std::string_view name) {
  std::string form(name);
  for (char& c : form) c = c == '\\' ? '/' : vexo_xyz_impl::text::ascii_lower(c);
  return form.substr(std::min(form.size(), form.find_first_not_of('/')));
}

std::string_view folder_of(std::string_view member) {
  const std::size_t slash = member.find_last_of("/\\");
  return slash == std::string_view::npos ? std::string_view() : member.substr(0, slash + 1);
}

// A target as a name of the package: from its root, or from the folder of the part that names it.
std::string resolved(std::string_view folder, std::string_view target) {
  if (target.starts_with('/')) return std::string(target.substr(1));
  while (target.starts_with("./") || target.starts_with("../")) {
    if (target.starts_with("../")) folder = folder_of(folder.substr(0, folder.empty() ? 0 : folder.size() - 1));
    target.remove_prefix(target.find('/') + 1);
  }
  return std::string(folder).append(target);
}

class RelationshipList final : public XmlHandler {
 public:
  RelationshipList(const PackageParts& parts, std::string_view folder) : parts_(parts), folder_(folder) {}

  int start(int parent, const XmlElement& element) override {
    if (parent == kDocument) return kList;
    if (element.name == "Relationship" && element.attributes["TargetMode"] != "External") {
      const std::string_view type = element.attributes["Type"];
      found.push_back({std::string(element.attributes["Id"]), std::string(type.substr(type.rfind('/') + 1)),
                       parts_.member(resolved(folder_, element.attributes["Target"]))});
    }
    return kIgnored;
  }

  std::vector<Relationship> found;

 private:
  enum { kList = 1 };

  const PackageParts& parts_;
  std::string_view folder_;
};

bool names_its_encoding(std::string_view xml) {
  const std::string_view declaration = xml.substr(0, xml.find("?>"));
  const std::size_t encoding = declaration.find("encoding");
  return xml.starts_with("<?xml") && encoding != std::string_view::npos &&
         compared(declaration.substr(encoding)).find("utf-8") == std::string::npos;
}

bool is_utf16(std::string_view xml) {
  return xml.starts_with("\xFF\xFE") || xml.starts_with("\xFE\xFF") || xml.starts_with("<\0"sv) ||
         xml.starts_with("\0<"sv);
}

}  // namespace

PackageParts::PackageParts(const std::string& path) : package_(path) {
  for (const std::string_view name : package_.names()) members_.emplace(compared(name), name);
}

std::string PackageParts::member(std::string_view name) const {
  if (package_.has(name)) return std::string(name);
  const auto found = members_.find(compared(name));
  return found != members_.end() ? found->second : std::string();
}

std::vector<Relationship> PackageParts::related(std::string_view member) {
  const std::string_view folder = folder_of(member);
  const std::string list =
      this->member(std::string(folder) + "_rels/" + std::string(member.substr(folder.size())) + ".rels");
  if (list.empty()) return {};
  RelationshipList relationships(*this, folder);
  parse_xml(list, xml(list), relationships);
  return std::move(relationships.found);
}

std::vector<char> PackageParts::xml(std::string_view member) {
  std::vector<char> bytes = package_.read_bytes(member);
  const std::string_view text(bytes.data(), bytes.size());
  if (is_utf16(text) || names_its_encoding(text) || vexo_xyz_impl::text::is_valid(text)) return bytes;
  return vexo_xyz_impl::text::with_replacements(text, vexo_xyz_impl::text::size_with_replacements(text));
}

}  // namespace intake
