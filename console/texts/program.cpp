// What the program says of options, answers and the drawing's file.
#include "console/texts/topics.h"

namespace console {

std::span<const Text> program_texts() {
  static constexpr auto kTexts = std::to_array<Text>({
      {"konsola.zle_slowo", "ss",  // answer, words
       "Nie ma takiej odpowiedzi: „%s”. Możliwe: %s (wystarczy początek słowa; Esc przerywa).\n",
       "Diese Antwort gibt es nicht: „%s“. Möglich: %s (der Wortanfang genügt; Esc bricht ab).\n",
       "Nu există răspunsul „%s”. Posibile: %s (ajunge începutul cuvântului; Esc anulează).\n",
       "There is no answer “%s”. Possible: %s (the beginning of a word is enough; Esc cancels).\n"},
      {"konsola.niejasne_slowo", "ss",  // answer, words
       "Odpowiedź „%s” pasuje do kilku słów: %s. Wpisz więcej liter.\n",
       "Die Antwort „%s“ passt zu mehreren Wörtern: %s. Bitte mehr Buchstaben eingeben.\n",
       "Răspunsul „%s” se potrivește cu mai multe cuvinte: %s. Scrieți mai multe litere.\n",
       "The answer “%s” fits several words: %s. Type more letters.\n"},
      {"konsola.opcja_zbedna", "s",  // option
       "Opcja %s nie była potrzebna: to pytanie nie padło.\n",
       "Die Option %s wurde nicht gebraucht: diese Frage stellte sich nicht.\n",
       "Opțiunea %s nu a fost necesară: întrebarea nu s-a pus.\n",
       "The option %s was not needed: the question did not arise.\n"},
      {"konsola.odrzucone", "d",  // objects refused
       "Uwaga: rysunek nie przyjął obiektów: %d (współrzędne są nieskończone, zbyt wielkie lub nie są liczbami).\n",
       "Achtung: von der Zeichnung abgewiesene Objekte: %d (Koordinaten sind unendlich, zu groß oder keine Zahlen).\n",
       "Atenție: obiecte respinse de desen: %d (coordonate infinite, prea mari sau care nu sunt numere).\n",
       "Note: objects refused by the drawing: %d (their coordinates are infinite, too large or no numbers).\n"},
      {"konsola.zapisano", "s",  // path
       "Rysunek: %s\n", "Zeichnung: %s\n", "Desen: %s\n", "Drawing: %s\n"},
      {"konsola.nie_zapisano", "", "Rysunku nie zapisano.\n", "Die Zeichnung wurde nicht gespeichert.\n",
       "Desenul nu a fost salvat.\n", "The drawing was not saved.\n"},
      {"konsola.blad_zapisu", "ss",  // path, reason
       "Nie można zapisać rysunku %s: %s.\nNie pozostawiono niepełnego pliku.\n",
       "Die Zeichnung %s kann nicht gespeichert werden: %s.\nEine unvollständige Datei ist nicht zurückgeblieben.\n",
       "Desenul %s nu poate fi salvat: %s.\nNu a rămas niciun fișier incomplet.\n",
       "The drawing %s cannot be saved: %s.\nNo incomplete file was left behind.\n"},
      {"konsola.plik_zrodlowy", "s",  // path
       "Plik %s zawiera wczytywane punkty i nie może zostać zastąpiony rysunkiem. Podaj inną nazwę przy -o.\n",
       "Die Datei %s enthält die Punkte und wird nicht durch die Zeichnung ersetzt. Bitte bei -o einen anderen Namen "
       "angeben.\n",
       "Fișierul %s conține punctele și nu poate fi înlocuit cu desenul. Dați alt nume la -o.\n",
       "The file %s holds the points and is not replaced by the drawing. Give another name with -o.\n"},
      {"konsola.plik_istnieje", "s",  // path
       "Plik %s już istnieje. Podaj inną nazwę przy -o albo dodaj --force, aby go zastąpić.\n",
       "Die Datei %s gibt es bereits. Bitte bei -o einen anderen Namen angeben oder mit --force ersetzen.\n",
       "Fișierul %s există deja. Dați alt nume la -o sau adăugați --force pentru a-l înlocui.\n",
       "The file %s exists already. Give another name with -o, or replace it with --force.\n"},
  });
  return kTexts;
}

}  // namespace console
