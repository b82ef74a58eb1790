#include "console/dialogue/path_completion.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "vexo_xyz_impl/text/utf8.h"

namespace console {
namespace {

std::string common_beginning(const std::vector<std::string>& names) {
  // The names are sorted: what the first and the last share, all do.
  const std::string& first = names.front();
  const std::string& last = names.back();
  auto end = std::mismatch(first.begin(), first.end(), last.begin(), last.end()).first;
  std::string common(first.begin(), end);
  while (!common.empty() && !vexo_xyz_impl::text::is_valid(common)) common.pop_back();  // no half characters
  return common;
}

}  // namespace

PathCompletion complete_path(std::string_view typed) {
  typed.remove_prefix(std::min(typed.find_first_not_of(" \t\""), typed.size()));
  const std::size_t name_at = typed.rfind('/') + 1;
  const std::string folder(typed.substr(0, name_at));
  const std::string_view beginning = typed.substr(name_at);

  PathCompletion completion;
  std::error_code unreadable;
  for (const auto& entry : std::filesystem::directory_iterator(folder.empty() ? "." : folder, unreadable)) {
    std::string name = entry.path().filename().string();
    const bool hidden = name.starts_with('.') && !beginning.starts_with('.');
    if (!hidden && name.starts_with(beginning)) completion.names.push_back(std::move(name));
  }
  if (completion.names.empty()) return completion;
  std::sort(completion.names.begin(), completion.names.end());
  const std::string common = common_beginning(completion.names);
  if (common.size() > beginning.size()) completion.addition = common.substr(beginning.size());
  std::error_code unknown;
  if (completion.names.size() == 1 && std::filesystem::is_directory(folder + common, unknown)) {
    completion.addition += '/';
  }
  return completion;
}

}  // namespace console
