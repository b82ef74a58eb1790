#include "console/dialogue/dialogue.h"

#include <algorithm>
#include <ostream>

#include "console/dialogue/shown_text.h"
#include "console/dialogue/typed_path.h"
#include "vexo_xyz_impl/command/keywords.h"
#include "vexo_xyz_impl/messages.h"
#include "vexo_xyz_impl/text/ascii.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace console {

using namespace vexo_xyz_impl::host;  // NOLINT(google-build-using-namespace): the interface that is implemented
namespace text = vexo_xyz_impl::text;

namespace {

std::vector<std::string> split_at_blanks(std::string_view words) {
  std::vector<std::string> split;
  while (!words.empty()) {
    const std::size_t end = std::min(words.find(' '), words.size());
    if (end > 0) split.emplace_back(words.substr(0, end));
    words.remove_prefix(std::min(end + 1, words.size()));
  }
  return split;
}

// The keywords that an answer may mean: one that it equals, or all that it begins. In the present catalogues the first
// letters differ; a translation may begin two words alike, or one with the other. Keywords are chosen so that no case
// but that of ASCII letters matters.
std::vector<std::string> matches(const std::vector<std::string>& keywords, std::string_view answer) {
  std::vector<std::string> found;
  for (const std::string& word : keywords) {
    if (!text::starts_with_ascii_case(word, answer)) continue;
    if (word.size() == answer.size()) return {word};
    found.push_back(word);
  }
  return found;
}

}  // namespace

Dialogue::Dialogue(LineSource& lines, std::ostream& out, SystemVariables& variables, std::optional<std::string> file,
                   std::vector<PreparedAnswer> answers)
    : lines_(lines), out_(out), variables_(variables), file_(std::move(file)), answers_(std::move(answers)) {}

PromptStatus Dialogue::gcedGetFileD(std::string_view /*title*/, std::string_view /*default_name*/,
                                    std::string_view /*filter*/, int /*flags*/, resbuf& chosen) {
  // There are no windows here: without a file given beforehand the command goes on to the typed path.
  chosen.restype = RTSTR;
  chosen.resval.rstring = path_ = file_.value_or(std::string());
  return RTNORM;
}

std::pair<PromptStatus, std::string> Dialogue::gcedGetString(int /*spaces_allowed*/, std::string_view prompt) {
  say_held();
  auto typed = lines_.read_line(prompt, Completion::file_names);
  if (!typed) return {RTCAN, {}};
  path_ = existing_path(std::move(*typed));
  if (accepts_ && !path_.empty() && !accepts_(path_)) return {RTCAN, {}};
  return {RTNORM, path_};
}

PromptStatus Dialogue::gcedInitGet(int /*flags*/, std::string_view keywords) {
  keywords_ = split_at_blanks(keywords);
  return RTNORM;
}

std::pair<PromptStatus, std::string> Dialogue::gcedGetKword(std::string_view prompt) {
  if (auto word = prepared_word()) {
    gcutPrintf(std::string(prompt) + *word + "\n");
    return {RTNORM, std::move(*word)};
  }
  return typed_keyword(prompt);
}

std::pair<PromptStatus, std::string> Dialogue::typed_keyword(std::string_view prompt) {
  while (true) {
    say_held();
    const auto typed = lines_.read_line(without_control_characters(prompt), Completion::none);
    if (!typed) return {RTCAN, {}};
    const std::string answer(text::trim(*typed));
    if (answer.empty()) return {RTNONE, {}};
    auto meant = matches(keywords_, answer);
    if (meant.size() == 1) return {RTNORM, std::move(meant.front())};
    explain(answer, meant.size());
  }
}

bool Dialogue::confirms(std::string_view prompt_key) {
  const std::string yes = vexo_xyz_impl::T("konsola.tak");
  const std::string no = vexo_xyz_impl::T("konsola.nie");
  keywords_ = {yes, no};
  const auto [status, word] = typed_keyword(
      vexo_xyz_impl::filled(prompt_key, {std::string_view(yes), std::string_view(no), std::string_view(yes)}));
  return status == RTNONE || (status == RTNORM && word == yes);
}

std::optional<std::string> Dialogue::prepared_word() {
  for (PreparedAnswer& answer : answers_) {
    std::string word = vexo_xyz_impl::_slowo(answer.symbol);
    if (std::find(keywords_.begin(), keywords_.end(), word) == keywords_.end()) continue;
    answer.used = true;
    return word;
  }
  return std::nullopt;
}

void Dialogue::explain(const std::string& answer, std::size_t matches) {
  std::string words;
  for (const std::string& word : keywords_) words += (words.empty() ? "" : ", ") + word;
  gcutPrintf(vexo_xyz_impl::filled(matches == 0 ? "konsola.zle_slowo" : "konsola.niejasne_slowo",
                                   {std::string_view(answer), std::string_view(words)}));
}

void Dialogue::gcutPrintf(std::string_view text) {
  if (holds_) {
    held_ += shown_text(text);
  } else {
    const Progress::Pause pause(progress_);
    out_ << shown_text(text) << std::flush;
  }
}

void Dialogue::say_held() {
  const Progress::Pause pause(progress_);
  out_ << held_ << std::flush;
  held_.clear();
}

PromptStatus Dialogue::gcedSetVar(std::string_view name, const resbuf& value) {
  if (name == "PDMODE" && value.restype == RTSHORT) {
    variables_.PDMODE = value.resval.rint;
  } else if (name == "PDSIZE" && value.restype == RTREAL) {
    variables_.PDSIZE = value.resval.rreal;
  } else {
    return RTERROR;
  }
  return RTNORM;
}

std::vector<std::string_view> Dialogue::unused_options() const {
  std::vector<std::string_view> options;
  for (const PreparedAnswer& answer : answers_)
    if (!answer.used) options.push_back(answer.option);
  return options;
}

}  // namespace console
