// Romanian, as surveyors say it: pichet for a surveyed point, cotă for its height, sistem de coordonate.
//
// Keywords are plain ASCII, so that they can be typed on any keyboard; they differ in their first letters.
#include <algorithm>
#include <array>

#include "siblings/vexo_teksty/teksty.h"

namespace vexo_teksty {
namespace {

constexpr auto kRomanian = [] {
  auto entries = std::to_array<Entry>({
      // Choosing the file
      {"xyz.dialog_wybor_pliku", "Alegeți fișierul cu coordonatele punctelor"},
      {"xyz.anulowano_brak_pliku", "\nNu a fost ales niciun fișier. Nu s-a citit nimic.\n"},
      {"xyz.prompt_sciezka", "\nCalea fișierului cu coordonate: "},
      {"xyz.anulowano", "\nAnulat. Nu s-a citit nimic, desenul a rămas neschimbat.\n"},
      {"xyz.xls_stary_1", "\nAcesta este un registru în vechiul format .xls, pe care programul nu îl citește.\n"},
      {"xyz.xls_stary_2",
       "Deschideți-l într-un program de calcul tabelar, salvați-l ca .xlsx sau .csv și citiți-l din nou.\n"},
      {"xyz.blad_otworz_plik",
       "\nFișierul nu poate fi deschis: %s\nVerificați dacă există, dacă este un fișier obișnuit și dacă aveți dreptul "
       "să îl citiți.\n"},
      {"xyz.info_skoroszyt", "\nRegistru .xlsx: se citește numai prima foaie.\n"},

      // Layout of the columns
      {"xyz.info_opis", "\nOrdinea coloanelor nu poate fi stabilită: %s.\n"},
      {"xyz.pierwszy_wiersz", "Primul rând de date: %s\n"},
      {"xyz.wybor_numer", "  Numar: prima coloană conține numerele punctelor\n"},
      {"xyz.wybor_wspolrzedna",
       "  Coordonata: prima coloană este deja o coordonată, punctele vor fi numerotate de program\n"},
      {"xyz.prompt_pierwsza_kolumna_tpl", "Ce conține prima coloană? [%s] <%s>: "},
      {"xyz.kw_numer", "Numar"},
      {"xyz.kw_wspolrzedna", "Coordonata"},
      {"xyz.opis_wybor_uzytkownika", "ordine indicată de utilizator"},
      {"xyz.opis_z_pliku", "indicată în prima linie a fișierului"},
      {"xyz.kolumny_nie_pasuja",
       "\nPrima linie a fișierului anunță %d coloane, iar rândurile au %d; ordinea coloanelor și a axelor se "
       "stabilește fără ea.\n"},
      {"xyz.rozpoznany_format", "\nOrdinea coloanelor: %s (%s).\n"},
      {"xyz.z_brak", "Fișierul nu conține cote: punctele primesc Z = 0.\n"},
      {"xyz.z_wczytuje", "Cotele din fișier vor fi citite ca Z.\n"},
      {"xyz.fmt_mniej_2", "rândurile au mai puțin de două coloane"},
      {"xyz.fmt_brak_danych", "niciun rând nu conține două numere alăturate"},
      {"xyz.fmt_2kol", "două coloane: X și Y"},
      {"xyz.fmt_niejasny", "numărul de coloane este %d, dar nu se știe dacă prima conține numărul punctului"},
      {"xyz.fmt_3_nrxy", "trei coloane: număr, X și Y"},
      {"xyz.fmt_3_xyz", "trei coloane: X, Y și cotă"},
      {"xyz.fmt_n_nrxyz", "număr de coloane: %d; în ordine număr, X, Y și cotă"},
      {"xyz.fmt_n_xyz", "număr de coloane: %d; în ordine X, Y și cotă"},

      // Rows
      {"xyz.zero_wierszy", "\nNu s-a găsit niciun punct. Nu s-a inserat nimic.\n"},
      {"xyz.sprawdz_format",
       "Verificați fișierul: fiecare rând trebuie să conțină în ordine [număr] X Y [cotă], separate prin punct și "
       "virgulă,\n"
       "tabulator sau spațiu; virgula este semn zecimal; text în UTF-8 sau Windows-1250.\n"},
      {"xyz.linia_pominieta", "  rândul de date %d: %s: %s\n"},
      {"xyz.pow_naglowek", "în locul unei coordonate nu stă un număr (antet sau observație)"},
      {"xyz.pow_za_malo_kolumn", "prea puține coloane (sunt %d, trebuie %d)"},
      {"xyz.pominieto_naglowek", "\nRânduri omise:\n"},
      {"xyz.pominieto_dalsze", "  … și altele, neafișate: %d\n"},
      {"xyz.dubli", "\nAtenție: numere de puncte repetate: %d. Și aceste puncte au fost inserate; verificați-le.\n"},

      // Coordinate system
      {"xyz.uklad_wykryto", "\nSistem de coordonate recunoscut: %s.\n"},
      {"xyz.uklad_zamiana",
       "În fișier X este coordonata nord: X și Y au fost inversate, pentru ca în desen nordul să fie sus.\n"},
      {"xyz.uklad_nierozpoznany",
       "\nSistemul de coordonate nu a fost recunoscut (sistem local?). Punctele se inserează așa cum stau în "
       "fișier.\n"},
      {"xyz.osie_niejednoznaczne",
       "\nCoordonatele se potrivesc cu mai multe citiri. Poziția primului punct după fiecare dintre ele:\n"},
      {"xyz.osie_wiersz", "  %s: %s, latitudine %.6f°, longitudine %.6f°\n"},
      {"xyz.osie_legenda_tpl",
       "%s sau Enter: se inserează așa cum stă în fișier; %s: se inversează X și Y.\n"
       "Esc sau sfârșitul datelor de intrare: se inserează așa cum stă în fișier, fără confirmarea ordinii axelor.\n"},
      {"xyz.prompt_zamien_osie_tpl", "Ordinea axelor este corectă? [%s] <%s>: "},
      {"xyz.kw_tak", "Da"},
      {"xyz.kw_zamien", "Inverseaza"},
      {"xyz.osie_podane_e",
       "\nOrdinea axelor indicată dinainte: prima coordonată este cea de est. Punctele se inserează așa cum stau în "
       "fișier.\n"},
      {"xyz.osie_podane_n",
       "\nOrdinea axelor indicată dinainte: prima coordonată este cea de nord. X și Y au fost inversate, pentru ca în "
       "desen nordul să fie sus.\n"},
      {"xyz.osie_z_pliku",
       "\nOrdinea axelor indicată în prima linie a fișierului: E, N. Punctele se inserează așa cum stau în fișier.\n"},
      {"xyz.osie_wbrew_plikowi",
       "Prima linie a fișierului indică ordinea E, N; prevalează ordinea indicată dinainte.\n"},
      {"xyz.osie_wbrew_liczbom",
       "Numerele singure ar indica sistemul %s cu ordinea inversă a axelor; prevalează ordinea indicată.\n"},
      {"xyz.osie_bez_ukladu", "Sistemul de coordonate nu a fost recunoscut (sistem local?).\n"},
      {"xyz.osie_pozostaje", "Numerele singure se potrivesc cu mai multe citiri; cu ordinea indicată se potrivește:\n"},

      // Places
      {"xyz.osie_miejsce", "    în localitatea %s\n"},
      {"xyz.osie_obok_miejsca", "    %d km %s de %s\n"},
      {"xyz.kierunek_n", "la nord"},
      {"xyz.kierunek_ne", "la nord-est"},
      {"xyz.kierunek_e", "la est"},
      {"xyz.kierunek_se", "la sud-est"},
      {"xyz.kierunek_s", "la sud"},
      {"xyz.kierunek_sw", "la sud-vest"},
      {"xyz.kierunek_w", "la vest"},
      {"xyz.kierunek_nw", "la nord-vest"},

      // Drawing
      {"xyz.blad_model", "\nSpațiul model nu poate fi deschis pentru scriere. Desenul a rămas neschimbat.\n"},
      {"xyz.wstawiono_punkty", "\nPuncte inserate împreună cu numerele lor: %d (ordinea coloanelor %s).\n"},
      {"xyz.kontrola_ok", "Puncte sub controlul deplasărilor: %d.\n"},
      {"xyz.kontrola_niedostepna",
       "Controlul deplasărilor nu este disponibil (%s: %s). Punctele au fost inserate fără el.\n"},
      {"xyz.kontrola_za_duzo", "Fără controlul deplasărilor: sunt %d puncte, iar controlul cuprinde cel mult %d.\n"},
      {"xyz.grupa_opis", "Pichete citite dintr-un fișier de coordonate"},
      {"xyz.grupa_ok", "Pichetele și numerele lor sunt reunite în grupul %s.\n"},
      {"xyz.grupa_hint_1", "  Selectarea unui punct selectează tot grupul.\n"},
      {"xyz.grupa_hint_2", "  Cu comanda GROUP poate fi redenumit, făcut neselectabil sau desfăcut.\n"},
      {"xyz.grupa_blad", "Grupul nu a fost creat: %s.\n"},
      {"xyz.grupa_reczne", "  Punctele sunt în desen; pot fi grupate manual cu comanda GROUP.\n"},
      {"xyz.grupa_pominieta", "Grupul nu a fost creat (%s). Punctele sunt în desen.\n"},
      {"xyz.grup_brak_encji", "nu este nimic de grupat"},
      {"xyz.grup_brak_slownika", "dicționarul de grupuri al desenului nu este accesibil"},
      {"xyz.grup_setat", "desenul nu a acceptat un grup cu acest nume"},
      {"xyz.punkty_sa", "Punctele sunt în spațiul model.\n"},
      {"xyz.zoom_hint", "Pentru a le vedea: ZOOM, Extents.\n"},
      {"xyz.blad_ogolny", "\nCitirea a fost întreruptă de o eroare: %s: %s\n"},
  });
  std::sort(entries.begin(), entries.end());
  return entries;
}();

}  // namespace

std::span<const Entry> romanian() { return kRomanian; }

}  // namespace vexo_teksty
