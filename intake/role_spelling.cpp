#include <algorithm>
#include <charconv>
#include <string>

#include "intake/columns.h"
#include "intake/prepared_file.h"
#include "vexo_xyz_impl/text/ascii.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace intake {
namespace {

namespace text = vexo_xyz_impl::text;

bool same_name(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return text::ascii_lower(x) == text::ascii_lower(y); });
}

// A column by its name as it stands, by its name in other letters, or by its position from 1.
std::optional<std::size_t> column_of(const TableShape& shape, std::string_view wanted) {
  const auto exact = std::find(shape.names.begin(), shape.names.end(), wanted);
  if (exact != shape.names.end()) return static_cast<std::size_t>(exact - shape.names.begin());
  const auto alike = std::find_if(shape.names.begin(), shape.names.end(),
                                  [&](const std::string& name) { return same_name(name, wanted); });
  if (alike != shape.names.end()) return static_cast<std::size_t>(alike - shape.names.begin());
  std::size_t position = 0;
  const auto [end, error] = std::from_chars(wanted.data(), wanted.data() + wanted.size(), position);
  const bool is_position = error == std::errc() && end == wanted.data() + wanted.size();
  return is_position && position >= 1 && position <= shape.width ? std::optional(position - 1) : std::nullopt;
}

std::optional<Roles> roles_by_name(const TableShape& shape, std::string_view spelled) {
  Roles roles(shape.width, Role::other);
  for (bool more = true; more;) {
    const std::size_t end = spelled.find(',');
    const std::string_view item = text::trim(spelled.substr(0, end));
    const std::size_t sign = item.find('=');
    if (sign == std::string_view::npos) return std::nullopt;
    const auto role = roles_of(item.substr(0, sign));
    const auto column = column_of(shape, text::trim(item.substr(sign + 1)));
    const bool taken = role && has_role(roles, role->front());
    if (!role || !column || role->front() == Role::other || taken || roles[*column] != Role::other) return std::nullopt;
    roles[*column] = role->front();
    more = end != std::string_view::npos;
    if (more) spelled.remove_prefix(end + 1);
  }
  return roles;
}

}  // namespace

std::optional<Roles> roles_for(const TableShape& shape, std::string_view spelled) {
  const bool by_name = spelled.find('=') != std::string_view::npos;
  auto roles = by_name ? roles_by_name(shape, spelled) : roles_of(spelled);
  return roles && name_coordinates(*roles) ? roles : std::nullopt;
}

}  // namespace intake
