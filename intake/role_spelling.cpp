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

// The columns of a name as it stands, else in other letters.
std::vector<std::size_t> columns_named(const TableShape& shape, std::string_view wanted) {
  std::vector<std::size_t> exact;
  std::vector<std::size_t> alike;
  for (std::size_t i = 0; i < shape.names.size(); ++i) {
    if (shape.names[i] == wanted) exact.push_back(i);
    if (same_name(shape.names[i], wanted)) alike.push_back(i);
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

std::string_view ambiguous_name(const TableShape& shape, std::string_view spelled) {
  while (!spelled.empty()) {
    const std::size_t end = std::min(spelled.find(','), spelled.size());
    const std::string_view item = spelled.substr(0, end);
    if (const std::size_t sign = item.find('='); sign != std::string_view::npos) {
      const std::string_view name = text::trim(item.substr(sign + 1));
      if (columns_named(shape, name).size() > 1) return name;
    }
    spelled.remove_prefix(std::min(end + 1, spelled.size()));
  }
  return {};
}

}  // namespace intake
