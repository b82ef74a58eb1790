#include "vexo_xyz_impl/command/module.h"

#include <exception>
#include <memory>
#include <string>

#include "vexo_xyz_impl/command/import.h"
#include "vexo_xyz_impl/notices.h"

namespace vexo_xyz_impl {
namespace {

using Tables = std::shared_ptr<const host::MarketTables>;

Tables tables_of(host::SiblingLoader& siblings, std::string_view market) {
  return host::load_sibling<host::MarketTables>(siblings, "vexo_xyz_dane_" + std::string(market));
}

// The market's own data, or `polish` on any ordinary failure: a user without a market module is a Polish one.
Tables selected_market(host::SiblingLoader& siblings, const Tables& polish) {
  try {
    const std::string code = host::load_sibling<host::Market>(siblings, "vexo_rynek")->rynek();
    return code.empty() || code == kPolishMarket ? polish : tables_of(siblings, code);
  } catch (const std::exception&) {
    return polish;
  }
}

}  // namespace

Loaded bind_siblings(host::SiblingLoader& siblings) {
  siblings.own_folder_first();
  Loaded loaded;
  loaded.texts = host::load_sibling<host::Texts>(siblings, "vexo_teksty");
  const Tables polish = tables_of(siblings, kPolishMarket);
  loaded.style = host::load_sibling<host::Styling>(siblings, "vexo_cad_core");
  loaded.market = selected_market(siblings, polish);
  return loaded;
}

void register_command(host::CommandTable& commands) {
  commands.command(kCommandName, kCommandName, kCommandGroup, importxyz);
}

}  // namespace vexo_xyz_impl
