#include "intake/roles.h"

#include <array>
#include <utility>

#include "vexo_xyz_impl/text/utf8.h"

namespace intake {
namespace {

constexpr auto kSpelled = std::to_array<std::pair<std::string_view, Role>>({
    {"nr", Role::number},
    {"e", Role::easting},
    {"n", Role::northing},
    {"x", Role::x},
    {"y", Role::y},
    {"z", Role::height},
    {"-", Role::other},
});

std::optional<Role> role_of(std::string_view spelled) {
  const auto* const found =
      std::find_if(kSpelled.begin(), kSpelled.end(), [spelled](const auto& known) { return known.first == spelled; });
  return found != kSpelled.end() ? std::optional(found->second) : std::nullopt;
}

}  // namespace

std::optional<Roles> roles_of(std::string_view spelled) {
  Roles roles;
  for (bool more = true; more;) {
    const std::size_t end = spelled.find(',');
    const auto role = role_of(vexo_xyz_impl::text::trim(spelled.substr(0, end)));
    if (!role) return std::nullopt;
    if (*role != Role::other && has_role(roles, *role)) return std::nullopt;
    roles.push_back(*role);
    more = end != std::string_view::npos;
    if (more) spelled.remove_prefix(end + 1);
  }
  return roles;
}

std::string spelled(const Roles& roles) {
  std::string all;
  for (const Role role : roles) {
    const auto* const known =
        std::find_if(kSpelled.begin(), kSpelled.end(), [role](const auto& one) { return one.second == role; });
    if (!all.empty()) all += ',';
    all += known->first;
  }
  return all;
}

}  // namespace intake
