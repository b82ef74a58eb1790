// Holds every catalogue against the list of keys; the build runs it and fails with what it finds.
#include <cstdio>
#include <set>
#include <span>
#include <string>
#include <vector>

#include "console/texts/texts.h"
#include "siblings/vexo_teksty/keys.h"
#include "siblings/vexo_teksty/teksty.h"
#include "vexo_xyz_impl/text/printf_template.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace {

using vexo_teksty::Key;

std::vector<vexo_xyz_impl::text::TemplateValue> values_of(const Key& key) {
  std::vector<vexo_xyz_impl::text::TemplateValue> values;
  for (const char kind : key.values) {
    if (kind == 's') values.emplace_back(std::string_view("x"));
    if (kind == 'd') values.emplace_back(1LL);
    if (kind == 'f') values.emplace_back(1.5);
  }
  return values;
}

void tell(std::string_view language, std::string_view key, const char* fault) {
  std::fprintf(stderr, "catalogue %s: %s: %s\n", std::string(language).c_str(), std::string(key).c_str(), fault);
}

// Holds a language's entries against the list of keys; how many faults there are, each told.
int check_entries(std::string_view language, std::span<const vexo_teksty::Entry> entries, std::span<const Key> keys) {
  int faults = 0;
  const vexo_teksty::Catalogue catalogue(entries);
  const auto report = [&](std::string_view key, const char* fault) {
    tell(language, key, fault);
    ++faults;
  };
  std::set<std::string_view> known;
  for (const Key& key : keys) {
    known.insert(key.name);
    const std::string text = catalogue.T(key.name);
    if (text == key.name || text.empty()) {
      report(key.name, "has no text");
    } else if (!vexo_xyz_impl::text::try_fill(text, values_of(key))) {
      report(key.name, "does not take its values");
    }
    if (!vexo_xyz_impl::text::is_valid(text)) report(key.name, "is not UTF-8");
  }
  std::set<std::string_view> seen;
  for (const auto& [key, text] : entries) {
    if (!known.contains(key)) report(key, "is no known key");
    if (!seen.insert(key).second) report(key, "stands twice");
  }
  return faults;
}

// Answers to one question must be told apart by their first letters and be typed as one word.
int check_questions(const vexo_teksty::Language& language) {
  int faults = 0;
  const vexo_teksty::Catalogue catalogue(language.entries);
  const auto report = [&](std::string_view key, const char* fault) {
    tell(language.code, key, fault);
    ++faults;
  };
  for (const auto& question : vexo_teksty::kQuestions) {
    std::set<char> first_letters;
    for (const std::string_view key : question) {
      const std::string word = catalogue.T(key);
      for (const char c : word)
        if (c <= ' ' || c > '~') report(key, "is no keyword of plain letters");
      first_letters.insert(word.front());
    }
    if (first_letters.size() != question.size())
      report(question.front(), "shares its first letter with another answer");
  }
  return faults;
}

}  // namespace

int main() {
  int faults = 0;
  for (const vexo_teksty::Language& language : vexo_teksty::languages()) {
    faults += check_entries(language.code, language.entries, vexo_teksty::kKeys);
    faults += check_entries(language.code, console::own_entries(language.code), console::own_keys());
    faults += check_questions(language);
  }
  return faults == 0 ? 0 : 1;
}
