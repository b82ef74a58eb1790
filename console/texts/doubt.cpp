// What the program doubts, a line each with the place and the remedy.
#include "console/texts/topics.h"

namespace console {

std::span<const Text> doubt_texts() {
  static constexpr auto kTexts = std::to_array<Text>({
      {"konsola.watpliwosc", "s",  // one of the texts below
       "Wątpliwość: %s\n", "Zweifel: %s\n", "Îndoială: %s\n", "Doubt: %s\n"},
      {"konsola.watp_stopnie", "ffd",  // X and Y, line
       "współrzędne wyglądają na stopnie (%.6f i %.6f, linia %d), nie na metry. Rysunek wymaga współrzędnych płaskich: "
       "najpierw je przelicz.",
       "Die Koordinaten sehen nach Grad aus (%.6f und %.6f, Zeile %d), nicht nach Metern. Eine Zeichnung braucht ebene "
       "Koordinaten: bitte erst umrechnen.",
       "coordonatele par a fi în grade (%.6f și %.6f, linia %d), nu în metri. Desenul cere coordonate plane: "
       "transformați-le mai întâi.",
       "the coordinates look like degrees (%.6f and %.6f, line %d), not metres. A drawing needs grid coordinates: "
       "transform them first."},
      {"konsola.watp_nieskonczone", "ds",  // rows, lines
       "wiersze z wartością „nan” lub „inf”: %d (linie %s). Popraw je lub usuń i wczytaj plik ponownie.",
       "Zeilen mit dem Wert „nan“ oder „inf“: %d (Zeilen %s). Bitte berichtigen oder löschen und neu einlesen.",
       "rânduri cu valoarea „nan” sau „inf”: %d (liniile %s). Corectați-le sau ștergeți-le și citiți din nou fișierul.",
       "rows with the value “nan” or “inf”: %d (lines %s). Correct or delete them and import again."},
      {"konsola.watp_daleko", "ds",  // points, lines
       "punkty bardzo odległe od wszystkich innych: %d (linie %s). Sprawdź ich współrzędne.",
       "Punkte weit weg von allen anderen: %d (Zeilen %s). Bitte ihre Koordinaten prüfen.",
       "puncte foarte departe de toate celelalte: %d (liniile %s). Verificați coordonatele lor.",
       "points far from all others: %d (lines %s). Check their coordinates."},
      {"konsola.watp_odwrotnie", "ds",  // points, lines
       "wiersze, w których X i Y stoją odwrotnie niż w pozostałych: %d (linie %s). Zamień je w nich miejscami.",
       "Zeilen, in denen X und Y umgekehrt stehen wie in den übrigen: %d (Zeilen %s). Bitte dort vertauschen.",
       "rânduri în care X și Y stau invers decât în celelalte: %d (liniile %s). Schimbați-le acolo între ele.",
       "rows whose X and Y stand the other way round than in the others: %d (lines %s). Exchange them there."},

      // Heights
      {"konsola.watp_z_naglowek", "ds",  // column, its name
       "kolumnę %d wczytano jako wysokość, a nagłówek nazywa ją „%s”. Wskaż kolumny: vexo-xyz prepare PLIK --columns …",
       "Spalte %d wurde als Höhe gelesen, der Kopf nennt sie „%s“. Spalten angeben: vexo-xyz prepare DATEI --columns …",
       "coloana %d a fost citită drept cotă, dar antetul o numește „%s”. Indicați coloanele: vexo-xyz prepare FIȘIER "
       "--columns …",
       "column %d was read as the height, but the header calls it “%s”. Name the columns: vexo-xyz prepare FILE "
       "--columns …"},
      {"konsola.watp_z_nie_liczba", "ddss",  // rows, column, a text in it, lines
       "wiersze pominięte tylko z powodu wysokości: %d (w kolumnie %d stoi np. „%s”; linie %s). Jeśli to nie są "
       "wysokości albo ich brak, wskaż kolumny: vexo-xyz prepare PLIK --columns …",
       "Zeilen, die nur wegen der Höhe fehlen: %d (in Spalte %d steht z. B. „%s“; Zeilen %s). Sind das keine Höhen "
       "oder fehlen sie, bitte Spalten angeben: vexo-xyz prepare DATEI --columns …",
       "rânduri omise numai din cauza cotei: %d (în coloana %d stă de ex. „%s”; liniile %s). Dacă nu sunt cote sau "
       "lipsesc, indicați coloanele: vexo-xyz prepare FIȘIER --columns …",
       "rows skipped only for their height: %d (column %d holds “%s”, for example; lines %s). If these are no heights, "
       "or some are missing, name the columns: vexo-xyz prepare FILE --columns …"},
      {"konsola.watp_z_jak_xy", "df",  // column, first value
       "kolumna %d, wczytana jako wysokość (%.3f …), powtarza wartości X lub Y. Sprawdź kolejność kolumn.",
       "Spalte %d, als Höhe gelesen (%.3f …), wiederholt die Werte von X oder Y. Bitte die Spaltenfolge prüfen.",
       "coloana %d, citită drept cotă (%.3f …), repetă valorile lui X sau Y. Verificați ordinea coloanelor.",
       "column %d, read as the height (%.3f …), repeats the values of X or Y. Check the order of the columns."},
      {"konsola.watp_z_za_duze", "df",  // column, first value
       "kolumna %d, wczytana jako wysokość (%.3f …), nie może zawierać wysokości w metrach. Sprawdź kolejność kolumn.",
       "Spalte %d, als Höhe gelesen (%.3f …), kann keine Höhen in Metern enthalten. Bitte die Spaltenfolge prüfen.",
       "coloana %d, citită drept cotă (%.3f …), nu poate conține cote în metri. Verificați ordinea coloanelor.",
       "column %d, read as the height (%.3f …), cannot hold heights in metres. Check the order of the columns."},
      {"konsola.watp_z_male", "df",  // column, first value
       "kolumna %d, wczytana jako wysokość, zawiera same małe wartości (%.3f …): błędy średnie? Sprawdź, czy to "
       "wysokość.",
       "Spalte %d, als Höhe gelesen, enthält nur kleine Werte (%.3f …): mittlere Fehler? Bitte prüfen, ob das eine "
       "Höhe ist.",
       "coloana %d, citită drept cotă, conține doar valori mici (%.3f …): erori medii? Verificați dacă este o cotă.",
       "column %d, read as the height, holds small values only (%.3f …): standard errors? Check whether it is a "
       "height."},
      {"konsola.watp_z_stale", "df",  // column, the value
       "kolumna %d, wczytana jako wysokość, zawiera wszędzie tę samą liczbę całkowitą (%.0f). Sprawdź, czy to "
       "wysokość.",
       "Spalte %d, als Höhe gelesen, enthält überall dieselbe ganze Zahl (%.0f). Bitte prüfen, ob das eine Höhe ist.",
       "coloana %d, citită drept cotă, conține peste tot același număr întreg (%.0f). Verificați dacă este o cotă.",
       "column %d, read as the height, holds the same whole number everywhere (%.0f). Check whether it is a height."},
      {"konsola.watp_z_licznik", "df",  // column, first value
       "kolumna %d, wczytana jako wysokość, liczy wiersze (%.0f …). Sprawdź kolejność kolumn.",
       "Spalte %d, als Höhe gelesen, zählt die Zeilen (%.0f …). Bitte die Spaltenfolge prüfen.",
       "coloana %d, citită drept cotă, numără rândurile (%.0f …). Verificați ordinea coloanelor.",
       "column %d, read as the height, counts the rows (%.0f …). Check the order of the columns."},
      {"konsola.watp_z_calkowite", "df",  // column, first value
       "kolumna %d, wczytana jako wysokość, zawiera same małe liczby całkowite (%.0f …): strefę, kod lub klasę? "
       "Sprawdź, czy to wysokość.",
       "Spalte %d, als Höhe gelesen, enthält nur kleine ganze Zahlen (%.0f …): Zone, Code oder Klasse? Bitte prüfen, "
       "ob das eine Höhe ist.",
       "coloana %d, citită drept cotă, conține doar numere întregi mici (%.0f …): zonă, cod sau clasă? Verificați dacă "
       "este o cotă.",
       "column %d, read as the height, holds small whole numbers only (%.0f …): a zone, a code or a class? Check "
       "whether it is a height."},
      {"konsola.watp_z_brak", "ddfs",  // column, rows, a value, lines
       "kolumna %d, wczytana jako wysokość, zawiera w niektórych wierszach (%d) wartość, która nią nie jest (%.3f; "
       "linie "
       "%s). Popraw je lub usuń.",
       "Spalte %d, als Höhe gelesen, enthält in einigen Zeilen (%d) einen Wert, der keine ist (%.3f; Zeilen %s). Bitte "
       "berichtigen oder löschen.",
       "coloana %d, citită drept cotă, conține în unele rânduri (%d) o valoare care nu este cotă (%.3f; liniile %s). "
       "Corectați-le sau ștergeți-le.",
       "column %d, read as the height, holds in some rows (%d) a value that is none (%.3f; lines %s). Correct or "
       "delete "
       "them."},

      // Column names and axes
      {"konsola.watp_naglowek", "ddss",  // line, column, its name, layout
       "nagłówek (linia %d) nazywa kolumnę %d „%s”, co nie zgadza się z wczytanym układem %s. Wskaż kolumny: vexo-xyz "
       "prepare PLIK --columns …",
       "Der Kopf (Zeile %d) nennt Spalte %d „%s“, was der gelesenen Spaltenfolge %s widerspricht. Spalten angeben: "
       "vexo-xyz prepare DATEI --columns …",
       "antetul (linia %d) numește coloana %d „%s”, ceea ce contrazice așezarea citită %s. Indicați coloanele: "
       "vexo-xyz prepare FIȘIER --columns …",
       "the header (line %d) calls column %d “%s”, which contradicts the column layout %s. Name the columns: vexo-xyz "
       "prepare FILE --columns …"},
      {"konsola.watp_osie_naglowek", "dss",  // line, names of the first and the second coordinate
       "nagłówek (linia %d) nazywa współrzędne „%s” i „%s”, a osie wczytano odwrotnie. Sprawdź, gdzie leży północ: "
       "--axes north-first lub east-first.",
       "Der Kopf (Zeile %d) nennt die Koordinaten „%s“ und „%s“, die Achsen wurden aber umgekehrt gelesen. Bitte "
       "prüfen, wo Norden liegt: --axes north-first oder east-first.",
       "antetul (linia %d) numește coordonatele „%s” și „%s”, dar axele au fost citite invers. Verificați unde este "
       "nordul: --axes north-first sau east-first.",
       "the header (line %d) calls the coordinates “%s” and “%s”, but the axes were taken the other way round. Check "
       "where north is: --axes north-first or east-first."},
      {"konsola.watp_osie_liczby", "s",  // system
       "podana kolejność osi przeczy liczbom: pasują one do %s tylko po zamianie X i Y. Sprawdź nazwy kolumn.",
       "Die angegebene Achsenfolge widerspricht den Zahlen: zu %s passen sie nur mit vertauschten X und Y. Bitte die "
       "Namen der Spalten prüfen.",
       "ordinea dată a axelor contrazice numerele: ele se potrivesc cu %s numai cu X și Y schimbate între ele. "
       "Verificați numele coloanelor.",
       "the order of the axes that was given contradicts the numbers: they fit %s only with X and Y exchanged. Check "
       "the "
       "names of the columns."},
      {"konsola.watp_osie", "",
       "kolejności osi nikt nie potwierdził: punkty wstawiono tak, jak stoją w pliku. Podaj ją: --axes north-first lub "
       "east-first.",
       "Die Reihenfolge der Achsen hat niemand bestätigt: die Punkte wurden so eingefügt, wie sie in der Datei stehen. "
       "Bitte angeben: --axes north-first oder east-first.",
       "ordinea axelor nu a fost confirmată: punctele au fost inserate așa cum stau în fișier. Indicați-o: --axes "
       "north-first sau east-first.",
       "nobody confirmed the order of the axes: the points were inserted as they stand in the file. State it: --axes "
       "north-first or east-first."},

      // Numbers
      {"konsola.watp_powtorzone_gdzie_indziej", "ds",  // points, lines
       "numery punktów powtarzają się w innym miejscu: %d (linie %s). Popraw numery.",
       "Punktnummern wiederholen sich an anderer Stelle: %d (Zeilen %s). Bitte die Nummern berichtigen.",
       "numerele punctelor se repetă în alt loc: %d (liniile %s). Corectați numerele.",
       "point numbers are repeated at another place: %d (lines %s). Correct the numbers."},
      {"konsola.watp_powtorzone_tam", "ds",  // points, lines
       "numery punktów powtarzają się w tym samym miejscu: %d (linie %s). Usuń zbędne wiersze.",
       "Punktnummern wiederholen sich an derselben Stelle: %d (Zeilen %s). Bitte überzählige Zeilen löschen.",
       "numerele punctelor se repetă în același loc: %d (liniile %s). Ștergeți rândurile de prisos.",
       "point numbers are repeated at the same place: %d (lines %s). Delete the rows that are too many."},
      {"konsola.watp_powtorzone", "dsds",  // points elsewhere, their lines, points at the same place, their lines
       "numery punktów się powtarzają: w innym miejscu %d (linie %s), w tym samym %d (linie %s). Popraw numery lub "
       "usuń zbędne wiersze.",
       "Punktnummern wiederholen sich: an anderer Stelle %d (Zeilen %s), an derselben %d (Zeilen %s). Bitte Nummern "
       "berichtigen oder überzählige Zeilen löschen.",
       "numerele punctelor se repetă: în alt loc %d (liniile %s), în același loc %d (liniile %s). Corectați numerele "
       "sau ștergeți rândurile de prisos.",
       "point numbers are repeated: at another place %d (lines %s), at the same place %d (lines %s). Correct the "
       "numbers or delete the surplus rows."},
      {"konsola.watp_to_samo_miejsce", "ds",  // points, lines
       "punkty w miejscu, które zajmuje już inny punkt: %d (linie %s). Sprawdź, czy nie zmierzono go dwa razy.",
       "Punkte an einer Stelle, an der schon ein anderer liegt: %d (Zeilen %s). Bitte prüfen, ob doppelt gemessen "
       "wurde.",
       "puncte aflate exact unde există deja alt punct: %d (liniile %s). Verificați dacă nu au fost măsurate de două "
       "ori.",
       "points where another point lies already: %d (lines %s). Check whether it was measured twice."},
      {"konsola.watp_przecinek", "ss",  // a number, lines
       "numery punktów zawierają znak, który zapewne oddziela kolumny („%s”; linie %s). Odczytaj je bez niego: "
       "vexo-xyz prepare PLIK.",
       "Punktnummern enthalten ein Zeichen, das wohl Spalten trennt („%s“; Zeilen %s). Ohne es einlesen: vexo-xyz "
       "prepare DATEI.",
       "numerele punctelor conțin un semn care probabil desparte coloanele („%s”; liniile %s). Citiți-le fără el: "
       "vexo-xyz prepare FIȘIER.",
       "point numbers hold a mark that seems to separate columns (“%s”; lines %s). Read them without it: vexo-xyz "
       "prepare FILE."},
      {"konsola.watp_dlugi_numer", "ds",  // labels, lines
       "numery dłuższe niż 250 bajtów: %d (linie %s); na rysunku skrócono je. Sprawdź plik.",
       "Punktnummern von mehr als 250 Byte: %d (Zeilen %s); in der Zeichnung sind sie gekürzt. Bitte die Datei "
       "prüfen.",
       "numere mai lungi de 250 de octeți: %d (liniile %s); în desen sunt scurtate. Verificați fișierul.",
       "point numbers of more than 250 bytes: %d (lines %s); in the drawing they are shortened. Check the file."},

      // Rows
      {"konsola.watp_wiersze", "ds",  // rows, lines
       "pominięte wiersze, które mogą być punktami: %d (linie %s). Uzupełnij ich kolumny lub użyj: vexo-xyz prepare "
       "PLIK.",
       "Ausgelassene Zeilen, die Punkte sein können: %d (Zeilen %s). Bitte Spalten ergänzen oder: vexo-xyz prepare "
       "DATEI.",
       "rânduri lăsate deoparte care pot fi puncte: %d (liniile %s). Completați coloanele sau: vexo-xyz prepare "
       "FIȘIER.",
       "rows left out that may be points: %d (lines %s). Complete their columns, or use vexo-xyz prepare FILE."},

      {"konsola.watp_przygotowanie", "ds",  // rows, lines
       "wiersze pierwotnego pliku, których nie przejęto przy przygotowaniu: %d (linie %s). Przyczyny podaje dziennik "
       "obok przygotowanego pliku.",
       "Zeilen der ursprünglichen Datei, die beim Aufbereiten nicht übernommen wurden: %d (Zeilen %s). Die Gründe "
       "stehen "
       "im Protokoll neben der aufbereiteten Datei.",
       "rânduri ale fișierului inițial care nu au fost preluate la pregătire: %d (liniile %s). Cauzele sunt în "
       "jurnalul "
       "de lângă fișierul pregătit.",
       "rows of the original file that were not taken over when it was prepared: %d (lines %s). The log beside the "
       "prepared file says why."},
      {"konsola.watp_urwany", "",
       "zapis arkusza urywa się, więc może brakować wierszy. Otwórz skoroszyt w arkuszu kalkulacyjnym i zapisz go "
       "ponownie.",
       "Das Tabellenblatt bricht ab, es können Zeilen fehlen. Bitte die Mappe in der Tabellenkalkulation neu "
       "speichern.",
       "scrierea foii se întrerupe, deci pot lipsi rânduri. Deschideți registrul în programul de calcul și salvați-l "
       "din "
       "nou.",
       "the worksheet breaks off, so that rows may be missing. Open the workbook in a spreadsheet program and save it "
       "again."},

      // Workbooks
      {"konsola.watp_arkusz", "ss",  // worksheet read, worksheet seen first
       "wczytano arkusz „%s”, a po otwarciu skoroszytu widać „%s”. Inny arkusz: vexo-xyz prepare PLIK --sheet NAZWA.",
       "Gelesen wurde das Blatt „%s“, beim Öffnen der Mappe sieht man „%s“. Ein anderes: vexo-xyz prepare DATEI "
       "--sheet NAME.",
       "a fost citită foaia „%s”, dar la deschiderea registrului se vede „%s”. Altă foaie: vexo-xyz prepare FIȘIER "
       "--sheet NUME.",
       "the worksheet “%s” was read, but opening the workbook shows “%s”. For another: vexo-xyz prepare FILE --sheet "
       "NAME."},
      {"konsola.watp_formula", "ds",  // cells' rows, rows
       "formuły bez zapisanego wyniku: %d (wiersze %s). Otwórz skoroszyt w arkuszu kalkulacyjnym i zapisz go ponownie.",
       "Formeln ohne gespeichertes Ergebnis: %d (Zeilen %s). Bitte die Mappe in der Tabellenkalkulation neu speichern.",
       "formule fără rezultat salvat: %d (rândurile %s). Deschideți registrul în programul de calcul tabelar și "
       "salvați-l din nou.",
       "formulas without a stored value: %d (rows %s). Open the workbook in a spreadsheet program and save it again."},
      {"konsola.watp_komorki", "ds",  // rows
       "wiersze z komórkami zapisanymi tak, że nie są tu odczytywane: %d (wiersze %s). Wszystkie odczytuje vexo-xyz "
       "prepare PLIK.",
       "Zeilen mit Zellen in einer Schreibweise, die hier nicht gelesen wird: %d (Zeilen %s). Alle liest vexo-xyz "
       "prepare DATEI.",
       "rânduri cu celule scrise într-un mod care nu se citește aici: %d (rândurile %s). Toate sunt citite de vexo-xyz "
       "prepare FIȘIER.",
       "rows with cells in a spelling that is not read here: %d (rows %s). vexo-xyz prepare FILE reads them all."},
      {"konsola.watp_data", "ds",  // rows
       "daty tam, gdzie powinny być numery lub współrzędne: %d (wiersze %s). Sformatuj kolumnę jako tekst lub: "
       "vexo-xyz prepare PLIK.",
       "Datumsangaben, wo Nummern oder Koordinaten stehen sollten: %d (Zeilen %s). Spalte als Text formatieren oder: "
       "vexo-xyz prepare DATEI.",
       "date calendaristice unde ar trebui să fie numere sau coordonate: %d (rândurile %s). Formatați coloana ca text "
       "sau: vexo-xyz prepare FIȘIER.",
       "dates where numbers are due: %d (rows %s). Format the column as text, or use vexo-xyz prepare FILE."},
      {"konsola.watp_encja", "ds",  // rows
       "znaki zapisane kodem w numerach punktów (&amp;, &#243; …): %d (wiersze %s). Poprawne numery daje vexo-xyz "
       "prepare PLIK.",
       "Als Code geschriebene Zeichen in Punktnummern (&amp;, &#243; …): %d (Zeilen %s). Die richtigen Nummern liefert "
       "vexo-xyz prepare DATEI.",
       "caractere codificate în numerele punctelor (&amp;, &#243; …): %d (rândurile %s). Numerele corecte le dă "
       "vexo-xyz prepare FIȘIER.",
       "encoded characters in point numbers (&amp;, &#243; …): %d (rows %s). vexo-xyz prepare FILE gives the right "
       "ones."},
      {"konsola.watp_filtr", "ds",  // rows
       "wczytano też wiersze ukryte lub odfiltrowane: %d (wiersze %s). Jeśli nie są potrzebne, usuń je w skoroszycie.",
       "Auch ausgeblendete oder gefilterte Zeilen wurden gelesen: %d (Zeilen %s). Falls unnötig, in der Mappe löschen.",
       "au fost citite și rânduri ascunse sau filtrate: %d (rândurile %s). Dacă nu sunt necesare, ștergeți-le din "
       "registru.",
       "hidden or filtered rows were read too: %d (rows %s). Delete them in the workbook if they are not wanted."},
  });
  return kTexts;
}

}  // namespace console
