// What the program says of lines that gave no point.
#include "console/texts/topics.h"

namespace console {

std::span<const Text> account_texts() {
  static constexpr auto kTexts = std::to_array<Text>({
      {"konsola.bez_punktu", "dss",  // rows, reason, lines
       "Pominięte wiersze: %d (%s), linie %s\n", "%d Zeilen ausgelassen: %s, Zeilen %s\n",
       "Rânduri omise: %d (%s), liniile %s\n", "%d rows left out: %s, lines %s\n"},
      {"konsola.bez_punktu_jeden", "ss",  // reason, line
       "Pominięty wiersz: %s, linia %s\n", "Eine Zeile ausgelassen: %s, Zeile %s\n", "Un rând omis: %s, linia %s\n",
       "1 row left out: %s, line %s\n"},
      {"konsola.i", "", " i ", " und ", " și ", " and "},
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

      // The report
      {"konsola.raport_wynik", "s",  // imported, nothing or failed
       "Wynik: %s\n", "Ergebnis: %s\n", "Rezultat: %s\n", "Outcome: %s\n"},
      {"konsola.raport_plik", "ss",  // encoding, separators
       "Kodowanie: %s; separatory: %s\n", "Kodierung: %s; Trennzeichen: %s\n", "Codificare: %s; separatori: %s\n",
       "Encoding: %s; separators: %s\n"},
      {"konsola.raport_linie", "dddd",  // lines, comments, blank ones, rows
       "Linie: %d = komentarze %d + puste %d + wiersze %d\n",
       "Zeilen: %d = Kommentare %d + leere %d + Datenzeilen %d\n",
       "Linii: %d = comentarii %d + goale %d + rânduri %d\n", "Lines: %d = comments %d + blank %d + rows %d\n"},
      {"konsola.raport_wiersze", "dddd",  // rows, points, skipped, left out
       "Wiersze: %d = punkty %d + odrzucone %d + poza układem kolumn %d\n",
       "Datenzeilen: %d = Punkte %d + übergangen %d + außerhalb der Spalten %d\n",
       "Rânduri: %d = puncte %d + omise %d + în afara coloanelor %d\n",
       "Rows: %d = points %d + skipped %d + left out by the layout %d\n"},
      {"konsola.raport_kolumny", "ss",  // layout, what tells it
       "Układ kolumn: %s (%s)\n", "Spalten: %s (%s)\n", "Coloane: %s (%s)\n", "Column layout: %s (%s)\n"},
      {"konsola.raport_uklad", "sfs",  // system, share in per cent, keep or swap
       "Możliwy układ współrzędnych: %s, %.1f %% punktów, osie: %s\n",
       "Mögliches Koordinatensystem: %s, %.1f %% der Punkte, Achsen: %s\n",
       "Sistem de coordonate posibil: %s, %.1f %% din puncte, axe: %s\n",
       "Coordinate system that fits: %s, %.1f %% of the points, axes: %s\n"},
      {"konsola.raport_osie", "s",  // keep, swap or unconfirmed
       "Osie: %s\n", "Achsen: %s\n", "Axe: %s\n", "Axes: %s\n"},
      {"konsola.raport_wiersz", "dss",  // line, reason, text
       "Linia %d: %s: %s\n", "Zeile %d: %s: %s\n", "Linia %d: %s: %s\n", "Line %d: %s: %s\n"},
      {"konsola.raport_przygotowano", "s",  // path
       "Plik przygotowano z: %s\n", "Die Datei wurde aufbereitet aus: %s\n", "Fișierul a fost pregătit din: %s\n",
       "The file was made of: %s\n"},
      {"konsola.raport_zapisano", "s",  // path
       "Raport: %s\n", "Bericht: %s\n", "Raport: %s\n", "Report: %s\n"},
      {"konsola.raport_blad", "ss",  // path, reason
       "Nie można zapisać raportu %s: %s.\n", "Der Bericht %s kann nicht gespeichert werden: %s.\n",
       "Raportul %s nu poate fi salvat: %s.\n", "The report %s cannot be saved: %s.\n"},
  });
  return kTexts;
}

}  // namespace console
