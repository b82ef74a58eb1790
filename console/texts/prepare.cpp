// What is said while a foreign table is made into a file of points.
#include "console/texts/topics.h"

namespace console {

std::span<const Text> prepare_texts() {
  static constexpr auto kTexts = std::to_array<Text>({
      {"konsola.prep_kolumny", "ss",  // roles, what they were told from
       "Kolumny: %s (%s)\n", "Spalten: %s (%s)\n", "Coloane: %s (%s)\n", "Columns: %s (%s)\n"},
      {"konsola.prep_kolejnosc", "ss",  // columns of the first and the second coordinate
       "Osie nie są znane, więc zostaje kolejność pliku: X przygotowanego pliku to kolumna %s, Y to kolumna %s.\n",
       "Die Achsen sind nicht bekannt, also bleibt die Folge der Datei: X der aufbereiteten Datei ist die Spalte %s, Y "
       "die Spalte %s.\n",
       "Axele nu sunt cunoscute, deci rămâne ordinea fișierului: X al fișierului pregătit este coloana %s, Y coloana "
       "%s.\n",
       "The axes are not known, so the file's order stays: the prepared file's X is column %s, its Y column %s.\n"},
      {"konsola.prep_arkusz", "ss",  // sheet, all sheets
       "Arkusz: %s (w skoroszycie: %s; inny podaje --sheet)\n",
       "Blatt: %s (in der Mappe: %s; ein anderes mit --sheet)\n", "Foaia: %s (în registru: %s; alta cu --sheet)\n",
       "Sheet: %s (in the workbook: %s; --sheet names another)\n"},
      {"konsola.prep_bez_arkusza", "s",  // sheets
       "W skoroszycie nie ma takiego arkusza z komórkami. Arkusze: %s\n",
       "Die Mappe hat kein solches Blatt mit Zellen. Blätter: %s\n",
       "Registrul nu are o asemenea foaie cu celule. Foi: %s\n",
       "The workbook has no such sheet with cells. Sheets: %s\n"},
      {"konsola.prep_blad_odczytu", "ss",  // kind of failure, its text
       "Nie można odczytać pliku: %s: %s\n", "Die Datei ist nicht lesbar: %s: %s\n",
       "Fișierul nu poate fi citit: %s: %s\n", "The file cannot be read: %s: %s\n"},
      {"konsola.prep_moze_stopnie", "", "Liczby mogą być też stopniami, których rysunek nie przyjmie.\n",
       "Die Zahlen könnten auch Grad sein, mit denen eine Zeichnung nichts anfängt.\n",
       "Numerele pot fi și grade, pe care desenul nu le folosește.\n",
       "The numbers may be degrees as well, which are no drawing coordinates.\n"},
      {"konsola.prep_z_nazw", "", "z nazw w nagłówku", "nach den Namen im Kopf", "după numele din antet",
       "from the names in the header"},
      {"konsola.prep_z_ukladu", "", "z linii układu współrzędnych nad danymi",
       "nach der Zeile des Koordinatensystems über den Daten",
       "după linia sistemului de coordonate de deasupra datelor",
       "from the line of the coordinate system above the data"},
      {"konsola.prep_z_etykiet", "", "pierwsza kolumna zawiera teksty", "die erste Spalte enthält Texte",
       "prima coloană conține texte", "the first column holds texts"},
      {"konsola.prep_z_numeracji", "", "pierwsza kolumna numeruje wiersze", "die erste Spalte nummeriert die Zeilen",
       "prima coloană numerotează rândurile", "the first column numbers the rows"},
      {"konsola.prep_z_kolejnosci", "", "z liczb w kolumnach", "nach den Zahlen in den Spalten",
       "după numerele din coloane", "from the numbers in the columns"},
      {"konsola.prep_pytanie", "", "Nie jest jasne, co zawierają kolumny. Pierwsze wiersze:\n",
       "Was die Spalten enthalten, ist nicht klar. Die ersten Zeilen:\n",
       "Nu este clar ce conțin coloanele. Primele rânduri:\n",
       "It is not clear what the columns hold. The first rows:\n"},
      {"konsola.prep_mozliwe", "",
       "Możliwe odczyty (nr numer, e wschód, n północ, x, y współrzędne w kolejności pliku, z wysokość, - pomijana):\n",
       "Mögliche Lesarten (nr Nummer, e Ost, n Nord, x, y Koordinaten in der Reihenfolge der Datei, z Höhe, - "
       "entfällt):\n",
       "Citiri posibile (nr număr, e est, n nord, x, y coordonate în ordinea fișierului, z cotă, - omisă):\n",
       "Possible readings (nr number, e easting, n northing, x, y coordinates in the file's order, z height, - not "
       "taken):\n"},
      {"konsola.prep_wybor", "", "Numer odczytu albo własna lista ról (Esc przerywa): ",
       "Nummer der Lesart oder eine eigene Liste der Rollen (Esc bricht ab): ",
       "Numărul citirii sau o listă proprie de roluri (Esc anulează): ",
       "Number of the reading, or a list of roles of your own (Esc cancels): "},
      {"konsola.prep_zly_wybor", "s",  // answer
       "„%s” nie jest numerem odczytu ani listą ról dla tych kolumn.\n",
       "„%s“ ist weder die Nummer einer Lesart noch eine Liste von Rollen für diese Spalten.\n",
       "„%s” nu este numărul unei citiri și nici o listă de roluri pentru aceste coloane.\n",
       "“%s” is neither the number of a reading nor a list of roles for these columns.\n"},
      {"konsola.prep_bez_wyboru", "s",  // option
       "Niczego nie zgadywano i niczego nie zapisano. Podaj kolumny opcją, na przykład: %s\n",
       "Nichts wurde geraten und nichts geschrieben. Bitte die Spalten angeben, zum Beispiel: %s\n",
       "Nu s-a ghicit și nu s-a scris nimic. Indicați coloanele, de exemplu: %s\n",
       "Nothing was guessed and nothing written. Name the columns, for instance: %s\n"},
      {"konsola.prep_zle_kolumny", "ss",  // option's value, names and positions that there are
       "--columns %s nie pasuje: potrzebne są dwie współrzędne (e,n albo x,y), każda rola najwyżej raz; kolumny pliku: "
       "%s\n",
       "--columns %s passt nicht: nötig sind zwei Koordinaten (e,n oder x,y), jede Rolle höchstens einmal; Spalten der "
       "Datei: %s\n",
       "--columns %s nu se potrivește: sunt necesare două coordonate (e,n sau x,y), fiecare rol cel mult o dată; "
       "coloanele fișierului: %s\n",
       "--columns %s does not fit: two coordinates are needed (e,n or x,y), each role at most once; columns of the "
       "file: %s\n"},
      {"konsola.prep_nazwa_dwa_razy", "ss",  // name, names and positions that there are
       "Kilka kolumn nosi nazwę „%s”; podaj kolumnę numerem: %s\n",
       "Mehrere Spalten heißen „%s“; bitte die Spalte mit ihrer Nummer angeben: %s\n",
       "Mai multe coloane se numesc „%s”; indicați coloana prin număr: %s\n",
       "Several columns are called “%s”; give the column's number: %s\n"},
      {"konsola.prep_mniej_rol", "ss",  // columns, roles
       "Tabela ma kolumn: %s, podano: %s; pozostałych się nie bierze.\n",
       "Die Tabelle hat %s Spalten, angegeben sind %s; die übrigen entfallen.\n",
       "Tabelul are %s coloane, s-au indicat %s; celelalte nu se iau.\n",
       "The table has %s columns, %s were named; the rest is not taken.\n"},
      {"konsola.prep_wiecej_rol", "ss",  // columns, roles
       "Tabela ma kolumn: %s, podano: %s.\n", "Die Tabelle hat %s Spalten, angegeben sind %s.\n",
       "Tabelul are %s coloane, s-au indicat %s.\n", "The table has %s columns, %s were named.\n"},
      {"konsola.prep_przesuniete", "s",  // column
       "Kolumna %s ma liczby całkowite, a następne z ułamkiem: to raczej część numeru niż współrzędna. Podaj rolę "
       "każdej "
       "kolumny (- pomija).\n",
       "Die Spalte %s enthält ganze Zahlen, die folgenden solche mit Nachkommastellen: eher ein Teil der Nummer als "
       "eine "
       "Koordinate. Bitte jede Spalte angeben (- entfällt).\n",
       "Coloana %s are numere întregi, iar următoarele cu zecimale: mai degrabă parte a numărului decât coordonată. "
       "Indicați rolul fiecărei coloane (- omite).\n",
       "Column %s holds whole numbers, those behind it decimals: rather a part of the number than a coordinate. Name "
       "every column (- for one not taken).\n"},
      {"konsola.prep_stopnie_zamiast_siatki", "",
       "Liczby są za małe na współrzędne E i N siatki państwowej: to zapewne stopnie, których rysunek nie przyjmie. "
       "Jeśli są to metry układu lokalnego, nazwij kolumny x i y. Nic nie zapisano.\n",
       "Die Zahlen sind zu klein für E und N eines Landesnetzes: wohl Grad, mit denen eine Zeichnung nichts anfängt. "
       "Sind es Meter eines örtlichen Netzes, bitte die Spalten x und y nennen. Nichts wurde geschrieben.\n",
       "Numerele sunt prea mici pentru E și N ale unei rețele naționale: probabil grade, pe care desenul nu le "
       "folosește. Dacă sunt metri ai unui sistem local, numiți coloanele x și y. Nu s-a scris nimic.\n",
       "The numbers are too small for E and N of a national grid: degrees, it seems, which are no drawing coordinates. "
       "If they are metres of a local system, call the columns x and y. Nothing was written.\n"},
      {"konsola.prep_stopnie", "",
       "Współrzędne podano w stopniach, a rysunek wymaga współrzędnych płaskich w metrach: najpierw je przelicz. Nic "
       "nie zapisano.\n",
       "Die Koordinaten stehen in Grad; eine Zeichnung braucht ebene Koordinaten in Metern: bitte erst umrechnen. "
       "Nichts wurde geschrieben.\n",
       "Coordonatele sunt în grade, iar desenul cere coordonate plane în metri: transformați-le mai întâi. Nu s-a "
       "scris nimic.\n",
       "The coordinates are degrees; a drawing needs grid coordinates in metres: transform them first. Nothing was "
       "written.\n"},
      {"konsola.prep_bez_wspolrzednych", "",
       "Nie ma dwóch kolumn liczb, które mogłyby być współrzędnymi. Nic nie zapisano.\n",
       "Es gibt keine zwei Spalten mit Zahlen, die Koordinaten sein könnten. Nichts wurde geschrieben.\n",
       "Nu există două coloane de numere care să poată fi coordonate. Nu s-a scris nimic.\n",
       "There are no two columns of numbers that could be coordinates. Nothing was written.\n"},
      {"konsola.prep_bez_punktow", "", "Żaden wiersz nie zawiera liczb w podanych kolumnach. Nic nie zapisano.\n",
       "In keiner Zeile stehen Zahlen in den genannten Spalten. Nichts wurde geschrieben.\n",
       "În niciun rând nu sunt numere în coloanele indicate. Nu s-a scris nimic.\n",
       "No row holds numbers in the columns named. Nothing was written.\n"},
      {"konsola.prep_zrodlo", "s",  // path
       "Plik %s jest przygotowywany i nie zostanie zastąpiony. Podaj inną nazwę przy -o.\n",
       "Die Datei %s wird aufbereitet und nicht ersetzt. Bitte bei -o einen anderen Namen angeben.\n",
       "Fișierul %s este cel pregătit și nu va fi înlocuit. Dați alt nume la -o.\n",
       "The file %s is the one that is prepared and is not replaced. Give another name with -o.\n"},
      {"konsola.prep_blad_zapisu", "ss",  // path, reason
       "Nie można zapisać pliku %s: %s.\n", "Die Datei %s kann nicht geschrieben werden: %s.\n",
       "Fișierul %s nu poate fi scris: %s.\n", "The file %s cannot be written: %s.\n"},
      {"konsola.prep_zapisano", "sd",  // path, points
       "Przygotowany plik: %s, punktów: %d\n", "Aufbereitete Datei: %s, Punkte: %d\n",
       "Fișier pregătit: %s, puncte: %d\n", "Prepared file: %s, points: %d\n"},
      {"konsola.prep_pominieto", "dss",  // rows, why, lines
       "Pominięte wiersze: %d: %s (linie: %s)\n", "Weggelassene Zeilen: %d: %s (Zeilen: %s)\n",
       "Rânduri omise: %d: %s (linii: %s)\n", "Rows left out: %d: %s (lines: %s)\n"},
      {"konsola.prep_zmieniono", "dss",  // rows, what, lines
       "Zmienione wiersze: %d: %s (linie: %s)\n", "Geänderte Zeilen: %d: %s (Zeilen: %s)\n",
       "Rânduri modificate: %d: %s (linii: %s)\n", "Rows changed: %d: %s (lines: %s)\n"},
      {"konsola.prep_ukryte", "dss",  // rows, what, lines
       "Wiersze wzięte, choć ich nie widać: %d: %s (wiersze: %s)\n",
       "Übernommen, obwohl nicht zu sehen: %d: %s (Zeilen: %s)\n",
       "Rânduri luate, deși nu se văd: %d: %s (rânduri: %s)\n",
       "Rows taken though nobody sees them: %d: %s (rows: %s)\n"},
      {"konsola.prep_ukryty", "", "ukryte w arkuszu, ręcznie albo filtrem",
       "im Blatt ausgeblendet, von Hand oder vom Filter", "ascunse în foaie, manual sau de un filtru",
       "hidden on the sheet, by hand or by a filter"},
      {"konsola.prep_bez_wysokosci_rada", "", "Z wysokością 0 zapisze je: --missing-height zero\n",
       "Mit Höhe 0 schreibt sie: --missing-height zero\n", "Cu cota 0 le scrie: --missing-height zero\n",
       "With height 0 they are written by: --missing-height zero\n"},
      {"konsola.prep_dziennik", "s",  // path
       "Która linia stała się którym wierszem: %s\n", "Welche Zeile zu welcher wurde: %s\n",
       "Ce linie a devenit ce rând: %s\n", "Which line became which row: %s\n"},
      {"konsola.prep_powtorz", "s",  // command line
       "To samo bez pytań: %s\n", "Dasselbe ohne Fragen: %s\n", "Același lucru fără întrebări: %s\n",
       "The same without questions: %s\n"},
      {"konsola.prep_malo_komorek", "", "brak wartości w potrzebnej kolumnie",
       "in einer benötigten Spalte fehlt der Wert", "lipsește valoarea într-o coloană necesară",
       "a value that is needed is missing"},
      {"konsola.prep_nie_liczba", "", "zamiast współrzędnej nie ma liczby", "anstelle der Koordinate steht keine Zahl",
       "în locul coordonatei nu este un număr", "no number where a coordinate is due"},
      {"konsola.prep_nieskonczona", "", "współrzędna nieskończona, zbyt wielka lub NaN",
       "Koordinate unendlich, viel zu groß oder NaN", "coordonată infinită, mult prea mare sau NaN",
       "a coordinate that is infinite, far too large or NaN"},
      {"konsola.prep_przesuniety", "", "o komórkę więcej przed współrzędnymi niż w innych wierszach",
       "eine Zelle mehr vor den Koordinaten als in den anderen Zeilen",
       "o celulă în plus înaintea coordonatelor față de celelalte rânduri",
       "a cell more in front of the coordinates than in the other rows"},
      {"konsola.prep_bez_wysokosci", "", "brak wysokości", "keine Höhe", "fără cotă", "no height"},
      {"konsola.prep_wysokosc_zero", "", "brak wysokości, zapisano 0", "keine Höhe, 0 geschrieben",
       "fără cotă, s-a scris 0", "no height, 0 written"},
      {"konsola.prep_numer_zmieniony", "", "z numeru usunięto znaki, które dzielą wiersz lub zaczynają komentarz",
       "aus der Nummer entfielen Zeichen, die trennen oder einen Kommentar beginnen",
       "din număr s-au scos semne care despart sau încep un comentariu",
       "signs that separate or begin a comment were taken out of the number"},
      {"konsola.prep_numer_nadany", "", "brak numeru, nadano L i numer linii",
       "keine Nummer, L und Zeilennummer gesetzt", "fără număr, s-a pus L și numărul liniei",
       "no number, named L and the line"},
      {"konsola.prep_log_plik", "ss",  // source, prepared file
       "%s -> %s\n", "%s -> %s\n", "%s -> %s\n", "%s -> %s\n"},
      {"konsola.prep_log_tekst", "ss",  // encoding, separator
       "kodowanie: %s; separator: %s\n", "Kodierung: %s; Trennzeichen: %s\n", "codificare: %s; separator: %s\n",
       "encoding: %s; separator: %s\n"},
      {"konsola.prep_log_suma_linii", "ddddd",  // lines, comments, blank, records, further lines of records
       "linie %d = komentarze %d + puste %d + wiersze %d + dalsze linie wierszy %d\n",
       "Zeilen %d = Kommentare %d + leere %d + Datensätze %d + deren weitere Zeilen %d\n",
       "linii %d = comentarii %d + goale %d + rânduri %d + alte linii ale lor %d\n",
       "lines %d = comments %d + blank %d + records %d + their further lines %d\n"},
      {"konsola.prep_log_suma", "dddd",  // records, points, head, left out
       "wiersze %d = punkty %d + nagłówek %d + pominięte %d\n",
       "Datensätze %d = Punkte %d + Kopf %d + weggelassen %d\n", "rânduri %d = puncte %d + antet %d + omise %d\n",
       "records %d = points %d + head %d + left out %d\n"},
      {"konsola.prep_log_seria", "dddd",  // lines from, to, rows from, to
       "linie %d-%d -> wiersze %d-%d\n", "Zeilen %d-%d -> Punkte %d-%d\n", "liniile %d-%d -> rândurile %d-%d\n",
       "lines %d-%d -> rows %d-%d\n"},
      {"konsola.prep_log_co_druga", "dddd",  // lines from, to, every second, rows from, to
       "linie %d-%d, co druga -> wiersze %d-%d\n", "Zeilen %d-%d, jede zweite -> Punkte %d-%d\n",
       "liniile %d-%d, din două în două -> rândurile %d-%d\n", "lines %d-%d, every second -> rows %d-%d\n"},
      {"konsola.prep_log_linia", "dd",  // line, row
       "linia %d -> wiersz %d\n", "Zeile %d -> Punkt %d\n", "linia %d -> rândul %d\n", "line %d -> row %d\n"},
      {"konsola.prep_log_naglowek", "ds",  // line, text
       "linia %d: nagłówek: %s\n", "Zeile %d: Kopf: %s\n", "linia %d: antet: %s\n", "line %d: head: %s\n"},
      {"konsola.prep_log_uwaga", "dss",  // line, what, text
       "linia %d: %s: %s\n", "Zeile %d: %s: %s\n", "linia %d: %s: %s\n", "line %d: %s: %s\n"},
  });
  return kTexts;
}

}  // namespace console
