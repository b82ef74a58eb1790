#include "console/dialogue/path_completion.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <system_error>

#include "console/dialogue/shown_text.h"
#include "console/dialogue/typed_path.h"
#include "vexo_xyz_impl/text/ascii.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace console {
namespace {

enum class Spelling { plain, address, backslashes };

std::string read_as(Spelling spelling, std::string_view typed) {
  switch (spelling) {
    case Spelling::plain:
      break;
    case Spelling::address:
      return without_percents(typed.substr(std::min(typed.size(), kFileScheme.size())));
    case Spelling::backslashes:
      return without_backslashes(typed);
  }
  return std::string(typed);
}

// What cannot stand for itself: in an address what addresses use otherwise, behind backslashes what shells would use.
std::string spelled(Spelling spelling, const std::string& name) {
  constexpr std::string_view kHexadecimal = "0123456789ABCDEF";
  std::string text;
  for (const char c : name) {
    const auto byte = static_cast<unsigned char>(c);
    const bool is_plain =
        (byte < 0x80 && std::isalnum(byte) != 0) || std::string_view("-._~/").find(c) != std::string_view::npos;
    if (spelling == Spelling::plain || is_plain || (spelling == Spelling::backslashes && byte >= 0x80)) {
      text += c;
    } else if (spelling == Spelling::backslashes) {
      text += {'\\', c};
    } else {
      text += {'%', kHexadecimal[byte >> 4U], kHexadecimal[byte & 0xFU]};
    }
  }
  return text;
}

// Drawings and their backups, and logs of files that were prepared.
bool may_hold_points(const std::filesystem::directory_entry& entry) {
  std::error_code ignored;
  if (!entry.is_regular_file(ignored)) return false;
  std::string ending = entry.path().extension().string();
  std::transform(ending.begin(), ending.end(), ending.begin(), vexo_xyz_impl::text::ascii_lower);
  if (ending == ".log")
    return !std::filesystem::exists(std::filesystem::path(entry.path()).replace_extension(), ignored);
  return ending != ".dxf" && ending != ".bak";
}

std::string common_beginning(const std::vector<std::string>& names) {
  // The names are sorted: what the first and the last share, all do.
  const std::string& first = names.front();
  const std::string& last = names.back();
  auto end = std::mismatch(first.begin(), first.end(), last.begin(), last.end()).first;
  std::string common(first.begin(), end);
  while (!common.empty() && !vexo_xyz_impl::text::is_valid(common)) common.pop_back();  // no half characters
  return common;
}

PathCompletion candidates(Spelling spelling, std::string_view typed) {
  const std::string path = read_as(spelling, typed);
  const std::size_t name_at = path.rfind('/') + 1;
  const std::string beginning = path.substr(name_at);
  const std::string as_typed = path.substr(0, name_at);
  std::error_code ignored;
  const std::string folder = std::filesystem::exists(as_typed, ignored) ? as_typed : with_home(as_typed);

  PathCompletion completion;
  std::filesystem::directory_iterator entries(folder.empty() ? "." : folder, ignored);
  for (; entries != std::filesystem::directory_iterator(); entries.increment(ignored)) {
    const std::filesystem::directory_entry& entry = *entries;
    std::string name = entry.path().filename().string();
    const bool hidden = name.starts_with('.') && !beginning.starts_with('.');
    if (hidden || !name.starts_with(beginning)) continue;
    const bool is_folder = entry.is_directory(ignored);
    if (is_folder || may_hold_points(entry)) completion.names.push_back(name + (is_folder ? "/" : ""));
  }
  if (completion.names.empty()) return completion;
  std::sort(completion.names.begin(), completion.names.end());
  completion.addition = spelled(spelling, common_beginning(completion.names).substr(beginning.size()));
  return completion;
}

}  // namespace

PathCompletion complete_path(std::string_view typed) {
  typed.remove_prefix(std::min(typed.find_first_not_of(" \t\"'"), typed.size()));
  if (typed.starts_with(kFileScheme)) return candidates(Spelling::address, typed);
  PathCompletion completion = candidates(Spelling::plain, typed);
  if (completion.names.empty() && typed.find('\\') != std::string_view::npos)
    return candidates(Spelling::backslashes, typed);
  return completion;
}

std::string in_columns(const std::vector<std::string>& names, std::size_t width) {
  constexpr std::size_t kGap = 2;
  std::vector<std::string> shown(names.size());
  std::vector<std::size_t> cells(names.size());
  std::transform(names.begin(), names.end(), shown.begin(), [](std::string name) {
    std::replace(name.begin(), name.end(), '\n', ' ');
    std::replace(name.begin(), name.end(), '\t', ' ');
    return without_control_characters(name);
  });
  std::transform(shown.begin(), shown.end(), cells.begin(), cells_of);
  const std::size_t column = *std::max_element(cells.begin(), cells.end()) + kGap;
  const std::size_t columns = std::max<std::size_t>(1, (width + kGap - 1) / column);  // the last cell stays free
  const std::size_t lines = (names.size() + columns - 1) / columns;
  std::string text;
  for (std::size_t line = 0; line < lines; ++line) {
    for (std::size_t i = line; i < names.size(); i += lines) {
      text += shown[i];
      if (i + lines < names.size()) text.append(column - cells[i], ' ');
    }
    text += '\n';
  }
  return text;
}

}  // namespace console
