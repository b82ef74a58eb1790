// Sibling modules found beside the extension as the boundary's roles.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <pybind11/pybind11.h>

#include "python/database.h"
#include "python/exceptions.h"
#include "python/lock.h"
#include "python/run.h"
#include "python/values.h"

namespace scripting {

class ScriptTexts final : public host::Texts {
 public:
  explicit ScriptTexts(pybind11::object lookup) : lookup_(std::move(lookup)) {}

  [[nodiscard]] std::string T(std::string_view key) const override {
    const Locked lock;  // rows are interpreted while it is let go of
    return calling_script([&] { return from_script(lookup_(to_script(key))); });
  }

 private:
  pybind11::object lookup_;
};

/// The styling operation; where the module offers `styling_of_one_run`, what that makes at the first label is called
/// in its place, so that a style is looked up once a run and not once a label.
class ScriptStyling final : public host::Styling {
 public:
  explicit ScriptStyling(const pybind11::module_& module)
      : style_(module.attr("nadaj_styl_pl")),
        make_(pybind11::getattr(module, "styling_of_one_run", pybind11::none())) {}

  void nadaj_styl_pl(host::GcDbText& text) override {
    calling_script([&] {
      if (!make_.is_none()) style_ = std::exchange(make_, pybind11::none())();
      style_(object_of(text));
    });
  }

 private:
  pybind11::object style_;
  pybind11::object make_;
};

class ScriptMarketChoice final : public host::Market {
 public:
  /// `_r` of `importer` becomes what the module answers.
  ScriptMarketChoice(pybind11::module_ importer, pybind11::module_ module)
      : importer_(std::move(importer)), module_(std::move(module)) {}
  [[nodiscard]] std::string rynek() const override {
    return calling_script([&]() -> std::string {
      const pybind11::object code = module_.attr("rynek")();
      importer_.attr("_r") = code;
      return truth_of(code) ? from_script(code) : std::string();
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
    const Locked lock;
    calling_script([&] { module_.attr("zdarzenie")(to_script(name)); });
  }
  /// A script's own exception is passed as the very object.
  void blad(std::string_view name, const std::exception& failure) override {
    const Locked lock;
    calling_script([&] { module_.attr("blad")(to_script(name), exception_of(failure)); });
  }

 private:
  pybind11::module_ module_;
};

class ScriptReactiveCore final : public host::ReactiveCore {
 public:
  /// Both operations must be there when the module is loaded; they are looked up at each loading.
  ScriptReactiveCore(Run& run, const pybind11::module_& module)
      : run_(run), register_(operation(module, "zapisz_reakt")), handle_(operation(module, "handle_z_oid")) {}

  [[nodiscard]] std::string handle_z_oid(host::GcDbObjectId oid) override {
    return calling_script([&]() -> std::string {
      last_handle_ = handle_(run_.id_object(oid));
      return truth_of(last_handle_) ? from_script(last_handle_) : std::string();
    });
  }

  bool zapisz_reakt(host::GcDbObjectId oid, std::string_view kind, const std::vector<std::string>& handles) override {
    return calling_script([&] {
      pybind11::list own;
      for (const std::string& handle : handles) {
        // The handle goes back as the object it came as.
        own.append(from_script(last_handle_) == handle ? last_handle_ : pybind11::object(to_script(handle)));
      }
      return truth_of(register_(run_.id_object(oid), to_script(kind), own));
    });
  }

 private:
  static pybind11::object operation(const pybind11::module_& module, const char* name) {
    if (pybind11::hasattr(module, name)) return module.attr(name);
    throw vexo_xyz_impl::ImportError(std::string("vexo_reaktywne_core has no ") + name);
  }

  Run& run_;
  pybind11::object register_;
  pybind11::object handle_;
  pybind11::object last_handle_ = pybind11::none();
};

class ScriptStereo70 final : public host::Stereo70 {
 public:
  explicit ScriptStereo70(pybind11::module_ module) : module_(std::move(module)) {}
  [[nodiscard]] std::pair<double, double> stereo70_do_geo(double E, double N) const override {
    const Locked lock;
    return calling_script([&]() -> std::pair<double, double> {
      const auto position = items_of(module_.attr("stereo70_do_geo")(E, N), 2);
      return {number_from_script(position[0]), number_from_script(position[1])};
    });
  }

 private:
  pybind11::module_ module_;
};

class ScriptPlaces final : public host::Places {
 public:
  explicit ScriptPlaces(pybind11::module_ module) : module_(std::move(module)) {}
  /// A script answers (name, distance, bearing) or None.
  [[nodiscard]] std::optional<host::NearbyPlace> najblizsze_miejsce(double lat, double lon) const override {
    return calling_script([&]() -> std::optional<host::NearbyPlace> {
      const pybind11::object answer = module_.attr("najblizsze_miejsce")(lat, lon);
      if (answer.is_none()) return std::nullopt;
      const auto place = items_of(answer, 3);
      return host::NearbyPlace{from_script(place[0]), number_from_script(place[1]), number_from_script(place[2])};
    });
  }

 private:
  pybind11::module_ module_;
};

}  // namespace scripting
