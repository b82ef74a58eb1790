// English, for those who read neither of the markets' languages.
#include <algorithm>
#include <array>

#include "siblings/vexo_teksty/teksty.h"

namespace vexo_teksty {
namespace {

constexpr auto kEnglish = [] {
  auto entries = std::to_array<Entry>({
      // Choosing the file
      {"xyz.dialog_wybor_pliku", "Choose a file of point coordinates"},
      {"xyz.anulowano_brak_pliku", "\nNo file chosen. Nothing was read.\n"},
      {"xyz.prompt_sciezka", "\nPath of the coordinate file: "},
      {"xyz.anulowano", "\nCancelled. Nothing was read, the drawing is unchanged.\n"},
      {"xyz.xls_stary_1", "\nThis is a workbook in the old .xls format, which this program does not read.\n"},
      {"xyz.xls_stary_2", "Open it in a spreadsheet program, save it as .xlsx or .csv and import that.\n"},
      {"xyz.blad_otworz_plik",
       "\nThe file cannot be opened: %s\nCheck that it exists, that it is an ordinary file and that you may read "
       "it.\n"},
      {"xyz.info_skoroszyt", "\nWorkbook .xlsx: only its first worksheet is read.\n"},

      // Layout of the columns
      {"xyz.info_opis", "\nThe column layout is not clear: %s.\n"},
      {"xyz.pierwszy_wiersz", "First row of data: %s\n"},
      {"xyz.wybor_numer", "  Number: the first column holds point numbers\n"},
      {"xyz.wybor_wspolrzedna", "  Coordinate: the first column is a coordinate already, points will be counted\n"},
      {"xyz.prompt_pierwsza_kolumna_tpl", "What does the first column hold? [%s] <%s>: "},
      {"xyz.kw_numer", "Number"},
      {"xyz.kw_wspolrzedna", "Coordinate"},
      {"xyz.opis_wybor_uzytkownika", "layout chosen by the user"},
      {"xyz.opis_z_pliku", "stated in the file's first line"},
      {"xyz.kolumny_nie_pasuja",
       "\nThe file's first line states %d columns, but the rows have %d; columns and axes are settled without it.\n"},
      {"xyz.rozpoznany_format", "\nColumn layout: %s (%s).\n"},
      {"xyz.z_brak", "The file holds no heights: points get Z = 0.\n"},
      {"xyz.z_wczytuje", "Heights are read from the file as Z.\n"},
      {"xyz.fmt_mniej_2", "the rows have fewer than two columns"},
      {"xyz.fmt_brak_danych", "no row holds two numbers side by side"},
      {"xyz.fmt_2kol", "two columns: X and Y"},
      {"xyz.fmt_niejasny", "there are %d columns, but nothing tells whether the first is the point number"},
      {"xyz.fmt_3_nrxy", "three columns: number, X and Y"},
      {"xyz.fmt_3_xyz", "three columns: X, Y and height"},
      {"xyz.fmt_n_nrxyz", "%d columns: number, X, Y and height in this order"},
      {"xyz.fmt_n_xyz", "%d columns: X, Y and height in this order"},

      // Rows
      {"xyz.zero_wierszy", "\nNot a single point was found. Nothing was inserted.\n"},
      {"xyz.sprawdz_format",
       "Check the file: each row should hold [number] X Y [height] in this order, separated by semicolons, tabs or "
       "blanks;\n"
       "a comma is a decimal mark; text in UTF-8 or Windows-1250.\n"},
      {"xyz.linia_pominieta", "  data row %d: %s: %s\n"},
      {"xyz.pow_naglowek", "there is no number where a coordinate should be (a header or a remark)"},
      {"xyz.pow_za_malo_kolumn", "too few columns (%d where %d are needed)"},
      {"xyz.pominieto_naglowek", "\nSkipped rows:\n"},
      {"xyz.pominieto_dalsze", "  … and more that are not shown: %d\n"},
      {"xyz.dubli", "\nNote: repeated point numbers: %d. These points were inserted too; check them.\n"},

      // Coordinate system
      {"xyz.uklad_wykryto", "\nCoordinate system found: %s.\n"},
      {"xyz.uklad_zamiana",
       "In the file X is the northing: X and Y were exchanged, so that north is up in the drawing.\n"},
      {"xyz.uklad_nierozpoznany",
       "\nNo coordinate system was recognised (a local one?). The points are inserted as they stand in the file.\n"},
      {"xyz.osie_niejednoznaczne",
       "\nThe coordinates fit more than one reading. Where each of them puts the first point:\n"},
      {"xyz.osie_wiersz", "  %s: %s, latitude %.6f°, longitude %.6f°\n"},
      {"xyz.osie_legenda_tpl",
       "%s or Enter: insert as it stands in the file; %s: exchange X and Y.\n"
       "Esc or the end of input: insert as it stands in the file, with the order of the axes not confirmed.\n"},
      {"xyz.prompt_zamien_osie_tpl", "Is the order of the axes right? [%s] <%s>: "},
      {"xyz.kw_tak", "Yes"},
      {"xyz.kw_zamien", "Swap"},
      {"xyz.osie_podane_e",
       "\nOrder of the axes as told beforehand: the first coordinate is the easting. The points are inserted as they "
       "stand in the file.\n"},
      {"xyz.osie_podane_n",
       "\nOrder of the axes as told beforehand: the first coordinate is the northing. X and Y were exchanged, so that "
       "north is up in the drawing.\n"},
      {"xyz.osie_z_pliku",
       "\nOrder of the axes as stated in the file's first line: E, N. The points are inserted as they stand in the "
       "file.\n"},
      {"xyz.osie_wbrew_plikowi",
       "The file's first line states the order E, N; the order told beforehand overrules it.\n"},
      {"xyz.osie_wbrew_liczbom",
       "The numbers alone would suggest %s with the axes the other way round; the order given overrules them.\n"},
      {"xyz.osie_bez_ukladu", "No coordinate system was recognised (a local one?).\n"},
      {"xyz.osie_pozostaje", "The numbers alone fit more than one reading; what fits the order given is:\n"},

      // Places
      {"xyz.osie_miejsce", "    in %s\n"},
      {"xyz.osie_obok_miejsca", "    %d km %s of %s\n"},
      {"xyz.kierunek_n", "north"},
      {"xyz.kierunek_ne", "north-east"},
      {"xyz.kierunek_e", "east"},
      {"xyz.kierunek_se", "south-east"},
      {"xyz.kierunek_s", "south"},
      {"xyz.kierunek_sw", "south-west"},
      {"xyz.kierunek_w", "west"},
      {"xyz.kierunek_nw", "north-west"},

      // Drawing
      {"xyz.blad_model", "\nModel space cannot be opened for writing. The drawing is unchanged.\n"},
      {"xyz.wstawiono_punkty", "\nPoints inserted with their numbers: %d (column layout %s).\n"},
      {"xyz.kontrola_ok", "Points under control of shifts: %d.\n"},
      {"xyz.kontrola_niedostepna",
       "Control of shifts is not available (%s: %s). The points were inserted without it.\n"},
      {"xyz.kontrola_za_duzo", "No control of shifts: there are %d points, and it takes %d at most.\n"},
      {"xyz.grupa_opis", "Points imported from a coordinate file"},
      {"xyz.grupa_ok", "Points and numbers are gathered in the group %s.\n"},
      {"xyz.grupa_hint_1", "  Picking one point selects the whole group.\n"},
      {"xyz.grupa_hint_2", "  The command GROUP renames it, makes it unselectable or takes it apart.\n"},
      {"xyz.grupa_blad", "No group was made: %s.\n"},
      {"xyz.grupa_reczne", "  The points are in the drawing; the command GROUP can group them by hand.\n"},
      {"xyz.grupa_pominieta", "No group was made (%s). The points are in the drawing.\n"},
      {"xyz.grup_brak_encji", "there is nothing to group"},
      {"xyz.grup_brak_slownika", "the drawing's group dictionary is not accessible"},
      {"xyz.grup_setat", "the drawing did not accept a group of this name"},
      {"xyz.punkty_sa", "The points are in model space.\n"},
      {"xyz.zoom_hint", "To see them: ZOOM, Extents.\n"},
      {"xyz.blad_ogolny", "\nThe import was ended by an error: %s: %s\n"},
  });
  std::sort(entries.begin(), entries.end());
  return entries;
}();

}  // namespace

std::span<const Entry> english() { return kEnglish; }

}  // namespace vexo_teksty
