#include "python/host_names.h"

#include "python/exceptions.h"
#include "python/values.h"

namespace scripting {

namespace py = pybind11;

namespace {

// What `from module import *` would bring.
py::list exported_names(const py::module_& module) {
  // NOLINTNEXTLINE(modernize-return-braced-init-list): that would be a list in a list
  if (py::hasattr(module, "__all__")) return py::list(module.attr("__all__"));
  py::list names;
  for (const py::handle name : py::list(module.attr("__dict__"))) {
    if (!from_script(name).starts_with('_')) names.append(name);
  }
  return names;
}

}  // namespace

HostNames::HostNames() {
  for (const char* binding : kBindingModules) {
    const py::module_ loaded = py::module_::import(binding);
    for (const py::handle name : exported_names(loaded)) {
      names_.insert_or_assign(from_script(name), py::object(loaded.attr(py::reinterpret_borrow<py::str>(name))));
    }
  }
}

const py::object& HostNames::operator[](std::string_view name) const {
  const auto found = names_.find(name);
  if (found != names_.end()) return found->second;
  throw vexo_xyz_impl::Failure("NameError", "name '" + std::string(name) + "' is not defined by the host");
}

}  // namespace scripting
