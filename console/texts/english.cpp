// The program's own texts in English.
#include <algorithm>
#include <array>

#include "console/texts/texts.h"

namespace console {
namespace {

constexpr auto kEnglish = [] {
  auto entries = std::to_array<vexo_teksty::Entry>({
      {"konsola.zle_slowo",
       "There is no answer “%s”. Possible: %s (the beginning of a word is enough; Esc cancels).\n"},
      {"konsola.niejasne_slowo", "The answer “%s” fits several words: %s. Type more letters.\n"},
      {"konsola.opcja_zbedna", "The option %s was not needed: the question did not arise.\n"},
      {"konsola.odrzucone",
       "Note: objects refused by the drawing: %d (their coordinates are infinite, too large or no numbers).\n"},
      {"konsola.zapisano", "Drawing: %s\n"},
      {"konsola.nie_zapisano", "The drawing was not saved.\n"},
      {"konsola.blad_zapisu", "The drawing %s cannot be saved: %s.\nNo incomplete file was left behind.\n"},
      {"konsola.plik_zrodlowy",
       "The file %s holds the points and is not replaced by the drawing. Give another name with -o.\n"},
      {"konsola.plik_istnieje", "The file %s exists already. Give another name with -o, or replace it with --force.\n"},
  });
  std::sort(entries.begin(), entries.end());
  return entries;
}();

}  // namespace

std::span<const vexo_teksty::Entry> english() { return kEnglish; }

}  // namespace console
