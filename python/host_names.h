// What the CAD host offers by name.
//
// Names are looked up once, when the module is loaded, in pygcad.core, pygcad.core.runtime and pygcad.pygrx; on a clash
// the later module wins. A name that the host lacks fails with NameError where it is used.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

#include <pybind11/pybind11.h>

namespace scripting {

/// The host's modules; on a clash of names the later one wins.
inline constexpr std::array kBindingModules = {"pygcad.core", "pygcad.core.runtime", "pygcad.pygrx"};

class HostNames {
 public:
  /// Imports the host's modules; fails with the script's exception when one is missing.
  HostNames();

  /// The host's object of that name.
  [[nodiscard]] const pybind11::object& operator[](std::string_view name) const;

 private:
  struct Hash : std::hash<std::string_view> {
    using is_transparent = void;
  };
  std::unordered_map<std::string, pybind11::object, Hash, std::equal_to<>> names_;
};

}  // namespace scripting
