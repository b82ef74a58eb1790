// The program's own texts in Polish.
#include <algorithm>
#include <array>

#include "console/texts/texts.h"

namespace console {
namespace {

constexpr auto kPolish = [] {
  auto entries = std::to_array<vexo_teksty::Entry>({
      {"konsola.zle_slowo", "Nie ma takiej odpowiedzi: „%s”. Możliwe: %s (wystarczy początek słowa; Esc przerywa).\n"},
      {"konsola.niejasne_slowo", "Odpowiedź „%s” pasuje do kilku słów: %s. Wpisz więcej liter.\n"},
      {"konsola.opcja_zbedna", "Opcja %s nie była potrzebna: to pytanie nie padło.\n"},
      {"konsola.odrzucone",
       "Uwaga: rysunek nie przyjął obiektów: %d (współrzędne są nieskończone, zbyt wielkie lub nie są liczbami).\n"},
      {"konsola.zapisano", "Rysunek: %s\n"},
      {"konsola.nie_zapisano", "Rysunku nie zapisano.\n"},
      {"konsola.blad_zapisu", "Nie można zapisać rysunku %s: %s.\nNie pozostawiono niepełnego pliku.\n"},
      {"konsola.plik_zrodlowy",
       "Plik %s zawiera wczytywane punkty i nie może zostać zastąpiony rysunkiem. Podaj inną nazwę przy -o.\n"},
      {"konsola.plik_istnieje",
       "Plik %s już istnieje. Podaj inną nazwę przy -o albo dodaj --force, aby go zastąpić.\n"},
  });
  std::sort(entries.begin(), entries.end());
  return entries;
}();

}  // namespace

std::span<const vexo_teksty::Entry> polish() { return kPolish; }

}  // namespace console
