// The sibling modules of the plug-in family, reached by name: one small role each, only what this module calls.
//
// Any operation may fail with an exception; what a failure of each means stands where it is called.
#pragma once

#include <exception>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "vexo_xyz_impl/failure.h"
#include "vexo_xyz_impl/host/database.h"
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
  /// The text of `key` for the current market, the key itself when there is none.
  [[nodiscard]] virtual std::string T(std::string_view key) const = 0;
};

/// `vexo_rynek`: the market selection.
class Market : public SiblingModule {
 public:
  /// Market code such as "PL".
  [[nodiscard]] virtual std::string rynek() const = 0;
};

/// `vexo_xyz_dane_` + market code: the country's coordinate systems and the bounds that make positions plausible.
///
/// The tables are asked wherever they are used and never copied: a fault in one shows where it matters, as the failure
/// of that call. Codes are EPSG codes, opaque to the module: passed back, compared, shown, nothing else.
class MarketTables : public SiblingModule {
 public:
  /// The record of a system; none for Stereo 70, of whose record only the tag is read. Fails with KeyError for a code
  /// that the market does not know, ValueError for a record that is not a tag and four numbers.
  [[nodiscard]] virtual std::optional<ZoneParameters> UKLADY(int srid) const = 0;
  /// The systems that detection tries, in this order.
  [[nodiscard]] virtual std::vector<int> KOLEJNOSC() const = 0;
  /// The system's name for people, if it has one.
  [[nodiscard]] virtual std::optional<std::string> NAZWY(int srid) const = 0;
  /// Latitude and longitude ranges of the country, degrees.
  [[nodiscard]] virtual std::pair<double, double> KRAJ_LAT() const = 0;
  [[nodiscard]] virtual std::pair<double, double> KRAJ_LON() const = 0;
  /// Whether the system goes without zone-width checks.
  [[nodiscard]] virtual bool ZONE_EXEMPT(int srid) const = 0;
  /// Largest |easting - FE| in metres and |longitude - lon0| in degrees; none: not checked.
  [[nodiscard]] virtual std::optional<double> EASTING_HALF() const = 0;
  [[nodiscard]] virtual std::optional<double> LON_HALF() const = 0;
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
  virtual void blad(std::string_view name, const std::exception& failure) = 0;
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

/// A town or village near a position.
struct NearbyPlace {
  std::string name;
  double distance;  ///< km
  double bearing;   ///< from the place to the position, degrees clockwise from north
};

/// `vexo_miejsca`: towns and villages. Nothing depends on it: a host may be without it.
class Places : public SiblingModule {
 public:
  /// The place of the current market nearest to a latitude and longitude in degrees; none when all are far.
  [[nodiscard]] virtual std::optional<NearbyPlace> najblizsze_miejsce(double lat, double lon) const = 0;
};

/// Loads sibling modules by name.
class SiblingLoader {
 public:
  virtual ~SiblingLoader() = default;

  /// Puts the module's own folder first among the places where modules are looked up.
  virtual void own_folder_first() = 0;

  /// The module of that name, for as long as it is held. Fails with ModuleNotFoundError when there is none.
  virtual std::shared_ptr<SiblingModule> load(std::string_view name) = 0;
};

/// The sibling `name` in the role that it must offer; ImportError when it offers another.
template <class Role>
std::shared_ptr<Role> load_sibling(SiblingLoader& loader, std::string_view name) {
  auto role = std::dynamic_pointer_cast<Role>(loader.load(name));
  if (!role) throw ImportError("module '" + std::string(name) + "' does not offer what is asked of it");
  return role;
}

}  // namespace vexo_xyz_impl::host
