// The module loaded into the console's own host, with text streams where a terminal would be.
#pragma once

#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "console/dialogue/dialogue.h"
#include "console/drawing/database.h"
#include "console/sibling_registry.h"
#include "vexo_xyz_impl/bindings.h"
#include "vexo_xyz_impl/command/module.h"

namespace testing_support {

/// A file that lives as long as the object.
class TemporaryFile {
 public:
  TemporaryFile(const std::string& name, std::string_view bytes) {
    std::string folder = (std::filesystem::temp_directory_path() / "vexo-test-XXXXXX").string();
    folder_ = mkdtemp(folder.data());
    path_ = folder_ / name;
    std::ofstream(path_, std::ios::binary) << bytes;
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile() { std::filesystem::remove_all(folder_); }
  [[nodiscard]] std::string path() const { return path_.string(); }

 private:
  std::filesystem::path folder_;
  std::filesystem::path path_;
};

/// Takes failure notices instead of writing them to the user's log.
class NoNotices final : public vexo_xyz_impl::host::Notices {
  void zdarzenie(std::string_view /*name*/) override {}
  void blad(std::string_view /*name*/, const std::exception& /*failure*/) override {}
};

/// A catalogue made of the pairs given; every other key has no entry.
class OwnTexts final : public vexo_xyz_impl::host::Texts {
 public:
  explicit OwnTexts(std::map<std::string, std::string, std::less<>> texts = {}) : texts_(std::move(texts)) {}
  [[nodiscard]] std::string T(std::string_view key) const override {
    const auto found = texts_.find(key);
    return found == texts_.end() ? std::string(key) : found->second;
  }

 private:
  std::map<std::string, std::string, std::less<>> texts_;
};

class ConsoleHost : public vexo_xyz_impl::host::CommandTable {
 public:
  explicit ConsoleHost(const std::string& market = "PL", const std::string& typed = "",
                       std::optional<std::string> file = std::nullopt)
      : in(typed),
        lines(console::lines_of_stream(in, out)),
        dialogue(*lines, out, database.drawing().variables, std::move(file), {}) {
    siblings = console::family(database, {market, "PL"});
    siblings.add("vexo_boot", std::make_shared<NoNotices>());
  }

  /// Loads the module and enters it; siblings may be changed before.
  void load() {
    entered.emplace(vexo_xyz_impl::Bindings{{dialogue, database, siblings}, vexo_xyz_impl::bind_siblings(siblings)});
    vexo_xyz_impl::register_command(*this);
  }

  void command(std::string_view local_name, std::string_view global_name, std::string_view group_name,
               vexo_xyz_impl::host::CommandFunction function) override {
    EXPECT_EQ(local_name, "VEXO_XYZ");
    EXPECT_EQ(global_name, "VEXO_XYZ");
    EXPECT_EQ(group_name, "VEXO");
    import = std::move(function);
  }

  [[nodiscard]] std::vector<console::PointGeometry> points() { return geometries<console::PointGeometry>(); }
  [[nodiscard]] std::vector<console::TextGeometry> labels() { return geometries<console::TextGeometry>(); }

  std::istringstream in;
  std::ostringstream out;
  console::Database database;
  std::unique_ptr<console::LineSource> lines;
  console::Dialogue dialogue;
  console::SiblingRegistry siblings;
  vexo_xyz_impl::host::CommandFunction import;
  std::optional<vexo_xyz_impl::Entered> entered;

 private:
  template <class Geometry>
  std::vector<Geometry> geometries() {
    std::vector<Geometry> found;
    database.drawing().for_each_entity([&](console::Handle, const auto& geometry) {
      if constexpr (std::is_same_v<decltype(geometry), const Geometry&>) found.push_back(geometry);
    });
    return found;
  }
};

}  // namespace testing_support
