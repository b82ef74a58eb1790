// Loading the module for scripts: the siblings that are bound once, and the command.
#pragma once

#include <memory>
#include <string_view>

#include <pybind11/pybind11.h>

#include "python/run.h"
#include "vexo_xyz_impl/host/command_line.h"

namespace scripting {

/// Looks siblings up and makes what they offer attributes of the module being loaded, under the established names.
class Loading final : public host::SiblingLoader, public host::CommandTable {
 public:
  Loading(pybind11::module_ importer, std::shared_ptr<ScriptModule> module)
      : importer_(std::move(importer)), module_(std::move(module)) {}

  void own_folder_first() override;
  std::shared_ptr<host::SiblingModule> load(std::string_view name) override;

  /// Hands the host a function of its scripting layer's own kind, with a name, a module and attributes; what the host
  /// makes of it becomes `importxyz`.
  void command(std::string_view local_name, std::string_view global_name, std::string_view group_name,
               host::CommandFunction function) override;

 private:
  pybind11::module_ importer_;
  std::shared_ptr<ScriptModule> module_;
};

}  // namespace scripting
