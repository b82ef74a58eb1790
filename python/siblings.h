// Sibling modules found beside the extension as the boundary's roles.
#pragma once

#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <pybind11/pybind11.h>

#include "python/database.h"
#include "python/exceptions.h"
#include "python/host.h"

namespace scripting {

class ScriptTexts final : public host::Texts {
 public:
  explicit ScriptTexts(pybind11::object lookup) : lookup_(std::move(lookup)) {}

  [[nodiscard]] std::string_view T(std::string_view key) const override {
    const pybind11::gil_scoped_acquire lock;  // rows are interpreted while it is let go of
    return calling_script([&] { return std::string_view(*texts_.insert(from_script(lookup_(to_script(key)))).first); });
  }

 private:
  pybind11::object lookup_;
  mutable std::set<std::string> texts_;  // what was ever answered: views of it stay valid
};

class ScriptStyling final : public host::Styling {
 public:
  explicit ScriptStyling(pybind11::object style) : style_(std::move(style)) {}
  void nadaj_styl_pl(host::GcDbText& text) override {
    calling_script([&] { style_(object_of(text)); });
  }

 private:
  pybind11::object style_;
};

class ScriptMarketChoice final : public host::Market {
 public:
  ScriptMarketChoice(pybind11::module_ importer, pybind11::module_ module)
      : importer_(std::move(importer)), module_(std::move(module)) {}
  [[nodiscard]] std::string rynek() const override {
    return calling_script([&]() -> std::string {
      const pybind11::object code = module_.attr("rynek")();
      importer_.attr("_r") = code;
      return code.is_none() ? std::string() : from_script(code);
    });
  }

 private:
  pybind11::module_ importer_;
  pybind11::module_ module_;
};

class ScriptNotices final : public host::Notices {
 public:
  explicit ScriptNotices(pybind11::module_ module) : module_(std::move(module)) {}
  void zdarzenie(std::string_view name) override {
    calling_script([&] { module_.attr("zdarzenie")(to_script(name)); });
  }
  /// Passes the exception that is being handled, a script's own as the very object.
  void blad(std::string_view name, const vexo_xyz_impl::FailureNote& failure) override {
    calling_script([&] { module_.attr("blad")(to_script(name), handled_exception(failure)); });
  }

 private:
  static pybind11::object handled_exception(const vexo_xyz_impl::FailureNote& note) {
    try {
      if (const auto handled = std::current_exception()) std::rethrow_exception(handled);
    } catch (const std::exception& failure) {
      return exception_of(failure);
    }
    return exception_of(vexo_xyz_impl::Failure(note.kind, note.text));
  }

  pybind11::module_ module_;
};

class ScriptReactiveCore final : public host::ReactiveCore {
 public:
  /// Both operations must be there when the module is loaded; they are looked up at each loading.
  ScriptReactiveCore(ScriptHost& scripts, const pybind11::module_& module)
      : scripts_(scripts), register_(operation(module, "zapisz_reakt")), handle_(operation(module, "handle_z_oid")) {}

  [[nodiscard]] std::string handle_z_oid(host::GcDbObjectId oid) override {
    return calling_script([&]() -> std::string {
      last_handle_ = handle_(scripts_.id_object(oid));
      return pybind11::bool_(last_handle_) ? from_script(last_handle_) : std::string();
    });
  }

  bool zapisz_reakt(host::GcDbObjectId oid, std::string_view kind, const std::vector<std::string>& handles) override {
    return calling_script([&] {
      pybind11::list own;
      for (const std::string& handle : handles) {
        // The handle goes back as the object it came as.
        own.append(from_script(last_handle_) == handle ? last_handle_ : pybind11::object(to_script(handle)));
      }
      return pybind11::bool_(register_(scripts_.id_object(oid), to_script(kind), own)).operator bool();
    });
  }

 private:
  static pybind11::object operation(const pybind11::module_& module, const char* name) {
    if (pybind11::hasattr(module, name)) return module.attr(name);
    throw vexo_xyz_impl::ImportError(std::string("vexo_reaktywne_core has no ") + name);
  }

  ScriptHost& scripts_;
  pybind11::object register_;
  pybind11::object handle_;
  pybind11::object last_handle_ = pybind11::none();
};

class ScriptStereo70 final : public host::Stereo70 {
 public:
  explicit ScriptStereo70(pybind11::module_ module) : module_(std::move(module)) {}
  [[nodiscard]] std::pair<double, double> stereo70_do_geo(double E, double N) const override {
    const pybind11::gil_scoped_acquire lock;  // detection runs while it is let go of
    return calling_script(
        [&] { return pybind11::cast<std::pair<double, double>>(module_.attr("stereo70_do_geo")(E, N)); });
  }

 private:
  pybind11::module_ module_;
};

}  // namespace scripting
