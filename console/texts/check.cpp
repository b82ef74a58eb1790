// What a check of a drawing says.
#include "console/texts/topics.h"

namespace console {

std::span<const Text> check_texts() {
  static constexpr auto kTexts = std::to_array<Text>({
      {"konsola.kontrola_nie_plik", "s",  // path
       "%s: nie ma takiego pliku albo to nie jest zwykły plik. Podaj rysunek DXF.\n",
       "%s: die Datei gibt es nicht, oder sie ist keine gewöhnliche. Bitte eine DXF-Zeichnung angeben.\n",
       "%s: fișierul nu există sau nu este un fișier obișnuit. Dați un desen DXF.\n",
       "%s: there is no such file, or it is not an ordinary one. Give a DXF drawing.\n"},
      {"konsola.kontrola_brak", "sd",  // path, the most points of an import that are controlled
       "W rysunku %s żaden punkt nie jest pod kontrolą: nie wczytano ich tym programem, wczytano naraz więcej niż %d "
       "albo "
       "inny program usunął zapisy kontrolne.\n",
       "In der Zeichnung %s steht kein Punkt unter Kontrolle: es wurde keiner mit diesem Programm eingelesen, es waren "
       "mehr "
       "als %d auf einmal, oder ein anderes Programm hat die Kontrolldaten entfernt.\n",
       "În desenul %s niciun punct nu este sub control: nu au fost citite cu acest program, au fost citite mai mult de "
       "%d "
       "deodată sau alt program a șters datele de control.\n",
       "In the drawing %s no point is under control: none was imported by this program, more than %d were at a time, "
       "or "
       "another program has removed the control records.\n"},
      {"konsola.kontrola_suma", "ddsddd",  // points, in place, tolerance, moved, deleted, copied
       "Punkty pod kontrolą: %d, na miejscu: %d (tolerancja %s m); przesunięte: %d, usunięte: %d, kopie: %d.\n",
       "Punkte unter Kontrolle: %d, an ihrem Ort: %d (Toleranz %s m); verschoben: %d, gelöscht: %d, Kopien: %d.\n",
       "Puncte sub control: %d, la locul lor: %d (toleranță %s m); mutate: %d, șterse: %d, copii: %d.\n",
       "Points under control: %d, in place: %d (tolerance %s m); moved: %d, deleted: %d, copies: %d.\n"},
      {"konsola.kontrola_bez_listy", "d",  // points
       "Punkty, których wczytanie nie zostawiło w rysunku listy: %d. Nie wiadomo, czy któryś z nich usunięto.\n",
       "Punkte, deren Einlesen keine Liste in der Zeichnung hinterlassen hat: %d. Ob davon welche gelöscht wurden, "
       "lässt "
       "sich nicht sagen.\n",
       "Puncte a căror citire nu a lăsat o listă în desen: %d. Nu se poate spune dacă vreunul a fost șters.\n",
       "Points whose import left no list in the drawing: %d. Whether any of them was deleted cannot be told.\n"},
      {"konsola.kontrola_numer", "", "Numer", "Nummer", "Număr", "Number"},
      {"konsola.kontrola_co", "", "Co się stało", "Was geschah", "Ce s-a întâmplat", "What happened"},
      {"konsola.kontrola_odleglosc", "", "Odległość [m]", "Abstand [m]", "Distanță [m]", "Distance [m]"},
      {"konsola.kontrola_przesuniety", "", "przesunięty", "verschoben", "mutat", "moved"},
      {"konsola.kontrola_usuniety", "", "usunięty", "gelöscht", "șters", "deleted"},
      {"konsola.kontrola_skopiowany", "", "kopia", "Kopie", "copie", "copy"},
      {"konsola.kontrola_w_bloku", "s",  // block
       " (w bloku %s)", " (im Block %s)", " (în blocul %s)", " (in block %s)"},
  });
  return kTexts;
}

}  // namespace console
