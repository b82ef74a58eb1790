// The program's own texts in German.
#include <algorithm>
#include <array>

#include "console/texts/texts.h"

namespace console {
namespace {

constexpr auto kGerman = [] {
  auto entries = std::to_array<vexo_teksty::Entry>({
      {"konsola.zle_slowo", "Diese Antwort gibt es nicht: „%s“. Möglich: %s (der Wortanfang genügt; Esc bricht ab).\n"},
      {"konsola.niejasne_slowo", "Die Antwort „%s“ passt zu mehreren Wörtern: %s. Bitte mehr Buchstaben eingeben.\n"},
      {"konsola.opcja_zbedna", "Die Option %s wurde nicht gebraucht: diese Frage stellte sich nicht.\n"},
      {"konsola.odrzucone",
       "Achtung: von der Zeichnung abgewiesene Objekte: %d (Koordinaten sind unendlich, zu groß oder keine Zahlen).\n"},
      {"konsola.zapisano", "Zeichnung: %s\n"},
      {"konsola.nie_zapisano", "Die Zeichnung wurde nicht gespeichert.\n"},
      {"konsola.blad_zapisu",
       "Die Zeichnung %s kann nicht gespeichert werden: %s.\nEine unvollständige Datei ist nicht zurückgeblieben.\n"},
      {"konsola.plik_zrodlowy",
       "Die Datei %s enthält die Punkte und wird nicht durch die Zeichnung ersetzt. Bitte bei -o einen anderen Namen "
       "angeben.\n"},
      {"konsola.plik_istnieje",
       "Die Datei %s gibt es bereits. Bitte bei -o einen anderen Namen angeben oder mit --force ersetzen.\n"},
  });
  std::sort(entries.begin(), entries.end());
  return entries;
}();

}  // namespace

std::span<const vexo_teksty::Entry> german() { return kGerman; }

}  // namespace console
