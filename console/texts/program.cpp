// What the program says of options, answers and the drawing's file.
#include "console/texts/topics.h"

namespace console {

std::span<const Text> program_texts() {
  static constexpr auto kTexts = std::to_array<Text>({
      {"konsola.prompt_przygotuj", "sss",  // yes, no, default
       "Przygotować z niego plik, który da się wczytać? [%s/%s] <%s>: ",
       "Daraus eine Datei machen, die sich einlesen lässt? [%s/%s] <%s>: ",
       "Se face din el un fișier care poate fi citit? [%s/%s] <%s>: ",
       "Make a file of it that can be read? [%s/%s] <%s>: "},
      {"konsola.tak", "", "Tak", "Ja", "Da", "Yes"},
      {"konsola.nie", "", "Nie", "Nein", "Nu", "No"},
      {"konsola.zle_slowo", "ss",  // answer, words
       "Nie ma takiej odpowiedzi: „%s”. Możliwe: %s (wystarczy początek słowa).\n",
       "Diese Antwort gibt es nicht: „%s“. Möglich: %s (der Wortanfang genügt).\n",
       "Nu există răspunsul „%s”. Posibile: %s (ajunge începutul cuvântului).\n",
       "There is no answer “%s”. Possible: %s (the beginning of a word is enough).\n"},
      {"konsola.niejasne_slowo", "ss",  // answer, words
       "Odpowiedź „%s” pasuje do kilku słów: %s. Wpisz więcej liter.\n",
       "Die Antwort „%s“ passt zu mehreren Wörtern: %s. Bitte mehr Buchstaben eingeben.\n",
       "Răspunsul „%s” se potrivește cu mai multe cuvinte: %s. Scrieți mai multe litere.\n",
       "The answer “%s” fits several words: %s. Type more letters.\n"},
      {"konsola.odczyt_udzial", "d",  // share in per cent
       "    pasuje do %d %% badanych punktów\n", "    passt zu %d %% der geprüften Punkte\n",
       "    se potrivește cu %d %% din punctele verificate\n", "    fits %d %% of the points looked at\n"},
      {"konsola.odczyt_naglowek", "dss",  // line, names of the first and the second coordinate
       "    tak mówi nagłówek (linia %d): „%s”, „%s”\n", "    so sagt es der Kopf (Zeile %d): „%s“, „%s“\n",
       "    așa spune antetul (linia %d): „%s”, „%s”\n", "    so the header says (line %d): “%s”, “%s”\n"},
      {"konsola.grupa_wybieralna", "",
       "  W programie CAD wskazanie jednego punktu wybiera całą grupę (zapobiega temu --group-selectable no).\n",
       "  Im CAD-Programm wählt das Anklicken eines Punktes die ganze Gruppe (--group-selectable no verhindert es).\n",
       "  În programul CAD, alegerea unui punct selectează tot grupul (--group-selectable no împiedică acest lucru).\n",
       "  In a CAD program picking one point selects the whole group (--group-selectable no prevents it).\n"},
      {"konsola.grupa_niewybieralna", "", "  Wskazanie punktu wybiera tylko ten punkt; grupę wybiera się jej nazwą.\n",
       "  Das Anklicken eines Punktes wählt nur ihn; die Gruppe wird über ihren Namen gewählt.\n",
       "  Alegerea unui punct îl selectează doar pe el; grupul se selectează după nume.\n",
       "  Picking a point selects only that point; the group is selected by its name.\n"},
      {"konsola.grupa_polecenie", "", "  Polecenie GRUPA programu CAD zmienia jej nazwę lub ją rozbija.\n",
       "  Der Befehl GRUPPE des CAD-Programms benennt sie um oder löst sie auf.\n",
       "  Comanda GROUP a programului CAD o redenumește sau o desface.\n",
       "  The command GROUP of the CAD program renames it or takes it apart.\n"},
      {"konsola.zoom", "", "Aby je zobaczyć w programie CAD: ZOOM, Zakres.\n",
       "Um sie im CAD-Programm zu sehen: ZOOM, Grenzen.\n", "Pentru a le vedea în programul CAD: ZOOM, Extents.\n",
       "To see them in a CAD program: ZOOM, Extents.\n"},
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
      {"konsola.postep_czytanie", "", "Wczytywanie", "Einlesen", "Citire", "Reading"},
      {"konsola.postep_wstawianie", "", "Wstawianie", "Einfügen", "Inserare", "Inserting"},
      {"konsola.postep_zapis", "", "Zapisywanie", "Speichern", "Salvare", "Saving"},
      {"konsola.rada_nazwa", "", "Podaj przy -o inne miejsce dla rysunku.\n",
       "Bitte bei -o einen anderen Ort für die Zeichnung angeben.\n", "Dați la -o alt loc pentru desen.\n",
       "Give another place for the drawing with -o.\n"},
      {"konsola.urzadzenie", "s",  // path
       "%s leży w folderze systemu, w którym nie zapisuje się rysunków. Podaj przy -o, gdzie ma powstać rysunek.\n",
       "%s liegt in einem Systemordner, in dem keine Zeichnung gespeichert wird. Bitte bei -o angeben, wo sie stehen "
       "soll.\n",
       "%s se află într-un folder al sistemului, în care nu se salvează desene. Dați la -o locul desenului.\n",
       "%s is in a folder of the system, where no drawing is saved. Say with -o where the drawing is to stand.\n"},

      // What was being done to a file, and why it failed
      {"konsola.krok_utworzenie", "s",  // reason
       "nie udało się utworzyć pliku w tym folderze: %s", "in diesem Ordner ließ sich keine Datei anlegen: %s",
       "nu s-a putut crea un fișier în acest folder: %s", "no file could be created in that folder: %s"},
      {"konsola.krok_zapis", "s",  // reason
       "zapis danych się nie powiódł: %s", "das Schreiben ist fehlgeschlagen: %s", "scrierea datelor a eșuat: %s",
       "writing failed: %s"},
      {"konsola.krok_utrwalenie", "s",  // reason
       "nie udało się utrwalić danych na dysku: %s", "die Daten ließen sich nicht auf dem Datenträger sichern: %s",
       "datele nu au putut fi asigurate pe disc: %s", "the data could not be secured on the disk: %s"},
      {"konsola.krok_nazwa", "s",  // reason
       "nie udało się nadać plikowi tej nazwy: %s", "die Datei ließ sich nicht so benennen: %s",
       "fișierul nu a putut primi acest nume: %s", "the file could not be given this name: %s"},
      {"konsola.powod_brak_folderu", "", "nie ma takiego folderu", "den Ordner gibt es nicht", "folderul nu există",
       "there is no such folder"},
      {"konsola.powod_brak_prawa", "", "brak uprawnień", "die Berechtigung fehlt", "lipsesc drepturile de acces",
       "permission is missing"},
      {"konsola.powod_dysk_pelny", "", "dysk jest pełny", "der Datenträger ist voll", "discul este plin",
       "the disk is full"},
      {"konsola.powod_przydzial", "", "przydział miejsca na dysku jest wyczerpany",
       "das Speicherkontingent ist erschöpft", "cota de spațiu pe disc este epuizată",
       "the quota of disk space is used up"},
      {"konsola.powod_za_duzy", "", "plik przekroczyłby dozwoloną wielkość", "die Datei würde größer als zugelassen",
       "fișierul ar depăși dimensiunea permisă", "the file would be larger than allowed"},
      {"konsola.powod_tylko_odczyt", "", "nośnik jest tylko do odczytu", "der Datenträger ist schreibgeschützt",
       "suportul este numai pentru citire", "the medium is read-only"},
      {"konsola.powod_istnieje", "", "taki plik już istnieje", "eine solche Datei gibt es bereits",
       "un astfel de fișier există deja", "such a file exists already"},
      {"konsola.powod_nie_plik", "", "to nie jest zwykły plik", "das ist keine gewöhnliche Datei",
       "acesta nu este un fișier obișnuit", "that is not an ordinary file"},
      {"konsola.powod_plik_punktow", "", "ten plik zawiera wczytywane punkty", "diese Datei enthält die Punkte",
       "acest fișier conține punctele", "that file holds the points"},
      {"konsola.powod_nie_raport", "", "jest tam już inny plik", "dort steht schon eine andere Datei",
       "există deja acolo alt fișier", "another file is there already"},
      {"konsola.powod_rysunek", "", "tę nazwę ma otrzymać rysunek", "so soll die Zeichnung heißen",
       "acest nume este al desenului", "that is the drawing's name"},
      {"konsola.powod_dluga_nazwa", "", "nazwa jest za długa", "der Name ist zu lang", "numele este prea lung",
       "the name is too long"},
      {"konsola.powod_nosnik", "", "błąd nośnika", "Fehler des Datenträgers", "eroare a suportului",
       "the medium failed"},
      {"konsola.powod_inny", "sd",  // the system's words, its number
       "%s (błąd systemu %d)", "%s (Systemfehler %d)", "%s (eroare de sistem %d)", "%s (system error %d)"},
  });
  return kTexts;
}

}  // namespace console
