// The parts of an office document's package: found by relationships, whatever their names are.
//
// Names are compared as people's programs write them: letters of either case, either slash.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "vexo_xyz_impl/input/package.h"

namespace intake {

struct Relationship {
  std::string id;
  std::string type;    ///< the last word of its address, such as "worksheet"
  std::string member;  ///< the member it names, empty when there is none
};

class PackageParts {
 public:
  /// Opens the package; fails as `vexo_xyz_impl::Package` does.
  explicit PackageParts(const std::string& path);

  /// The member's own name; empty when there is none.
  [[nodiscard]] std::string member(std::string_view name) const;
  [[nodiscard]] std::vector<std::string_view> names() const { return package_.names(); }

  /// What the member relates to, in the order of its list; "" stands for the package itself. Fails as `xml` and
  /// `parse_xml` do.
  [[nodiscard]] std::vector<Relationship> related(std::string_view member);

  /// The XML of a member, ready for the parser: what is no UTF-8 is mended where UTF-8 is due. Fails as
  /// `vexo_xyz_impl::Package::read` does.
  [[nodiscard]] std::vector<char> xml(std::string_view member);

  [[nodiscard]] const vexo_xyz_impl::Package& package() const { return package_; }

 private:
  vexo_xyz_impl::Package package_;
  std::map<std::string, std::string, std::less<>> members_;  // by the name that is compared
};

}  // namespace intake
