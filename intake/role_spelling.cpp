#include "intake/role_spelling.h"

#include <algorithm>
#include <charconv>
#include <string>
#include <vector>

#include "intake/header_words.h"
#include "intake/prepared_file.h"
#include "vexo_xyz_impl/text/ascii.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace intake {
namespace {

namespace text = vexo_xyz_impl::text;

// The columns of a name as it stands, else in other letters.
std::vector<std::size_t> columns_named(const TableShape& shape, std::string_view wanted) {
  std::vector<std::size_t> exact;
  std::vector<std::size_t> alike;
  for (std::size_t i = 0; i < shape.names.size(); ++i) {
    if (shape.names[i] == wanted) exact.push_back(i);
    if (text::equal_ascii_case(shape.names[i], wanted)) alike.push_back(i);
  }
  return exact.empty() ? alike : exact;
}

// A column by its name, when no other has it, or by its position from 1.
std::optional<std::size_t> column_of(const TableShape& shape, std::string_view wanted) {
  const auto named = columns_named(shape, wanted);
  if (!named.empty()) return named.size() == 1 ? std::optional(named.front()) : std::nullopt;
  std::size_t position = 0;
  const auto [end, error] = std::from_chars(wanted.data(), wanted.data() + wanted.size(), position);
  const bool is_position = error == std::errc() && end == wanted.data() + wanted.size();
  return is_position && position >= 1 && position <= shape.width ? std::optional(position - 1) : std::nullopt;
}

// What a column's name says of its role.
std::optional<Role> role_by_name(std::string_view name) {
  switch (header_name(name).named) {
    case Named::number:
    case Named::counter:
      return Role::number;
    case Named::easting:
      return Role::easting;
    case Named::northing:
      return Role::northing;
    case Named::x:
      return Role::x;
    case Named::y:
      return Role::y;
    case Named::height:
    case Named::maybe_height:
      return Role::height;
    default:
      return std::nullopt;
  }
}

// An item of a list by names: "n=NORTH", or "NORTH", which says its role itself.
struct Item {
  std::string_view role;  // empty where the name says it
  std::string_view column;
};

Item item_of(std::string_view spelled) {
  const std::size_t sign = spelled.find('=');
  if (sign == std::string_view::npos) return {{}, text::trim(spelled)};
  return {text::trim(spelled.substr(0, sign)), text::trim(spelled.substr(sign + 1))};
}

std::optional<Role> role_of(const Item& item) {
  if (item.role.empty()) return role_by_name(item.column);
  const auto roles = roles_of(item.role);
  return roles ? std::optional(roles->front()) : std::nullopt;
}

std::optional<Roles> roles_by_name(const TableShape& shape, std::string_view spelled) {
  Roles roles(shape.width, Role::other);
  for (bool more = true; more;) {
    const std::size_t end = spelled.find(',');
    const Item item = item_of(spelled.substr(0, end));
    const auto role = role_of(item);
    const auto column = column_of(shape, item.column);
    const bool taken = role && has_role(roles, *role);
    if (!role || !column || *role == Role::other || taken || roles[*column] != Role::other) return std::nullopt;
    roles[*column] = *role;
    more = end != std::string_view::npos;
    if (more) spelled.remove_prefix(end + 1);
  }
  return roles;
}

}  // namespace

std::optional<Roles> roles_for(const TableShape& shape, std::string_view spelled) {
  auto roles = roles_of(spelled);
  if (!roles) roles = roles_by_name(shape, spelled);
  return roles && name_coordinates(*roles) ? roles : std::nullopt;
}

std::string_view ambiguous_name(const TableShape& shape, std::string_view spelled) {
  while (!spelled.empty()) {
    const std::size_t end = std::min(spelled.find(','), spelled.size());
    const std::string_view name = item_of(spelled.substr(0, end)).column;
    if (columns_named(shape, name).size() > 1) return name;
    spelled.remove_prefix(std::min(end + 1, spelled.size()));
  }
  return {};
}

}  // namespace intake
