// What the program says of several files imported in one run.
#include "console/texts/topics.h"

namespace console {

std::span<const Text> batch_texts() {
  static constexpr auto kTexts = std::to_array<Text>({
      {"konsola.wsad_plik", "", "Plik", "Datei", "Fișier", "File"},
      {"konsola.wsad_punkty", "", "Punkty", "Punkte", "Puncte", "Points"},
      {"konsola.wsad_rysunek", "", "Rysunek", "Zeichnung", "Desen", "Drawing"},
      {"konsola.wsad_wynik", "", "Wynik", "Ergebnis", "Rezultat", "What came of it"},
      {"konsola.wsad_wczytany", "", "wczytany", "eingelesen", "importat", "imported"},
      {"konsola.wsad_odlozony", "", "odłożony", "beiseitegelegt", "pus deoparte", "set aside"},
      {"konsola.wsad_nic", "", "nic nie wczytano", "nichts eingelesen", "nu s-a citit nimic", "nothing imported"},
      {"konsola.wsad_blad", "", "błąd", "Fehler", "eroare", "failed"},
      {"konsola.wsad_sygnal", "d",  // number
       "proces został zakończony sygnałem %d", "der Prozess wurde durch Signal %d beendet",
       "procesul a fost încheiat de semnalul %d", "the process was ended by signal %d"},
      {"konsola.wsad_razem", "ddd",  // files imported, files, points
       "Wczytano plików: %d z %d, punktów: %d.\n", "Eingelesene Dateien: %d von %d, Punkte: %d.\n",
       "Fișiere importate: %d din %d, puncte: %d.\n", "Files imported: %d of %d, points: %d.\n"},
  });
  return kTexts;
}

}  // namespace console
