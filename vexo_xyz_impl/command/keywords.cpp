#include "vexo_xyz_impl/command/keywords.h"

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

#include "vexo_xyz_impl/failure.h"
#include "vexo_xyz_impl/messages.h"
#include "vexo_xyz_impl/text/ascii.h"

namespace vexo_xyz_impl {
namespace {

std::string joined(const std::vector<std::string>& words, char separator) {
  std::string text;
  for (const std::string& word : words) {
    if (!text.empty()) text += separator;
    text += word;
  }
  return text;
}

std::string prompt_text(const std::vector<std::string>& slowa, std::string_view kl_prompt, std::size_t i_dom) {
  const std::string choice = joined(slowa, '/');
  const std::string& by_default = slowa[i_dom];
  auto prompt = text::try_fill(T(kl_prompt), {std::string_view(choice), std::string_view(by_default)});
  return prompt ? std::move(*prompt) : "\n[" + choice + "] <" + by_default + ">: ";
}

}  // namespace

std::string _slowo(std::string_view symbol) {
  std::string key = "xyz.kw_";
  for (const char c : symbol) key += text::ascii_lower(c);
  std::string w = T(key);
  return w.empty() || w == key || w.find(' ') != std::string::npos ? std::string(symbol) : w;
}

std::optional<std::string_view> _kword(std::span<const std::string_view> symbole, std::string_view kl_prompt,
                                       std::size_t i_dom) {
  if (i_dom >= symbole.size()) throw IndexError("a question has no default among its answers");
  std::vector<std::string> slowa;
  std::transform(symbole.begin(), symbole.end(), std::back_inserter(slowa), _slowo);
  command_line().gcedInitGet(0, joined(slowa, ' '));
  const auto [rc, kw] = command_line().gcedGetKword(prompt_text(slowa, kl_prompt, i_dom));
  if (rc == host::RTNONE) return symbole[i_dom];
  if (rc != host::RTNORM) return std::nullopt;
  const auto found = std::find(slowa.begin(), slowa.end(), kw);
  if (found == slowa.end()) return std::nullopt;  // no host answers with a word it was not given
  return symbole[static_cast<std::size_t>(found - slowa.begin())];
}

}  // namespace vexo_xyz_impl
