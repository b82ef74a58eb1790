// The module loaded into the console's own host, with text streams where a terminal would be.
#pragma once

#include <exception>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "console/dialogue/dialogue.h"
#include "console/drawing/database.h"
#include "console/sibling_registry.h"
#include "vexo_xyz_impl/bindings.h"
#include "vexo_xyz_impl/command/module.h"

namespace testing_support {

/// Takes failure notices instead of writing them to the user's log.
class NoNotices final : public vexo_xyz_impl::host::Notices {
  void zdarzenie(std::string_view /*name*/) override {}
  void blad(std::string_view /*name*/, const std::exception& /*failure*/) override {}
};

/// A catalogue made of the pairs given; every other key has no entry.
class OwnTexts final : public vexo_xyz_impl::host::Texts {
 public:
  explicit OwnTexts(std::map<std::string, std::string, std::less<>> texts) : texts_(std::move(texts)) {}
  [[nodiscard]] std::string T(std::string_view key) const override {
    const auto found = texts_.find(key);
    return found == texts_.end() ? std::string(key) : found->second;
  }

 private:
  std::map<std::string, std::string, std::less<>> texts_;
};

struct ConsoleHost {
  explicit ConsoleHost(const std::string& typed = "")
      : in(typed),
        lines(console::lines_of_stream(in, out)),
        dialogue(*lines, out, database.drawing().variables, std::nullopt, {}) {
    siblings = console::family(database, {"PL", "PL"});
    siblings.add("vexo_boot", std::make_shared<NoNotices>());
  }

  /// Binds the siblings, which may be changed before, and enters the module.
  void load() {
    entered.emplace(vexo_xyz_impl::Bindings{{dialogue, database, siblings}, vexo_xyz_impl::bind_siblings(siblings)});
  }

  std::istringstream in;
  std::ostringstream out;
  console::Database database;
  std::unique_ptr<console::LineSource> lines;
  console::Dialogue dialogue;
  console::SiblingRegistry siblings;
  std::optional<vexo_xyz_impl::Entered> entered;
};

}  // namespace testing_support
