// What the program says of lines that gave no point.
#include "console/texts/topics.h"

namespace console {

std::span<const Text> account_texts() {
  static constexpr auto kTexts = std::to_array<Text>({
      {"konsola.bez_punktu", "dss",  // rows, reason, lines
       "Wiersze bez punktu: %d (%s), linie %s\n",
       "Zeilen ohne Punkt: %d (%s), Zeilen %s\n",
       "Rânduri fără punct: %d (%s), liniile %s\n",
       "Rows left out: %d (%s), lines %s\n"},
      {"konsola.bez_punktu_wiersz", "ds",  // line, its text
       "  linia %d: %s\n", "  Zeile %d: %s\n", "  linia %d: %s\n", "  line %d: %s\n"},
      {"konsola.bez_punktu_dalsze", "d",  // rows not shown
       "  … i dalszych: %d (wszystkie podaje --report)\n", "  … und weitere: %d (alle stehen im Bericht: --report)\n",
       "  … și altele: %d (toate se află în raport: --report)\n", "  … and more: %d (--report holds them all)\n"},
      {"konsola.czemu_za_malo_kolumn", "", "za mało kolumn", "zu wenige Spalten", "prea puține coloane",
       "too few columns"},
      {"konsola.czemu_brak_liczby", "", "brak liczby tam, gdzie powinna być współrzędna",
       "keine Zahl, wo eine Koordinate stehen sollte", "lipsește numărul unde ar trebui să fie o coordonată",
       "no number where a coordinate is due"},
      {"konsola.czemu_odrzucony", "", "współrzędne nieskończone, zbyt wielkie lub niebędące liczbami",
       "Koordinaten unendlich, zu groß oder keine Zahlen", "coordonate infinite, prea mari sau care nu sunt numere",
       "coordinates infinite, too large or no numbers"},
      {"konsola.czemu_nie_wczytano", "", "niczego nie wczytano", "es wurde nichts eingelesen", "nu s-a citit nimic",
       "nothing was imported"},
  });
  return kTexts;
}

}  // namespace console
