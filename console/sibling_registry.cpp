#include "console/sibling_registry.h"

#include <utility>

#include "console/texts/texts.h"
#include "siblings/vexo_boot/boot.h"
#include "siblings/vexo_boot/log_file.h"
#include "siblings/vexo_cad_core/cad_core.h"
#include "siblings/vexo_miejsca/miejsca.h"
#include "siblings/vexo_reaktywne_core/reaktywne_core.h"
#include "siblings/vexo_rynek/rynek.h"
#include "siblings/vexo_stereo70/stereo70.h"
#include "siblings/vexo_xyz_dane_DE/dane.h"
#include "siblings/vexo_xyz_dane_PL/dane.h"
#include "siblings/vexo_xyz_dane_RO/dane.h"

namespace console {

void SiblingRegistry::add(std::string name, std::shared_ptr<vexo_xyz_impl::host::SiblingModule> module) {
  modules_.insert_or_assign(std::move(name), std::move(module));
}

std::shared_ptr<vexo_xyz_impl::host::SiblingModule> SiblingRegistry::load(std::string_view name) {
  const auto found = modules_.find(name);
  if (found != modules_.end()) return found->second;
  throw vexo_xyz_impl::ModuleNotFoundError("no module named '" + std::string(name) + "'");
}

SiblingRegistry family(Database& database, const Choice& choice) {
  SiblingRegistry registry;
  auto market = std::make_shared<vexo_rynek::Market>(choice.market);
  const std::string code = market->rynek();
  registry.add("vexo_teksty", texts_in(choice.language.empty() ? code : choice.language, database.selectable_groups()));
  registry.add("vexo_rynek", std::move(market));
  registry.add("vexo_xyz_dane_PL", std::make_shared<vexo_xyz_dane::Tables>(vexo_xyz_dane_PL::tables()));
  registry.add("vexo_xyz_dane_DE", std::make_shared<vexo_xyz_dane::Tables>(vexo_xyz_dane_DE::tables()));
  registry.add("vexo_xyz_dane_RO", std::make_shared<vexo_xyz_dane::Tables>(vexo_xyz_dane_RO::tables()));
  const bool has_data = registry.has("vexo_xyz_dane_" + code);  // else the importer works with the Polish data
  registry.add("vexo_miejsca", std::make_shared<vexo_miejsca::Places>(has_data ? code : "PL"));
  registry.add("vexo_cad_core", std::make_shared<vexo_cad_core::Styling>(database));
  registry.add("vexo_boot", std::make_shared<vexo_boot::Notices>(vexo_boot::append_to_log));
  registry.add("vexo_reaktywne_core", std::make_shared<vexo_reaktywne_core::ReactiveCore>(database));
  registry.add("vexo_stereo70", std::make_shared<vexo_stereo70::Projection>());
  return registry;
}

}  // namespace console
