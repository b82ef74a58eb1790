// The sibling modules of the plug-in family, reached by name: one small role each, only what this module calls.
//
// Any operation may fail with an exception; what a failure of each means stands where it is called.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "vexo_xyz_impl/failure.h"
#include "vexo_xyz_impl/host/database.h"
#include "vexo_xyz_impl/host/market_data.h"
#include "vexo_xyz_impl/host/values.h"

namespace vexo_xyz_impl::host {

/// A loaded sibling module; what it offers is one of the roles below.
class SiblingModule {
 public:
  virtual ~SiblingModule() = default;
};

/// `vexo_teksty`: the message catalogue.
class Texts : public SiblingModule {
 public:
  /// The text of `key` for the current market, the key itself when there is none. It lives as long as the module.
  [[nodiscard]] virtual std::string_view T(std::string_view key) const = 0;
};

/// `vexo_rynek`: the market selection.
class Market : public SiblingModule {
 public:
  /// Market code such as "PL".
  [[nodiscard]] virtual std::string rynek() const = 0;
};

/// `vexo_xyz_dane_` + market code: the market's tables.
class MarketTables : public SiblingModule {
 public:
  [[nodiscard]] virtual const MarketData& tables() const = 0;
};

/// `vexo_cad_core`: the family's styling of entities.
class Styling : public SiblingModule {
 public:
  virtual void nadaj_styl_pl(GcDbText& text) = 0;
};

/// `vexo_boot`: start and failure notices.
class Notices : public SiblingModule {
 public:
  virtual void zdarzenie(std::string_view name) = 0;
  virtual void blad(std::string_view name, const FailureNote& failure) = 0;
};

/// `vexo_reaktywne_core`: control records of entities.
class ReactiveCore : public SiblingModule {
 public:
  /// Handle of the entity, empty when it has none.
  [[nodiscard]] virtual std::string handle_z_oid(GcDbObjectId oid) = 0;
  /// Registers the entity under `kind` with the handles it depends on; whether the record was written.
  virtual bool zapisz_reakt(GcDbObjectId oid, std::string_view kind, const std::vector<std::string>& handles) = 0;
};

/// `vexo_stereo70`: the Romanian stereographic projection.
class Stereo70 : public SiblingModule {
 public:
  /// Easting and northing in metres to (latitude, longitude) in radians.
  [[nodiscard]] virtual std::pair<double, double> stereo70_do_geo(double E, double N) const = 0;
};

/// Loads sibling modules by name.
class SiblingLoader {
 public:
  virtual ~SiblingLoader() = default;

  /// Puts the module's own folder first among the places where modules are looked up.
  virtual void own_folder_first() = 0;

  /// The module of that name; it lives as long as the loader. Fails with ModuleNotFoundError when there is none.
  virtual SiblingModule& load(std::string_view name) = 0;
};

/// The sibling `name` in the role that it must offer; ImportError when it offers another.
template <class Role>
Role& load_sibling(SiblingLoader& loader, std::string_view name) {
  auto* role = dynamic_cast<Role*>(&loader.load(name));
  if (role == nullptr) throw ImportError("module '" + std::string(name) + "' does not offer what is asked of it");
  return *role;
}

}  // namespace vexo_xyz_impl::host
