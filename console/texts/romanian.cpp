// The program's own texts in Romanian.
#include <algorithm>
#include <array>

#include "console/texts/texts.h"

namespace console {
namespace {

constexpr auto kRomanian = [] {
  auto entries = std::to_array<vexo_teksty::Entry>({
      {"konsola.zle_slowo", "Nu există răspunsul „%s”. Posibile: %s (ajunge începutul cuvântului; Esc anulează).\n"},
      {"konsola.niejasne_slowo", "Răspunsul „%s” se potrivește cu mai multe cuvinte: %s. Scrieți mai multe litere.\n"},
      {"konsola.opcja_zbedna", "Opțiunea %s nu a fost necesară: întrebarea nu s-a pus.\n"},
      {"konsola.odrzucone",
       "Atenție: obiecte respinse de desen: %d (coordonate infinite, prea mari sau care nu sunt numere).\n"},
      {"konsola.zapisano", "Desen: %s\n"},
      {"konsola.nie_zapisano", "Desenul nu a fost salvat.\n"},
      {"konsola.blad_zapisu", "Desenul %s nu poate fi salvat: %s.\nNu a rămas niciun fișier incomplet.\n"},
      {"konsola.plik_zrodlowy",
       "Fișierul %s conține punctele și nu poate fi înlocuit cu desenul. Dați alt nume la -o.\n"},
      {"konsola.plik_istnieje",
       "Fișierul %s există deja. Dați alt nume la -o sau adăugați --force pentru a-l înlocui.\n"},
  });
  std::sort(entries.begin(), entries.end());
  return entries;
}();

}  // namespace

std::span<const vexo_teksty::Entry> romanian() { return kRomanian; }

}  // namespace console
