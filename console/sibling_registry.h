// The siblings that the stand-alone program brings along, by name.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "console/drawing/database.h"
#include "vexo_xyz_impl/host/siblings.h"

namespace console {

class SiblingRegistry final : public vexo_xyz_impl::host::SiblingLoader {
 public:
  /// Adds a sibling, in the place of an earlier one of that name.
  void add(std::string name, std::shared_ptr<vexo_xyz_impl::host::SiblingModule> module);

  [[nodiscard]] bool has(std::string_view name) const { return modules_.contains(name); }

  void own_folder_first() override {}  // nothing is looked up on a disk
  std::shared_ptr<vexo_xyz_impl::host::SiblingModule> load(std::string_view name) override;

 private:
  std::map<std::string, std::shared_ptr<vexo_xyz_impl::host::SiblingModule>, std::less<>> modules_;
};

/// What the user chose; empty leaves it to the environment, and to the market for the language.
struct Choice {
  std::string market;    ///< "PL", "DE", "RO"
  std::string language;  ///< "PL", "DE", "RO", "EN"
};

/// The whole family, working on `database`, which tells whether its groups are selectable.
[[nodiscard]] SiblingRegistry family(Database& database, const Choice& choice);

}  // namespace console
