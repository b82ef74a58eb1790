// What the program says of a picture of the points, and in it.
#include "console/texts/topics.h"

namespace console {

std::span<const Text> preview_texts() {
  static constexpr auto kTexts = std::to_array<Text>({
      {"konsola.podglad_zapisano", "s",  // path
       "Podgląd: %s\n", "Vorschau: %s\n", "Previzualizare: %s\n", "Preview: %s\n"},
      {"konsola.podglad_blad", "ss",  // path, reason
       "Nie można zapisać podglądu %s: %s.\n", "Die Vorschau %s kann nicht gespeichert werden: %s.\n",
       "Previzualizarea %s nu poate fi salvată: %s.\n", "The preview %s cannot be saved: %s.\n"},
      {"konsola.powod_raport", "", "tę nazwę ma otrzymać raport", "so soll der Bericht heißen",
       "acest nume este al raportului", "that is the report's name"},

      // In the picture
      {"konsola.podglad_liczba", "d", "Punkty: %d", "Punkte: %d", "Puncte: %d", "Points: %d"},
      {"konsola.podglad_bez_ukladu", "", "układ współrzędnych nierozpoznany", "Koordinatensystem nicht erkannt",
       "sistem de coordonate nerecunoscut", "coordinate system not recognised"},
      {"konsola.podglad_punkt", "", "punkt", "Punkt", "punct", "point"},
      {"konsola.podglad_daleko", "", "daleko od pozostałych", "weit entfernt von den anderen", "departe de celelalte",
       "far from the others"},
      {"konsola.podglad_powtorzony", "", "powtórzony numer", "doppelte Nummer", "număr repetat", "repeated number"},
      {"konsola.podglad_to_samo_miejsce", "", "to samo miejsce", "derselbe Ort", "același loc", "same place"},
      {"konsola.podglad_wysokosc", "", "wątpliwa wysokość", "zweifelhafte Höhe", "cotă îndoielnică", "doubtful height"},
      {"konsola.podglad_poza_ramka", "d",  // points
       "poza ramką: %d (odległość od środka)", "außerhalb des Rahmens: %d (Abstand von der Mitte)",
       "în afara cadrului: %d (distanța de la centru)", "outside the frame: %d (distance from its middle)"},
      {"konsola.podglad_numery", "dd",  // labels shown, points
       "Numery widoczne: %d z %d.", "Sichtbare Nummern: %d von %d.", "Numere vizibile: %d din %d.",
       "Numbers shown: %d of %d."},
      {"konsola.podglad_narysowane", "dd",  // points drawn, points in the frame
       "Narysowano %d z %d punktów w ramce; pozostałe wypadają w tych samych miejscach strony.",
       "Gezeichnet sind %d von %d Punkten im Rahmen; die übrigen fallen auf dieselben Stellen der Seite.",
       "Sunt desenate %d din %d puncte din cadru; celelalte cad în aceleași locuri pe pagină.",
       "Drawn are %d of %d points in the frame; the others fall on the same spots of the page."},
  });
  return kTexts;
}

}  // namespace console
