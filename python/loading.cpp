#include "python/loading.h"

#include <string>
#include <utility>

#include <pybind11/eval.h>

#include "python/exceptions.h"
#include "python/siblings.h"
#include "python/values.h"

namespace scripting {

namespace py = pybind11;

namespace {

// A function without arguments as a script would write it: hosts decorate it, ask for its signature, set attributes.
py::object plain_function(const py::cpp_function& run) {
  py::dict space;
  space["__builtins__"] = py::module_::import("builtins");
  space["__name__"] = "vexo_xyz_impl";
  py::exec(R"(
def make(run):
    def importxyz():
        """Reads a file of coordinates and inserts points and labels with their numbers."""
        run()
    importxyz.__qualname__ = "importxyz"
    return importxyz
)",
           space);
  return space.attr("pop")("make")(run);
}

}  // namespace

void Loading::own_folder_first() {
  calling_script([&] {
    const py::module_ paths = py::module_::import("os.path");
    const py::object folder = paths.attr("dirname")(paths.attr("abspath")(importer_.attr("__file__")));
    py::module_::import("sys").attr("path").attr("insert")(0, folder);
  });
}

std::shared_ptr<host::SiblingModule> Loading::load(std::string_view name) {
  return calling_script([&]() -> std::shared_ptr<host::SiblingModule> {
    const std::string own(name);
    const py::module_ loaded = py::module_::import(own.c_str());
    if (name == "vexo_teksty") {
      const py::object T = loaded.attr("T");
      importer_.attr("T") = T;
      return std::make_shared<ScriptTexts>(T);
    }
    if (name == "vexo_cad_core") {
      auto styling = std::make_shared<ScriptStyling>(loaded);
      importer_.attr("_nadaj_styl_pl") = loaded.attr("nadaj_styl_pl");
      return styling;
    }
    if (name == "vexo_rynek") {
      importer_.attr("_rynek") = loaded;
      importer_.attr("_il") = py::module_::import("importlib");
      return std::make_shared<ScriptMarketChoice>(importer_, loaded);
    }
    if (!name.starts_with("vexo_xyz_dane_"))
      throw vexo_xyz_impl::ImportError("nothing is known of module '" + own + "'");
    importer_.attr("_D") = loaded;
    return std::make_shared<ScriptMarket>(loaded);
  });
}

void Loading::command(std::string_view local_name, std::string_view global_name, std::string_view group_name,
                      host::CommandFunction function) {
  calling_script([&] {
    const py::cpp_function run([module = module_, function = std::move(function)] {
      const Run whole(module);
      function();
    });
    const py::object registration = module_->names["command"](py::arg("local_name") = to_script(local_name),
                                                              py::arg("global_name") = to_script(global_name),
                                                              py::arg("group_name") = to_script(group_name));
    importer_.attr("importxyz") = registration(plain_function(run));
  });
}

}  // namespace scripting
