#include "vexo_xyz_impl/command/module.h"

#include <exception>
#include <string>

#include "vexo_xyz_impl/command/import.h"

namespace vexo_xyz_impl {
namespace {

const host::MarketData& market_data(host::SiblingLoader& siblings, std::string_view market) {
  return host::load_sibling<host::MarketTables>(siblings, "vexo_xyz_dane_" + std::string(market)).tables();
}

// The market's own data, or `polish` on any ordinary failure: a user without a market module is a Polish one.
const host::MarketData& selected_market(host::SiblingLoader& siblings, const host::MarketData& polish) {
  try {
    const std::string code = host::load_sibling<host::Market>(siblings, "vexo_rynek").rynek();
    return code.empty() || code == kPolishMarket ? polish : market_data(siblings, code);
  } catch (const std::exception&) {
    return polish;
  }
}

}  // namespace

void load_module(const host::Host& host) {
  host::SiblingLoader& siblings = host.siblings;
  siblings.own_folder_first();
  const auto& texts = host::load_sibling<host::Texts>(siblings, "vexo_teksty");
  const host::MarketData& polish = market_data(siblings, kPolishMarket);
  auto& style = host::load_sibling<host::Styling>(siblings, "vexo_cad_core");
  host::bind({host, texts, style, selected_market(siblings, polish)});
  host.commands.command(kCommandName, kCommandName, kCommandGroup, importxyz);
}

}  // namespace vexo_xyz_impl
