// Polish, as surveyors say it: pikieta for a surveyed point, numer for its label, układ for a coordinate system.
//
// Keywords are plain ASCII, so that they can be typed on any keyboard; they differ in their first letters.
#include <algorithm>
#include <array>

#include "siblings/vexo_teksty/teksty.h"

namespace vexo_teksty {
namespace {

constexpr auto kPolish = [] {
  auto entries = std::to_array<Entry>({
      // Choosing the file
      {"xyz.dialog_wybor_pliku", "Wybierz plik ze współrzędnymi punktów"},
      {"xyz.anulowano_brak_pliku", "\nNie wybrano pliku. Nic nie wczytano.\n"},
      {"xyz.prompt_sciezka", "\nPodaj ścieżkę pliku ze współrzędnymi: "},
      {"xyz.anulowano", "\nAnulowano. Nic nie wczytano, rysunek bez zmian.\n"},
      {"xyz.xls_stary_1", "\nTo jest skoroszyt w dawnym formacie .xls, którego ten program nie czyta.\n"},
      {"xyz.xls_stary_2", "Otwórz go w arkuszu kalkulacyjnym, zapisz jako .xlsx albo .csv i wczytaj ponownie.\n"},
      {"xyz.blad_otworz_plik",
       "\nNie można otworzyć pliku: %s\nSprawdź, czy istnieje, czy jest zwykłym plikiem i czy masz prawo go czytać.\n"},
      {"xyz.info_skoroszyt", "\nSkoroszyt .xlsx: wczytuję tylko pierwszy arkusz.\n"},

      // Layout of the columns
      {"xyz.info_opis", "\nNie można rozpoznać układu kolumn: %s.\n"},
      {"xyz.pierwszy_wiersz", "Pierwszy wiersz danych: %s\n"},
      {"xyz.wybor_numer", "  Numer: w pierwszej kolumnie są numery punktów\n"},
      {"xyz.wybor_wspolrzedna", "  Wspolrzedna: pierwsza kolumna to już współrzędna, numery nada program\n"},
      {"xyz.prompt_pierwsza_kolumna_tpl", "Co zawiera pierwsza kolumna? [%s] <%s>: "},
      {"xyz.kw_numer", "Numer"},
      {"xyz.kw_wspolrzedna", "Wspolrzedna"},
      {"xyz.opis_wybor_uzytkownika", "układ wskazany przez użytkownika"},
      {"xyz.opis_z_pliku", "podany w pierwszej linii pliku"},
      {"xyz.kolumny_nie_pasuja",
       "\nPierwsza linia pliku zapowiada kolumn: %d, a w wierszach jest ich %d; układ kolumn i osi zostanie ustalony "
       "bez niej.\n"},
      {"xyz.rozpoznany_format", "\nUkład kolumn: %s (%s).\n"},
      {"xyz.z_brak", "Plik nie zawiera wysokości: punkty otrzymają Z = 0.\n"},
      {"xyz.z_wczytuje", "Wysokości z pliku zostaną wczytane jako Z.\n"},
      {"xyz.fmt_mniej_2", "w wierszach jest mniej niż dwie kolumny"},
      {"xyz.fmt_brak_danych", "żaden wiersz nie zawiera dwóch sąsiednich liczb"},
      {"xyz.fmt_2kol", "dwie kolumny: X i Y"},
      {"xyz.fmt_niejasny", "kolumn jest %d, ale nie wiadomo, czy pierwsza to numer punktu"},
      {"xyz.fmt_3_nrxy", "trzy kolumny: numer, X i Y"},
      {"xyz.fmt_3_xyz", "trzy kolumny: X, Y i wysokość"},
      {"xyz.fmt_n_nrxyz", "liczba kolumn: %d; kolejno numer, X, Y i wysokość"},
      {"xyz.fmt_n_xyz", "liczba kolumn: %d; kolejno X, Y i wysokość"},

      // Rows
      {"xyz.zero_wierszy", "\nNie znaleziono ani jednego punktu. Nic nie wstawiono.\n"},
      {"xyz.sprawdz_format",
       "Sprawdź plik: w wierszu powinny stać kolejno [numer] X Y [wysokość], rozdzielone średnikiem, tabulatorem\n"
       "lub odstępem; przecinek jest znakiem dziesiętnym; tekst w kodowaniu UTF-8 lub Windows-1250.\n"},
      {"xyz.linia_pominieta", "  wiersz danych %d: %s: %s\n"},
      {"xyz.pow_naglowek", "w miejscu współrzędnej nie ma liczby (nagłówek lub opis)"},
      {"xyz.pow_za_malo_kolumn", "za mało kolumn (jest %d, potrzeba %d)"},
      {"xyz.pominieto_naglowek", "\nPominięte wiersze:\n"},
      {"xyz.pominieto_dalsze", "  … i dalsze, nie pokazane: %d\n"},
      {"xyz.dubli", "\nUwaga: powtórzone numery punktów: %d. Te punkty też wstawiono; sprawdź je.\n"},

      // Coordinate system
      {"xyz.uklad_wykryto", "\nRozpoznany układ współrzędnych: %s.\n"},
      {"xyz.uklad_zamiana", "W pliku X to współrzędna północna: zamieniono X i Y, aby w rysunku północ była u góry.\n"},
      {"xyz.uklad_nierozpoznany",
       "\nNie rozpoznano układu współrzędnych (układ lokalny?). Punkty zostaną wstawione tak, jak stoją w pliku.\n"},
      {"xyz.osie_niejednoznaczne",
       "\nWspółrzędne pasują do więcej niż jednego odczytu. Położenie pierwszego punktu według każdego z nich:\n"},
      {"xyz.osie_wiersz", "  %s: %s, szerokość %.6f°, długość %.6f°\n"},
      {"xyz.osie_legenda_tpl",
       "%s lub Enter: wstaw tak, jak stoi w pliku; %s: zamień X i Y miejscami.\n"
       "Esc lub koniec danych wejściowych: wstaw tak, jak stoi w pliku, bez potwierdzenia kolejności osi.\n"},
      {"xyz.prompt_zamien_osie_tpl", "Czy kolejność osi jest właściwa? [%s] <%s>: "},
      {"xyz.kw_tak", "Tak"},
      {"xyz.kw_zamien", "Zamien"},
      {"xyz.osie_podane_e",
       "\nKolejność osi podana z góry: pierwsza współrzędna jest wschodnia. Punkty zostaną wstawione tak, jak stoją w "
       "pliku.\n"},
      {"xyz.osie_podane_n",
       "\nKolejność osi podana z góry: pierwsza współrzędna jest północna. Zamieniono X i Y, aby w rysunku północ była "
       "u góry.\n"},
      {"xyz.osie_z_pliku",
       "\nKolejność osi podana w pierwszej linii pliku: E, N. Punkty zostaną wstawione tak, jak stoją w pliku.\n"},
      {"xyz.osie_wbrew_plikowi", "Pierwsza linia pliku podaje kolejność E, N; rozstrzyga kolejność podana z góry.\n"},
      {"xyz.osie_wbrew_liczbom",
       "Same liczby wskazywałyby układ %s przy odwrotnej kolejności osi; rozstrzyga kolejność podana.\n"},
      {"xyz.osie_bez_ukladu", "Układu współrzędnych nie rozpoznano (układ lokalny?).\n"},
      {"xyz.osie_pozostaje", "Same liczby pasują do więcej niż jednego odczytu; z podaną kolejnością zgodny jest:\n"},

      // Places
      {"xyz.osie_miejsce", "    w miejscowości %s\n"},
      {"xyz.osie_obok_miejsca", "    %d km %s od miejscowości %s\n"},
      {"xyz.kierunek_n", "na północ"},
      {"xyz.kierunek_ne", "na północny wschód"},
      {"xyz.kierunek_e", "na wschód"},
      {"xyz.kierunek_se", "na południowy wschód"},
      {"xyz.kierunek_s", "na południe"},
      {"xyz.kierunek_sw", "na południowy zachód"},
      {"xyz.kierunek_w", "na zachód"},
      {"xyz.kierunek_nw", "na północny zachód"},

      // Drawing
      {"xyz.blad_model", "\nNie można otworzyć obszaru modelu do zapisu. Rysunek bez zmian.\n"},
      {"xyz.wstawiono_punkty", "\nWstawiono punkty wraz z numerami: %d (układ kolumn %s).\n"},
      {"xyz.kontrola_ok", "Punkty objęte kontrolą przesunięć: %d.\n"},
      {"xyz.kontrola_niedostepna", "Kontrola przesunięć niedostępna (%s: %s). Punkty wstawiono bez niej.\n"},
      {"xyz.kontrola_za_duzo", "Kontrola przesunięć pominięta: punktów jest %d, a kontrola obejmuje najwyżej %d.\n"},
      {"xyz.grupa_opis", "Pikiety wczytane z pliku współrzędnych"},
      {"xyz.grupa_ok", "Punkty i numery zebrano w grupie %s.\n"},
      {"xyz.grupa_hint_1", "  Wskazanie jednego punktu wybiera całą grupę.\n"},
      {"xyz.grupa_hint_2", "  Poleceniem GRUPA można ją nazwać inaczej, wyłączyć jej wybieralność lub ją rozbić.\n"},
      {"xyz.grupa_blad", "Nie utworzono grupy: %s.\n"},
      {"xyz.grupa_reczne", "  Punkty są w rysunku; można je zgrupować ręcznie poleceniem GRUPA.\n"},
      {"xyz.grupa_pominieta", "Nie utworzono grupy (%s). Punkty są w rysunku.\n"},
      {"xyz.grup_brak_encji", "nie ma czego grupować"},
      {"xyz.grup_brak_slownika", "słownik grup rysunku jest niedostępny"},
      {"xyz.grup_setat", "rysunek nie przyjął grupy o tej nazwie"},
      {"xyz.punkty_sa", "Punkty są w obszarze modelu.\n"},
      {"xyz.zoom_hint", "Aby je zobaczyć: ZOOM, Zakres.\n"},
      {"xyz.blad_ogolny", "\nWczytywanie przerwał błąd: %s: %s\n"},
  });
  std::sort(entries.begin(), entries.end());
  return entries;
}();

}  // namespace

std::span<const Entry> polish() { return kPolish; }

}  // namespace vexo_teksty
