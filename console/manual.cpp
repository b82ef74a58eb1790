#include "console/manual.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace console {
namespace {

// A text as a page shows it: no line of it is taken for a request, no minus for a hyphen.
std::string page_text(std::string_view text) {
  std::string shown;
  bool at_line = true;
  for (const char c : text) {
    if (at_line && (c == '.' || c == '\'')) shown += "\\&";
    if (c == '\\') {
      shown += "\\e";
    } else if (c == '-') {
      shown += "\\-";
    } else {
      shown += c;
    }
    at_line = c == '\n';
  }
  return shown;
}

bool is_option(const CLI::Option* option) { return option->nonpositional() && !option->get_group().empty(); }

std::vector<std::string> spellings_of(const CLI::Option* option) {
  std::vector<std::string> names;
  for (const std::string& name : option->get_snames()) names.push_back("-" + name);
  for (const std::string& name : option->get_lnames()) names.push_back("--" + name);
  return names;
}

bool takes_value(const CLI::Option* option) { return option->get_expected_max() > 0; }

// What an option's value may be, when that is a list: "PL|DE|RO".
std::vector<std::string> values_of(const CLI::Option* option) {
  const std::string type = option->get_type_name().substr(0, option->get_type_name().find(':'));
  std::vector<std::string> values;
  if (type.find('|') == std::string::npos || type.find_first_of("[:.") != std::string::npos) return values;
  for (std::size_t at = 0; at <= type.size();) {
    const std::size_t end = std::min(type.find('|', at), type.size());
    values.push_back(type.substr(at, end - at));
    at = end + 1;
  }
  return values;
}

std::string kind_of_value(const CLI::Option* option) {
  const std::string& type = option->get_type_name();
  return type.substr(0, type.find(':'));
}

void add_option(std::string& page, const CLI::Option* option) {
  std::string names;
  for (const std::string& name : spellings_of(option))
    names += (names.empty() ? "\\fB" : ", \\fB") + page_text(name) + "\\fR";
  if (option->get_positional()) names = "\\fI" + page_text(option->get_name(true)) + "\\fR";
  page += ".TP\n" + names;
  if (takes_value(option) && !option->get_positional()) page += " \\fI" + page_text(kind_of_value(option)) + "\\fR";
  page += "\n" + page_text(option->get_description()) + "\n";
}

void add_options(std::string& page, const CLI::App& app) {
  for (const bool positional : {true, false})
    for (const CLI::Option* const option : app.get_options())
      if (option->get_positional() == positional) add_option(page, option);
  page += ".PP\n.nf\n" + page_text(app.get_footer()) + "\n.fi\n";
}

std::vector<const CLI::App*> subcommands_of(const CLI::App& app) {
  return app.get_subcommands([](const CLI::App* one) { return !one->get_group().empty(); });
}

// The case of a shell's "case" for the options whose values are known, or are files of one kind.
std::string value_cases(const CLI::App& app) {
  std::string cases;
  for (const CLI::Option* const option : app.get_options()) {
    if (!is_option(option) || !takes_value(option)) continue;
    std::string names;
    for (const std::string& name : spellings_of(option)) names += (names.empty() ? "" : "|") + name;
    std::string words;
    for (const std::string& value : values_of(option)) words += (words.empty() ? "" : " ") + value;
    const bool is_file = option->get_type_name().find('.') != std::string::npos || names == "--config";
    const std::string answer = is_file         ? "compgen -f -- \"$word\""
                               : words.empty() ? ":"
                                               : "compgen -W '" + words + "' -- \"$word\"";
    cases += "      " + names + ") mapfile -t COMPREPLY < <(" + answer + "); return ;;\n";
  }
  return cases;
}

std::string option_words(const CLI::App& app) {
  std::string words;
  for (const CLI::Option* const option : app.get_options())
    if (is_option(option))
      for (const std::string& name : spellings_of(option)) words += (words.empty() ? "" : " ") + name;
  return words;
}

// Completion behind the words that lead to `app`, as the body of a shell function.
std::string completion_of(const CLI::App& app, const std::string& function) {
  std::string commands;
  for (const CLI::App* const one : subcommands_of(app)) commands += " " + one->get_name();
  return function + "() {\n  local word=$1 before=$2\n  case $before in\n" + value_cases(app) +
         "  esac\n  if [[ $word == -* ]]; then\n    mapfile -t COMPREPLY < <(compgen -W '" + option_words(app) +
         "' -- \"$word\")\n  else\n    mapfile -t COMPREPLY < <(compgen -f -- \"$word\"" +
         (commands.empty() ? "" : "; ((COMP_CWORD > 1)) || compgen -W '" + commands.substr(1) + "' -- \"$word\"") +
         ")\n  fi\n}\n";
}

}  // namespace

std::string manual_page(const CLI::App& app) {
  const std::string name = app.get_name();
  std::string page = ".TH " + page_text(name) + " 1\n.SH NAME\n" + page_text(name) + " \\- " +
                     page_text(app.get_description()) + "\n.SH SYNOPSIS\n.B " + page_text(name) +
                     "\n[\\fIOPTIONS\\fR] [\\fIFILE\\fR ...]\n";
  for (const CLI::App* const one : subcommands_of(app))
    page += ".br\n.B " + page_text(name + " " + one->get_name()) + "\n[\\fIOPTIONS\\fR] ...\n";
  page += ".SH OPTIONS\n";
  add_options(page, app);
  for (const CLI::App* const one : subcommands_of(app)) {
    page += ".SH COMMAND " + page_text(one->get_name()) + "\n" + page_text(one->get_description()) + "\n";
    add_options(page, *one);
  }
  return page;
}

std::string bash_completion(const CLI::App& app) {
  std::string script = completion_of(app, "_vexo_xyz_import");
  std::string cases;
  for (const CLI::App* const one : subcommands_of(app)) {
    script += completion_of(*one, "_vexo_xyz_" + one->get_name());
    cases += "    " + one->get_name() + ") _vexo_xyz_" + one->get_name() + " \"$2\" \"$3\" ;;\n";
  }
  return script + "_vexo_xyz() {\n  local first=${COMP_WORDS[1]-}\n  ((COMP_CWORD > 1)) || first=\n  case $first in\n" +
         cases + "    *) _vexo_xyz_import \"$2\" \"$3\" ;;\n  esac\n}\ncomplete -o filenames -F _vexo_xyz " +
         app.get_name() + "\n";
}

}  // namespace console
