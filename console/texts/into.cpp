// What is told of the drawing that points are added to.
#include "console/texts/topics.h"

namespace console {

std::span<const Text> into_texts() {
  static constexpr auto kTexts = std::to_array<Text>({
      {"konsola.rys_brak", "s",  // path
       "Nie ma rysunku %s. Nowy rysunek powstaje bez opcji --into.\n",
       "Die Zeichnung %s gibt es nicht. Eine neue Zeichnung entsteht ohne --into.\n",
       "Desenul %s nu există. Un desen nou se face fără --into.\n",
       "There is no drawing %s. A new drawing is made without --into.\n"},
      {"konsola.rys_nie_plik", "s",  // path
       "%s nie jest zwykłym plikiem. Podaj przy --into rysunek DXF.\n",
       "%s ist keine gewöhnliche Datei. Bitte bei --into eine DXF-Zeichnung angeben.\n",
       "%s nu este un fișier obișnuit. Dați la --into un desen DXF.\n",
       "%s is not an ordinary file. Give a DXF drawing with --into.\n"},
      {"konsola.rys_plik_punktow", "s",  // path
       "%s to plik z punktami. Podaj przy --into rysunek DXF, do którego mają trafić.\n",
       "%s ist die Datei mit den Punkten. Bitte bei --into die DXF-Zeichnung angeben, in die sie sollen.\n",
       "%s este fișierul cu puncte. Dați la --into desenul DXF în care să ajungă.\n",
       "%s is the file of points. Give the DXF drawing that they go into with --into.\n"},
      {"konsola.rys_nie_otwarto", "ss",  // path, reason
       "Nie można wczytać rysunku %s: %s.\n", "Die Zeichnung %s kann nicht gelesen werden: %s.\n",
       "Desenul %s nu poate fi citit: %s.\n", "The drawing %s cannot be read: %s.\n"},
      {"konsola.rys_nie_dxf", "s",  // path
       "%s nie jest rysunkiem DXF. Zapisz rysunek w programie CAD jako DXF (tekstowy, ASCII) i podaj ten plik.\n",
       "%s ist keine DXF-Zeichnung. Bitte im CAD-Programm als DXF (Text, ASCII) speichern und diese Datei angeben.\n",
       "%s nu este un desen DXF. Salvați desenul în programul CAD ca DXF (text, ASCII) și dați acel fișier.\n",
       "%s is not a DXF drawing. Save it as DXF (text, ASCII) in the CAD program and give that file.\n"},
      {"konsola.rys_binarny", "s",  // path
       "%s to binarny DXF. Zapisz rysunek w programie CAD jako DXF tekstowy (ASCII) i podaj ten plik.\n",
       "%s ist eine binäre DXF-Datei. Bitte im CAD-Programm als DXF in Textform (ASCII) speichern und diese Datei "
       "angeben.\n",
       "%s este un DXF binar. Salvați desenul în programul CAD ca DXF text (ASCII) și dați acel fișier.\n",
       "%s is a binary DXF file. Save the drawing as DXF in text form (ASCII) in the CAD program and give that "
       "file.\n"},
      {"konsola.rys_dwg", "s",  // path
       "%s to rysunek DWG. Zapisz go w programie CAD jako DXF tekstowy (ASCII) i podaj ten plik.\n",
       "%s ist eine DWG-Zeichnung. Bitte im CAD-Programm als DXF in Textform (ASCII) speichern und diese Datei "
       "angeben.\n",
       "%s este un desen DWG. Salvați-l în programul CAD ca DXF text (ASCII) și dați acel fișier.\n",
       "%s is a DWG drawing. Save it as DXF in text form (ASCII) in the CAD program and give that file.\n"},
      {"konsola.rys_uszkodzony", "sds",  // path, line, what is wrong there
       "Rysunek %s jest uszkodzony w linii %d: %s. Otwórz go w programie CAD, napraw i zapisz ponownie jako DXF.\n",
       "Die Zeichnung %s ist in Zeile %d beschädigt: %s. Bitte im CAD-Programm öffnen, reparieren und neu als DXF "
       "speichern.\n",
       "Desenul %s este deteriorat la linia %d: %s. Deschideți-l în programul CAD, reparați-l și salvați-l din nou ca "
       "DXF.\n",
       "The drawing %s is damaged in line %d: %s. Open it in a CAD program, repair it and save it as DXF anew.\n"},
      {"konsola.rys_zly_kod", "", "powinien tam stać kod grupy", "dort müsste ein Gruppencode stehen",
       "acolo ar trebui să fie un cod de grup", "a group code should stand there"},
      {"konsola.rys_urwany", "", "plik urywa się przed końcem rysunku", "die Datei endet vor dem Ende der Zeichnung",
       "fișierul se termină înaintea desenului", "the file ends before the drawing does"},
      {"konsola.rys_nie_na_miejscu", "", "sekcje lub tablice nie są na swoim miejscu",
       "Abschnitte oder Tabellen stehen nicht an ihrem Platz", "secțiunile sau tabelele nu sunt la locul lor",
       "sections or tables are not in their places"},
      {"konsola.rys_brak_uchwytow", "", "uchwyt jest tak duży, że nie ma już wolnych",
       "die Referenznummer (Handle) ist so groß, dass keine mehr frei ist",
       "identificatorul (handle) este atât de mare, încât nu mai există unul liber",
       "the handle is so large that none is left for new objects"},
      {"konsola.rys_zmieniony", "s",  // path
       "Rysunek %s został tymczasem zmieniony przez inny program. Nic nie zapisano; wczytaj punkty ponownie.\n",
       "Die Zeichnung %s wurde inzwischen von einem anderen Programm geändert. Nichts wurde gespeichert; bitte die "
       "Punkte erneut einlesen.\n",
       "Desenul %s a fost modificat între timp de alt program. Nu s-a salvat nimic; citiți din nou punctele.\n",
       "The drawing %s was changed by another program meanwhile. Nothing was saved; import the points again.\n"},
      {"konsola.rys_zapisano", "ss",  // path, the former drawing's path
       "Punkty dodano do rysunku: %s\nPoprzedni rysunek: %s\n",
       "Die Punkte stehen in der Zeichnung: %s\nFrühere Zeichnung: %s\n",
       "Punctele au fost adăugate în desenul: %s\nDesenul anterior: %s\n",
       "Points added to the drawing: %s\nFormer drawing: %s\n"},
      {"konsola.rys_niewidoczne", "s",  // names of layers
       "Warstwy wyłączone lub zamrożone w rysunku: %s. Włącz je, aby zobaczyć punkty.\n",
       "In der Zeichnung ausgeschaltete oder gefrorene Layer: %s. Erst eingeschaltet zeigen sie die Punkte.\n",
       "Straturi oprite sau înghețate în desen: %s. Porniți-le pentru a vedea punctele.\n",
       "Layers that are off or frozen in the drawing: %s. Turn them on to see the points.\n"},
      {"konsola.rys_jednostka", "d",  // $INSUNITS
       "Jednostką rysunku nie jest metr ($INSUNITS %d); współrzędne wstawiono tak, jak stoją.\n",
       "Die Einheit der Zeichnung ist nicht der Meter ($INSUNITS %d); die Koordinaten stehen darin wie in der Datei.\n",
       "Unitatea desenului nu este metrul ($INSUNITS %d); coordonatele au fost inserate ca atare.\n",
       "The drawing's unit is not the metre ($INSUNITS %d); the coordinates were inserted as they stand.\n"},
      {"konsola.rys_odleglosc", "s",  // distance
       "Najmniejsza odległość od zawartości rysunku: %s\n", "Kleinster Abstand zum Bestand der Zeichnung: %s\n",
       "Distanța minimă până la conținutul desenului: %s\n", "Nearest to what the drawing holds: %s\n"},
      {"konsola.odczyt_odleglosc", "s",  // distance
       "    najmniejsza odległość od zawartości rysunku: %s\n", "    kleinster Abstand zum Bestand der Zeichnung: %s\n",
       "    distanța minimă până la conținutul desenului: %s\n", "    nearest to what the drawing holds: %s\n"},
      {"konsola.watp_od_rysunku", "s",  // distance
       "punkty leżą %s od zawartości rysunku. Inny układ współrzędnych albo odwrotna kolejność osi? Sprawdź.",
       "Die Punkte liegen %s vom Bestand der Zeichnung entfernt. Ein anderes Koordinatensystem oder vertauschte "
       "Achsen? Bitte prüfen.",
       "punctele sunt la %s de conținutul desenului. Alt sistem de coordonate sau axe inversate? Verificați.",
       "the points are %s away from what the drawing holds. Another coordinate system, or exchanged axes? Check."},
  });
  return kTexts;
}

}  // namespace console
