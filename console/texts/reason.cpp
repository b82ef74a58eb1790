// Why a file gives no points, and the way on.
#include "console/texts/topics.h"

namespace console {

std::span<const Text> reason_texts() {
  static constexpr auto kTexts = std::to_array<Text>({
      {"konsola.powod", "s",  // one of the texts below
       "Przyczyna: %s\n", "Grund: %s\n", "Cauza: %s\n", "Reason: %s\n"},
      {"konsola.powod_comma_separated", "",
       "wartości oddzielono przecinkami, a przecinek jest tu znakiem dziesiętnym. Odczytaj je: vexo-xyz prepare PLIK.",
       "Kommas trennen die Werte; hier gilt das Komma aber als Dezimalzeichen. Einlesen mit: vexo-xyz prepare DATEI.",
       "valorile sunt despărțite prin virgule, iar aici virgula este semn zecimal. Citiți-le cu: vexo-xyz prepare "
       "FIȘIER.",
       "the values are separated by commas, and here a comma is a decimal mark. Read them: vexo-xyz prepare FILE."},
      {"konsola.powod_pipe_separated", "", "wartości oddzielono kreskami „|”. Odczytaj je: vexo-xyz prepare PLIK.",
       "Striche „|“ trennen die Werte. Einlesen mit: vexo-xyz prepare DATEI.",
       "valorile sunt despărțite prin bare „|”. Citiți-le cu: vexo-xyz prepare FIȘIER.",
       "the values are separated by bars “|”. Read them: vexo-xyz prepare FILE."},
      {"konsola.powod_quoted", "", "wartości stoją w cudzysłowach. Odczytaj je: vexo-xyz prepare PLIK.",
       "Die Werte stehen in Anführungszeichen. Einlesen mit: vexo-xyz prepare DATEI.",
       "valorile stau între ghilimele. Citiți-le cu: vexo-xyz prepare FIȘIER.",
       "the values stand between quotation marks. Read them: vexo-xyz prepare FILE."},
      {"konsola.powod_mixed_separators", "",
       "linie oddzielają wartości różnie: jedne tabulatorem lub średnikiem, inne odstępami. Ujednolić je lub użyj: "
       "vexo-xyz prepare PLIK.",
       "Die Zeilen trennen ihre Werte verschieden: teils mit Tabulator oder Semikolon, teils mit Leerzeichen. Bitte "
       "vereinheitlichen oder: vexo-xyz prepare DATEI.",
       "liniile despart valorile diferit: unele cu tabulator sau punct și virgulă, altele cu spații. Uniformizați-le "
       "sau folosiți: vexo-xyz prepare FIȘIER.",
       "the lines separate their values in different ways: some by tabs or semicolons, others by blanks. Make them "
       "alike, or use vexo-xyz prepare FILE."},
      {"konsola.powod_linia", "d",  // line
       "linia %d dzieli się na tekst i jedną liczbę, a większość wierszy na dwie kolumny: zapewne mieszają się w niej "
       "separatory lub brakuje współrzędnej. Popraw ją lub użyj: vexo-xyz prepare PLIK.",
       "Zeile %d zerfällt in einen Text und eine Zahl, während die meisten zwei Spalten haben: wohl gemischte "
       "Trennzeichen oder eine fehlende Koordinate. Bitte berichtigen oder: vexo-xyz prepare DATEI.",
       "linia %d se desparte într-un text și un număr, iar cele mai multe rânduri au două coloane: probabil separatori "
       "amestecați sau o coordonată lipsă. Corectați-o sau folosiți: vexo-xyz prepare FIȘIER.",
       "line %d splits into a text and one number, where most rows have two columns: separators are mixed in it, or a "
       "coordinate is missing. Correct it, or use vexo-xyz prepare FILE."},
      {"konsola.powod_utf16", "", "tekst zapisano w UTF-16. Zapisz go jako UTF-8 lub użyj: vexo-xyz prepare PLIK.",
       "Der Text steht in UTF-16. Bitte als UTF-8 speichern oder: vexo-xyz prepare DATEI.",
       "textul este scris în UTF-16. Salvați-l ca UTF-8 sau folosiți: vexo-xyz prepare FIȘIER.",
       "the text is written in UTF-16. Save it as UTF-8, or use vexo-xyz prepare FILE."},
      {"konsola.powod_raster", "",
       "to siatka wysokości (raster), a nie lista punktów: jej liczby nie są współrzędnymi. Zamień ją najpierw na "
       "listę X Y Z w programie GIS.",
       "Das ist ein Höhenraster, keine Punktliste: seine Zahlen sind keine Koordinaten. Bitte im GIS erst in eine "
       "Liste X Y Z umwandeln.",
       "aceasta este o grilă de altitudini (raster), nu o listă de puncte: numerele ei nu sunt coordonate. "
       "Transformați-o mai întâi într-o listă X Y Z într-un program GIS.",
       "this is a raster grid, not a list of points: its numbers are no coordinates. Turn it into a list X Y Z in a "
       "GIS first."},
      {"konsola.powod_dms", "",
       "współrzędne zapisano w stopniach, minutach i sekundach, a rysunek wymaga współrzędnych płaskich w metrach: "
       "najpierw je przelicz.",
       "Die Koordinaten stehen in Grad, Minuten und Sekunden; eine Zeichnung braucht ebene Koordinaten in Metern: "
       "bitte erst umrechnen.",
       "coordonatele sunt scrise în grade, minute și secunde, iar desenul cere coordonate plane în metri: "
       "transformați-le mai întâi.",
       "the coordinates are written in degrees, minutes and seconds; a drawing needs grid coordinates in metres: "
       "transform them first."},
      {"konsola.powod_ods", "", "to arkusz OpenDocument (.ods). Zapisz go w arkuszu kalkulacyjnym jako .xlsx lub CSV.",
       "Das ist eine OpenDocument-Tabelle (.ods). Bitte als .xlsx oder CSV speichern.",
       "aceasta este o foaie de calcul OpenDocument (.ods). Salvați-o ca .xlsx sau CSV.",
       "this is an OpenDocument spreadsheet (.ods). Save it as .xlsx or CSV."},
      {"konsola.powod_xlsb", "", "to skoroszyt binarny (.xlsb). Zapisz go w arkuszu kalkulacyjnym jako .xlsx lub CSV.",
       "Das ist eine binäre Arbeitsmappe (.xlsb). Bitte als .xlsx oder CSV speichern.",
       "acesta este un registru binar (.xlsb). Salvați-l ca .xlsx sau CSV.",
       "this is a binary workbook (.xlsb). Save it as .xlsx or CSV."},
      {"konsola.powod_encrypted", "",
       "skoroszyt jest zaszyfrowany hasłem. Otwórz go, usuń hasło i zapisz ponownie jako .xlsx.",
       "Die Arbeitsmappe ist mit einem Kennwort verschlüsselt. Bitte öffnen, das Kennwort entfernen und als .xlsx "
       "speichern.",
       "registrul este criptat cu parolă. Deschideți-l, scoateți parola și salvați-l din nou ca .xlsx.",
       "the workbook is encrypted with a password. Open it, remove the password and save it as .xlsx."},
      {"konsola.powod_old_xls", "",
       "to skoroszyt dawnego formatu .xls. Zapisz go w arkuszu kalkulacyjnym jako .xlsx lub CSV.",
       "Das ist eine Arbeitsmappe im alten Format .xls. Bitte als .xlsx oder CSV speichern.",
       "acesta este un registru în formatul vechi .xls. Salvați-l ca .xlsx sau CSV.",
       "this is a workbook in the old .xls format. Save it as .xlsx or CSV."},
      {"konsola.powod_zip", "", "to archiwum, a nie skoroszyt. Rozpakuj je i wczytaj plik z punktami.",
       "Das ist ein Archiv, keine Arbeitsmappe. Bitte entpacken und die Punktdatei einlesen.",
       "aceasta este o arhivă, nu un registru. Dezarhivați-o și citiți fișierul cu puncte.",
       "this is an archive, not a workbook. Unpack it and import the file of points in it."},
      {"konsola.powod_dxf", "",
       "to rysunek DXF, a nie plik z punktami. Otwórz go w programie CAD i wyeksportuj współrzędne punktów.",
       "Das ist eine DXF-Zeichnung, keine Punktdatei. Bitte im CAD öffnen und die Koordinaten der Punkte ausgeben.",
       "acesta este un desen DXF, nu un fișier cu puncte. Deschideți-l într-un program CAD și exportați coordonatele.",
       "this is a DXF drawing, not a file of points. Open it in a CAD program and export the points' coordinates."},
      {"konsola.powod_dwg", "",
       "to rysunek DWG, a nie plik z punktami. Otwórz go w programie CAD i wyeksportuj współrzędne punktów.",
       "Das ist eine DWG-Zeichnung, keine Punktdatei. Bitte im CAD öffnen und die Koordinaten der Punkte ausgeben.",
       "acesta este un desen DWG, nu un fișier cu puncte. Deschideți-l într-un program CAD și exportați coordonatele.",
       "this is a DWG drawing, not a file of points. Open it in a CAD program and export the points' coordinates."},
      {"konsola.powod_pdf", "", "to dokument PDF. Poproś o współrzędne w pliku tekstowym lub w skoroszycie.",
       "Das ist ein PDF-Dokument. Bitte die Koordinaten als Textdatei oder Arbeitsmappe anfordern.",
       "acesta este un document PDF. Cereți coordonatele într-un fișier text sau într-un registru.",
       "this is a PDF document. Ask for the coordinates as a text file or a workbook."},
      {"konsola.powod_image", "",
       "to obraz, a nie plik z punktami. Poproś o współrzędne w pliku tekstowym lub w skoroszycie.",
       "Das ist ein Bild, keine Punktdatei. Bitte die Koordinaten als Textdatei oder Arbeitsmappe anfordern.",
       "aceasta este o imagine, nu un fișier cu puncte. Cereți coordonatele într-un fișier text sau într-un registru.",
       "this is an image, not a file of points. Ask for the coordinates as a text file or a workbook."},
      {"konsola.powod_cells_unreadable", "",
       "w skoroszycie nie znaleziono komórek, które można tu odczytać. Użyj: vexo-xyz prepare PLIK, albo zapisz arkusz "
       "jako CSV.",
       "In der Arbeitsmappe fand sich keine Zelle in der Schreibweise, die hier gelesen wird. Bitte: vexo-xyz prepare "
       "DATEI, oder das Blatt als CSV speichern.",
       "în registru nu s-au găsit celule care să poată fi citite aici. Folosiți: vexo-xyz prepare FIȘIER sau salvați "
       "foaia ca CSV.",
       "the workbook holds no cells in the spelling that is read here. Use vexo-xyz prepare FILE, or save the "
       "worksheet as CSV."},
      {"konsola.powod_ponad_miare", "",
       "skoroszyt jest zbyt duży, by go tu wczytać. Zostaw w nim tylko punkty lub zapisz arkusz jako CSV.",
       "Die Arbeitsmappe ist zu groß, um hier gelesen zu werden. Bitte nur die Punkte darin lassen oder das Blatt als "
       "CSV speichern.",
       "registrul este prea mare pentru a fi citit aici. Lăsați în el numai punctele sau salvați foaia ca CSV.",
       "the workbook is too large to be read here. Keep the points alone in it, or save the worksheet as CSV."},
      {"konsola.powod_inny_arkusz", "ss",  // the worksheet that is read, one with values
       "wczytywany arkusz „%s” jest pusty, a dane stoją w arkuszu „%s”. Odczytaj go: vexo-xyz prepare PLIK --sheet "
       "NAZWA.",
       "Das gelesene Blatt „%s“ ist leer, Werte stehen auf „%s“. Einlesen mit: vexo-xyz prepare DATEI --sheet NAME.",
       "foaia citită „%s” este goală, iar valorile sunt în „%s”. Citiți-o cu: vexo-xyz prepare FIȘIER --sheet NUME.",
       "the worksheet that is read, “%s”, is empty, and values stand on “%s”. Read it: vexo-xyz prepare FILE --sheet "
       "NAME."},
      {"konsola.powod_empty", "", "plik jest pusty.", "Die Datei ist leer.", "fișierul este gol.",
       "the file is empty."},
      {"konsola.powod_no_numbers", "",
       "w żadnym wierszu nie ma współrzędnych w pierwszych kolumnach. Jeśli są w innych, wskaż je: vexo-xyz prepare "
       "PLIK --columns …",
       "In keiner Zeile stehen Koordinaten in den ersten Spalten. Stehen sie in anderen, bitte angeben: vexo-xyz "
       "prepare DATEI --columns …",
       "în niciun rând coordonatele nu stau în primele coloane. Dacă stau în altele, indicați-le: vexo-xyz prepare "
       "FIȘIER --columns …",
       "in no row do coordinates stand in the first columns. If they stand in others, name these: vexo-xyz prepare "
       "FILE --columns …"},
      {"konsola.powod_bez_wysokosci", "",
       "w żadnym wierszu nie ma liczby tam, gdzie powinna być wysokość. Wskaż kolumny: vexo-xyz prepare PLIK --columns "
       "…",
       "In keiner Zeile steht eine Zahl, wo die Höhe stehen sollte. Bitte Spalten angeben: vexo-xyz prepare DATEI "
       "--columns …",
       "în niciun rând nu există un număr unde ar trebui să fie cota. Indicați coloanele: vexo-xyz prepare FIȘIER "
       "--columns …",
       "in no row does a number stand where the height is due. Name the columns: vexo-xyz prepare FILE --columns …"},
      {"konsola.powod_unreadable", "",
       "pliku nie można odczytać: nie istnieje, jest uszkodzony, nie wolno go czytać albo nie jest zwykłym plikiem. "
       "Sprawdź ścieżkę lub pobierz plik ponownie.",
       "Die Datei ist nicht lesbar: es gibt sie nicht, sie ist beschädigt, gesperrt oder keine gewöhnliche Datei. "
       "Bitte den Pfad prüfen oder die Datei neu beschaffen.",
       "fișierul nu poate fi citit: nu există, este deteriorat, nu aveți drept de citire sau nu este un fișier "
       "obișnuit. Verificați calea sau obțineți din nou fișierul.",
       "the file cannot be read: it does not exist, is damaged, may not be read or is no ordinary file. Check the "
       "path, or get the file again."},

      // Files set aside, where many are imported with nobody to ask
      {"konsola.powod_columns_open", "",
       "trzeba wiedzieć, czy pierwsza kolumna to numer: podaj --first-column number albo coordinate, albo wczytaj ten "
       "plik osobno.",
       "Es muss bekannt sein, ob die erste Spalte die Nummer ist: --first-column number oder coordinate angeben oder "
       "diese Datei allein einlesen.",
       "trebuie știut dacă prima coloană este numărul: dați --first-column number sau coordinate ori citiți "
       "fișierul separat.",
       "whether the first column is the number has to be known: give --first-column number or coordinate, or import "
       "this file by itself."},
      {"konsola.powod_axes_open", "",
       "współrzędne pasują do więcej niż jednej kolejności osi: podaj --axes albo wczytaj ten plik osobno.",
       "Die Koordinaten lassen mehr als eine Reihenfolge der Achsen zu: --axes angeben oder diese Datei allein "
       "einlesen.",
       "coordonatele se potrivesc cu mai multe ordini ale axelor: dați --axes sau citiți fișierul separat.",
       "the coordinates fit more than one reading of the axes: give --axes, or import this file by itself."},
  });
  return kTexts;
}

}  // namespace console
