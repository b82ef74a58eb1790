// The host's command line at a terminal or in a pipe: prompts, keywords, printing.
//
// Keywords may be typed whole or by any unambiguous beginning, letter case aside; Enter is the default, a wrong word
// is explained and asked again, the end of input, Ctrl-D and Escape are Escape. Answers given beforehand are used
// where their question is asked; nothing is ever answered by a guess.
#pragma once

#include <functional>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "console/dialogue/line_source.h"
#include "console/drawing/drawing.h"
#include "console/progress.h"
#include "vexo_xyz_impl/host/command_line.h"

namespace console {

/// An answer given beforehand, by the symbol of the command's question.
struct PreparedAnswer {
  std::string_view option;  ///< as the user wrote it, for messages
  std::string_view symbol;
  bool used = false;
};

class Dialogue final : public vexo_xyz_impl::host::CommandLine {
 public:
  /// `file` answers the file dialog; without it the path is typed. Everything referred to outlives the dialogue.
  Dialogue(LineSource& lines, std::ostream& out, SystemVariables& variables, std::optional<std::string> file,
           std::vector<PreparedAnswer> answers);

  vexo_xyz_impl::host::PromptStatus gcedGetFileD(std::string_view title, std::string_view default_name,
                                                 std::string_view filter, int flags,
                                                 vexo_xyz_impl::host::resbuf& chosen) override;
  std::pair<vexo_xyz_impl::host::PromptStatus, std::string> gcedGetString(int spaces_allowed,
                                                                          std::string_view prompt) override;
  vexo_xyz_impl::host::PromptStatus gcedInitGet(int flags, std::string_view keywords) override;
  std::pair<vexo_xyz_impl::host::PromptStatus, std::string> gcedGetKword(std::string_view prompt) override;
  void gcutPrintf(std::string_view text) override;
  vexo_xyz_impl::host::PromptStatus gcedSetVar(std::string_view name,
                                               const vexo_xyz_impl::host::resbuf& value) override;

  /// From now on nothing is printed but questions, and before each what led to it.
  void hold() { holds_ = true; }
  /// Prints what was held back, or forgets it.
  void say_held();
  void drop_held() { held_.clear(); }

  /// Texts are printed in pauses of `progress`; the questions, by its lines.
  void pause_for_texts(Progress* progress) { progress_ = progress; }

  /// Asks `accepts` about a path that was typed, before the command goes on with it; it says why not.
  void check_typed_path(std::function<bool(const std::string&)> accepts) { accepts_ = std::move(accepts); }

  /// The file to be imported next, in the place of the one given or typed.
  void choose_file(std::string path) { file_ = std::move(path); }

  /// A question of the program's own, answered by yes, which is Enter, or no. Escape and the end of input are no.
  [[nodiscard]] bool confirms(std::string_view prompt_key);

  /// Path of the file that was asked for, given or typed; as the command was told it.
  [[nodiscard]] const std::string& path() const { return path_; }

  /// Options whose question was never asked.
  [[nodiscard]] std::vector<std::string_view> unused_options() const;

 private:
  [[nodiscard]] std::optional<std::string> prepared_word();
  std::pair<vexo_xyz_impl::host::PromptStatus, std::string> typed_keyword(std::string_view prompt);
  void explain(const std::string& answer, std::size_t matches);

  LineSource& lines_;
  std::ostream& out_;
  SystemVariables& variables_;
  std::optional<std::string> file_;
  std::vector<PreparedAnswer> answers_;
  std::string path_;
  std::function<bool(const std::string&)> accepts_;
  std::vector<std::string> keywords_;
  bool holds_ = false;
  std::string held_;
  Progress* progress_ = nullptr;
};

}  // namespace console
