#include "console/repeat.h"

#include <algorithm>

#include "console/shell_word.h"

namespace console {

std::string repeating_command(const std::string& file, const std::vector<std::string>& options,
                              const std::vector<std::string>& answers) {
  const auto is_given = [&options](const std::string& option) {
    return std::any_of(options.begin(), options.end(),
                       [&option](const std::string& word) { return word == option || word.starts_with(option + "="); });
  };
  std::string command = "vexo-xyz " + shell_word(file.starts_with('-') ? "./" + file : file);
  for (const std::string& word : options) command += " " + shell_word(word);
  for (std::size_t i = 0; i + 1 < answers.size(); i += 2)
    if (!is_given(answers[i])) command += " " + answers[i] + " " + answers[i + 1];
  if (is_given("--output") && !is_given("--force")) command += " --force";  // it is there now
  return command;
}

}  // namespace console
