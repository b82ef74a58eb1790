#include "console/dialogue/typed_path.h"

#include <charconv>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <system_error>

#include "vexo_xyz_impl/command/questions.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace console {
namespace {

bool exists(const std::string& path) {
  std::error_code ignored;
  return !path.empty() && std::filesystem::exists(path, ignored);
}

// One word as a shell reads it, but for blanks, which stand for themselves. Empty when a quote is not closed.
std::optional<std::string> unquoted(std::string_view word) {
  std::string plain;
  char quote = '\0';
  for (std::size_t i = 0; i < word.size(); ++i) {
    const char c = word[i];
    if (quote == '\0' && (c == '\'' || c == '"')) {
      quote = c;
    } else if (c == quote) {
      quote = '\0';
    } else if (c == '\\' && quote != '\'' && i + 1 < word.size()) {
      plain += word[++i];
    } else {
      plain += c;
    }
  }
  return quote == '\0' ? std::optional(plain) : std::nullopt;
}

// The path of an address on this machine.
std::optional<std::string> path_of_address(std::string_view address) {
  constexpr std::string_view kThisMachine = "localhost";
  if (!address.starts_with(kFileScheme)) return std::nullopt;
  address.remove_prefix(kFileScheme.size());
  if (address.starts_with(kThisMachine)) address.remove_prefix(kThisMachine.size());
  if (!address.starts_with('/')) return std::nullopt;
  return without_percents(address);
}

}  // namespace

std::string with_home(std::string_view path) {
  const char* const home = std::getenv("HOME");
  if (home == nullptr || (path != "~" && !path.starts_with("~/"))) return std::string(path);
  return std::string(home).append(path.substr(1));
}

std::string without_percents(std::string_view address) {
  std::string plain;
  for (std::size_t i = 0; i < address.size(); ++i) {
    unsigned char byte = 0;
    const char* const digits = address.data() + i + 1;
    const bool is_escaped =
        address[i] == '%' && i + 2 < address.size() && std::from_chars(digits, digits + 2, byte, 16).ptr == digits + 2;
    plain += is_escaped ? static_cast<char>(byte) : address[i];
    if (is_escaped) i += 2;
  }
  return plain;
}

std::string without_backslashes(std::string_view typed) {
  std::string plain;
  for (std::size_t i = 0; i < typed.size(); ++i) {
    if (typed[i] == '\\' && i + 1 < typed.size()) ++i;
    plain += typed[i];
  }
  return plain;
}

std::string existing_path(std::string typed) {
  const std::string literal(vexo_xyz_impl::clean_path(typed));
  if (exists(literal)) return typed;
  const auto plain = unquoted(vexo_xyz_impl::text::trim(typed));
  for (const std::optional<std::string>& reading : {std::optional(literal), plain}) {
    if (!reading) continue;
    if (exists(*reading)) return *reading;
    if (std::string path = with_home(*reading); exists(path)) return path;
    if (auto path = path_of_address(*reading); path && exists(*path)) return *path;
  }
  return typed;
}

}  // namespace console
