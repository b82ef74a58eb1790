// German, as surveyors in Germany say it: Punktnummer, Rechtswert and Hochwert, Höhe, Lagebezugssystem.
//
// Keywords are plain ASCII, so that they can be typed on any keyboard; they differ in their first letters.
#include <algorithm>
#include <array>

#include "siblings/vexo_teksty/teksty.h"

namespace vexo_teksty {
namespace {

constexpr auto kGerman = [] {
  auto entries = std::to_array<Entry>({
      // Choosing the file
      {"xyz.dialog_wybor_pliku", "Datei mit Punktkoordinaten auswählen"},
      {"xyz.anulowano_brak_pliku", "\nKeine Datei gewählt. Es wurde nichts eingelesen.\n"},
      {"xyz.prompt_sciezka", "\nPfad der Koordinatendatei: "},
      {"xyz.anulowano", "\nAbgebrochen. Es wurde nichts eingelesen, die Zeichnung ist unverändert.\n"},
      {"xyz.xls_stary_1", "\nDies ist eine Arbeitsmappe im alten Format .xls, das dieses Programm nicht liest.\n"},
      {"xyz.xls_stary_2",
       "Bitte in einer Tabellenkalkulation öffnen, als .xlsx oder .csv speichern und erneut einlesen.\n"},
      {"xyz.blad_otworz_plik",
       "\nDie Datei kann nicht geöffnet werden: %s\nBitte prüfen, ob sie vorhanden ist, eine gewöhnliche Datei ist und "
       "gelesen werden darf.\n"},
      {"xyz.info_skoroszyt", "\nArbeitsmappe .xlsx: nur das erste Tabellenblatt wird eingelesen.\n"},

      // Layout of the columns
      {"xyz.info_opis", "\nDie Spaltenfolge ist nicht eindeutig: %s.\n"},
      {"xyz.pierwszy_wiersz", "Erste Datenzeile: %s\n"},
      {"xyz.wybor_numer", "  Nummer: die erste Spalte enthält die Punktnummern\n"},
      {"xyz.wybor_wspolrzedna",
       "  Koordinate: die erste Spalte ist bereits eine Koordinate, die Punkte werden fortlaufend nummeriert\n"},
      {"xyz.prompt_pierwsza_kolumna_tpl", "Was enthält die erste Spalte? [%s] <%s>: "},
      {"xyz.kw_numer", "Nummer"},
      {"xyz.kw_wspolrzedna", "Koordinate"},
      {"xyz.opis_wybor_uzytkownika", "vom Benutzer festgelegt"},
      {"xyz.opis_z_pliku", "nach der ersten Zeile der Datei"},
      {"xyz.kolumny_nie_pasuja",
       "\nDie erste Zeile der Datei kündigt %d Spalten an, die Zeilen haben %d; Spalten- und Achsenfolge werden ohne "
       "sie bestimmt.\n"},
      {"xyz.rozpoznany_format", "\nSpaltenfolge: %s (%s).\n"},
      {"xyz.z_brak", "Die Datei enthält keine Höhen: die Punkte erhalten Z = 0.\n"},
      {"xyz.z_wczytuje", "Die Höhen der Datei werden als Z übernommen.\n"},
      {"xyz.fmt_mniej_2", "die Zeilen haben weniger als zwei Spalten"},
      {"xyz.fmt_brak_danych", "keine Zeile enthält zwei benachbarte Zahlen"},
      {"xyz.fmt_2kol", "zwei Spalten: X und Y"},
      {"xyz.fmt_niejasny", "%d Spalten, unklar ist, ob die erste die Punktnummer enthält"},
      {"xyz.fmt_3_nrxy", "drei Spalten: Punktnummer, X und Y"},
      {"xyz.fmt_3_xyz", "drei Spalten: X, Y und Höhe"},
      {"xyz.fmt_n_nrxyz", "%d Spalten, der Reihe nach Punktnummer, X, Y und Höhe"},
      {"xyz.fmt_n_xyz", "%d Spalten, der Reihe nach X, Y und Höhe"},

      // Rows
      {"xyz.zero_wierszy", "\nKein einziger Punkt gefunden. Es wurde nichts eingefügt.\n"},
      {"xyz.sprawdz_format",
       "Bitte die Datei prüfen: jede Zeile braucht der Reihe nach [Punktnummer] X Y [Höhe], getrennt durch Semikolon,\n"
       "Tabulator oder Leerzeichen; das Komma ist Dezimalzeichen; Text in UTF-8 oder Windows-1250.\n"},
      {"xyz.linia_pominieta", "  Datenzeile %d: %s: %s\n"},
      {"xyz.pow_naglowek", "statt einer Koordinate steht dort keine Zahl (Kopfzeile oder Bemerkung)"},
      {"xyz.pow_za_malo_kolumn", "zu wenige Spalten (%d statt %d)"},
      {"xyz.pominieto_naglowek", "\nÜbergangene Zeilen:\n"},
      {"xyz.pominieto_dalsze", "  … und weitere, nicht gezeigte: %d\n"},
      {"xyz.dubli",
       "\nAchtung: mehrfach vergebene Punktnummern: %d. Auch diese Punkte wurden eingefügt; bitte prüfen.\n"},

      // Coordinate system
      {"xyz.uklad_wykryto", "\nErkanntes Lagebezugssystem: %s.\n"},
      {"xyz.uklad_zamiana",
       "X ist in der Datei der Hochwert (Nordwert): X und Y wurden getauscht, damit Norden in der Zeichnung oben "
       "liegt.\n"},
      {"xyz.uklad_nierozpoznany",
       "\nKein Lagebezugssystem erkannt (örtliches System?). Die Punkte werden so eingefügt, wie sie in der Datei "
       "stehen.\n"},
      {"xyz.osie_niejednoznaczne",
       "\nDie Koordinaten lassen mehr als eine Lesart zu. Lage des ersten Punktes nach jeder von ihnen:\n"},
      {"xyz.osie_wiersz", "  %s: %s, Breite %.6f°, Länge %.6f°\n"},
      {"xyz.osie_legenda_tpl",
       "%s oder Enter: einfügen, wie es in der Datei steht; %s: Rechtswert und Hochwert tauschen.\n"
       "Esc oder Ende der Eingabe: einfügen, wie es in der Datei steht, ohne dass die Achsenfolge bestätigt ist.\n"},
      {"xyz.prompt_zamien_osie_tpl", "Ist die Reihenfolge der Achsen richtig? [%s] <%s>: "},
      {"xyz.kw_tak", "Ja"},
      {"xyz.kw_zamien", "Tauschen"},
      {"xyz.osie_podane_e",
       "\nAchsenfolge vorab angegeben: die erste Koordinate ist der Rechtswert (Ost). Die Punkte werden eingefügt, wie "
       "sie in der Datei stehen.\n"},
      {"xyz.osie_podane_n",
       "\nAchsenfolge vorab angegeben: die erste Koordinate ist der Hochwert (Nord). X und Y wurden getauscht, damit "
       "Norden in der Zeichnung oben liegt.\n"},
      {"xyz.osie_z_pliku",
       "\nAchsenfolge nach der ersten Zeile der Datei: E, N. Die Punkte werden eingefügt, wie sie in der Datei "
       "stehen.\n"},
      {"xyz.osie_wbrew_plikowi",
       "Die erste Zeile der Datei nennt die Folge E, N; es gilt die vorab angegebene Achsenfolge.\n"},
      {"xyz.osie_wbrew_liczbom",
       "Die Zahlen allein sprächen für %s mit umgekehrter Achsenfolge; es gilt die angegebene.\n"},
      {"xyz.osie_bez_ukladu", "Kein Lagebezugssystem erkannt (örtliches System?).\n"},
      {"xyz.osie_pozostaje", "Die Zahlen allein lassen mehr als eine Lesart zu; zur angegebenen Achsenfolge passt:\n"},

      // Places
      {"xyz.osie_miejsce", "    in %s\n"},
      {"xyz.osie_obok_miejsca", "    %d km %s von %s\n"},
      {"xyz.kierunek_n", "nördlich"},
      {"xyz.kierunek_ne", "nordöstlich"},
      {"xyz.kierunek_e", "östlich"},
      {"xyz.kierunek_se", "südöstlich"},
      {"xyz.kierunek_s", "südlich"},
      {"xyz.kierunek_sw", "südwestlich"},
      {"xyz.kierunek_w", "westlich"},
      {"xyz.kierunek_nw", "nordwestlich"},

      // Drawing
      {"xyz.blad_model",
       "\nDer Modellbereich kann nicht zum Schreiben geöffnet werden. Die Zeichnung ist unverändert.\n"},
      {"xyz.wstawiono_punkty", "\nPunkte mit Punktnummern eingefügt: %d (Spaltenfolge %s).\n"},
      {"xyz.kontrola_ok", "Punkte unter Verschiebungskontrolle: %d.\n"},
      {"xyz.kontrola_niedostepna",
       "Verschiebungskontrolle nicht verfügbar (%s: %s). Die Punkte sind ohne sie eingefügt.\n"},
      {"xyz.kontrola_za_duzo", "Keine Verschiebungskontrolle: es sind %d Punkte, kontrolliert werden höchstens %d.\n"},
      {"xyz.grupa_opis", "Aus einer Koordinatendatei eingelesene Punkte"},
      {"xyz.grupa_ok", "Punkte und Punktnummern sind in der Gruppe %s zusammengefasst.\n"},
      {"xyz.grupa_hint_1", "  Ein Klick auf einen Punkt wählt die ganze Gruppe.\n"},
      {"xyz.grupa_hint_2", "  Mit dem Befehl GRUPPE lässt sie sich umbenennen, nicht wählbar machen oder auflösen.\n"},
      {"xyz.grupa_blad", "Es wurde keine Gruppe angelegt: %s.\n"},
      {"xyz.grupa_reczne",
       "  Die Punkte sind in der Zeichnung; mit dem Befehl GRUPPE lassen sie sich von Hand gruppieren.\n"},
      {"xyz.grupa_pominieta", "Es wurde keine Gruppe angelegt (%s). Die Punkte sind in der Zeichnung.\n"},
      {"xyz.grup_brak_encji", "es gibt nichts zu gruppieren"},
      {"xyz.grup_brak_slownika", "das Gruppenverzeichnis der Zeichnung ist nicht zugänglich"},
      {"xyz.grup_setat", "die Zeichnung hat keine Gruppe dieses Namens angenommen"},
      {"xyz.punkty_sa", "Die Punkte liegen im Modellbereich.\n"},
      {"xyz.zoom_hint", "Um sie zu sehen: ZOOM, Grenzen.\n"},
      {"xyz.blad_ogolny", "\nDas Einlesen wurde durch einen Fehler beendet: %s: %s\n"},
  });
  std::sort(entries.begin(), entries.end());
  return entries;
}();

}  // namespace

std::span<const Entry> german() { return kGerman; }

}  // namespace vexo_teksty
