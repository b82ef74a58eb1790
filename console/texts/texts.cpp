#include "console/texts/texts.h"

#include <string>

namespace console {
namespace {

class BothTexts final : public vexo_xyz_impl::host::Texts {
 public:
  explicit BothTexts(std::string_view language)
      : family_(vexo_teksty::language_of(language).entries), own_(own_entries(language)) {}
  [[nodiscard]] std::string T(std::string_view key) const override {
    return (key.starts_with("konsola.") ? own_ : family_).T(key);
  }

 private:
  vexo_teksty::Catalogue family_;
  vexo_teksty::Catalogue own_;
};

}  // namespace

std::span<const vexo_teksty::Entry> own_entries(std::string_view language) {
  if (language == "DE") return german();
  if (language == "RO") return romanian();
  return language == "EN" ? english() : polish();
}

std::shared_ptr<vexo_xyz_impl::host::Texts> texts_in(std::string_view language) {
  return std::make_shared<BothTexts>(language);
}

}  // namespace console
