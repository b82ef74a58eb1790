#include "console/texts/texts.h"

#include <algorithm>
#include <string>

#include "console/texts/topics.h"

namespace console {
namespace {

template <class Visit>
void for_each_text(Visit visit) {
  for (const auto topic : {program_texts, account_texts, batch_texts, check_texts, doubt_texts, reason_texts,
                           prepare_texts, into_texts, preview_texts})
    for (const Text& text : topic()) visit(text);
}

std::string_view in_language(const Text& text, std::string_view language) {
  if (language == "DE") return text.german;
  if (language == "RO") return text.romanian;
  return language == "EN" ? text.english : text.polish;
}

class BothTexts final : public vexo_xyz_impl::host::Texts {
 public:
  BothTexts(std::string_view language, bool selectable_groups)
      : family_(vexo_teksty::language_of(language).entries),
        entries_(own_entries(language)),
        own_(entries_),
        selectable_groups_(selectable_groups) {}
  [[nodiscard]] std::string T(std::string_view key) const override {
    const std::string_view outside = outside_of_cad(key);
    return (outside.starts_with("konsola.") ? own_ : family_).T(outside);
  }

 private:
  [[nodiscard]] std::string_view outside_of_cad(std::string_view key) const {
    if (key == "xyz.grupa_hint_1")
      return selectable_groups_ ? "konsola.grupa_wybieralna" : "konsola.grupa_niewybieralna";
    if (key == "xyz.grupa_hint_2") return "konsola.grupa_polecenie";
    return key == "xyz.zoom_hint" ? "konsola.zoom" : key;
  }

  vexo_teksty::Catalogue family_;
  std::vector<vexo_teksty::Entry> entries_;
  vexo_teksty::Catalogue own_;
  bool selectable_groups_;
};

}  // namespace

std::vector<vexo_teksty::Key> own_keys() {
  std::vector<vexo_teksty::Key> keys;
  for_each_text([&](const Text& text) { keys.push_back({text.key, text.values}); });
  return keys;
}

std::vector<vexo_teksty::Entry> own_entries(std::string_view language) {
  std::vector<vexo_teksty::Entry> entries;
  for_each_text([&](const Text& text) { entries.emplace_back(text.key, in_language(text, language)); });
  std::sort(entries.begin(), entries.end());
  return entries;
}

std::shared_ptr<vexo_xyz_impl::host::Texts> texts_in(std::string_view language, bool selectable_groups) {
  return std::make_shared<BothTexts>(language, selectable_groups);
}

}  // namespace console
