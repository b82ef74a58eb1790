// Every key that a catalogue must hold, with the values that its template takes.
#pragma once

#include <array>
#include <string_view>

namespace vexo_teksty {

struct Key {
  std::string_view name;
  std::string_view values;  ///< in order: s a text, d a whole number, f a real
};

inline constexpr auto kKeys = std::to_array<Key>({
    {"xyz.anulowano", ""},
    {"xyz.anulowano_brak_pliku", ""},
    {"xyz.blad_model", ""},
    {"xyz.blad_ogolny", "ss"},      // kind of failure, its text
    {"xyz.blad_otworz_plik", "s"},  // path
    {"xyz.dialog_wybor_pliku", ""},
    {"xyz.dubli", "d"},  // count
    {"xyz.fmt_2kol", ""},
    {"xyz.fmt_3_nrxy", ""},
    {"xyz.fmt_3_xyz", ""},
    {"xyz.fmt_brak_danych", ""},
    {"xyz.fmt_mniej_2", ""},
    {"xyz.fmt_n_nrxyz", "d"},   // columns
    {"xyz.fmt_n_xyz", "d"},     // columns
    {"xyz.fmt_niejasny", "d"},  // columns
    {"xyz.grup_brak_encji", ""},
    {"xyz.grup_brak_slownika", ""},
    {"xyz.grup_setat", ""},
    {"xyz.grupa_blad", "s"},  // reason
    {"xyz.grupa_hint_1", ""},
    {"xyz.grupa_hint_2", ""},
    {"xyz.grupa_ok", "s"},  // group name
    {"xyz.grupa_opis", ""},
    {"xyz.grupa_pominieta", "s"},  // kind of failure
    {"xyz.grupa_reczne", ""},
    {"xyz.info_opis", "s"},  // description of the layout
    {"xyz.info_skoroszyt", ""},
    {"xyz.kierunek_e", ""},
    {"xyz.kierunek_n", ""},
    {"xyz.kierunek_ne", ""},
    {"xyz.kierunek_nw", ""},
    {"xyz.kierunek_s", ""},
    {"xyz.kierunek_se", ""},
    {"xyz.kierunek_sw", ""},
    {"xyz.kierunek_w", ""},
    {"xyz.kolumny_nie_pasuja", "dd"},    // columns stated, columns there are
    {"xyz.kontrola_niedostepna", "ss"},  // kind of failure, its text
    {"xyz.kontrola_ok", "d"},            // points marked
    {"xyz.kontrola_za_duzo", "dd"},      // points, limit
    {"xyz.kw_numer", ""},
    {"xyz.kw_tak", ""},
    {"xyz.kw_wspolrzedna", ""},
    {"xyz.kw_zamien", ""},
    {"xyz.linia_pominieta", "dss"},  // row number, reason, row
    {"xyz.opis_wybor_uzytkownika", ""},
    {"xyz.opis_z_pliku", ""},
    {"xyz.osie_bez_ukladu", ""},
    {"xyz.osie_legenda_tpl", "ss"},  // word for keeping, word for exchanging
    {"xyz.osie_miejsce", "s"},       // place
    {"xyz.osie_niejednoznaczne", ""},
    {"xyz.osie_obok_miejsca", "dss"},  // kilometres, direction, place
    {"xyz.osie_podane_e", ""},
    {"xyz.osie_podane_n", ""},
    {"xyz.osie_pozostaje", ""},
    {"xyz.osie_wbrew_liczbom", "s"},  // system name
    {"xyz.osie_wbrew_plikowi", ""},
    {"xyz.osie_wiersz", "ssff"},  // word, system name, latitude and longitude in degrees
    {"xyz.osie_z_pliku", ""},
    {"xyz.pierwszy_wiersz", "s"},   // first cells of the first row
    {"xyz.pominieto_dalsze", "d"},  // count of the rest
    {"xyz.pominieto_naglowek", ""},
    {"xyz.pow_naglowek", ""},
    {"xyz.pow_za_malo_kolumn", "dd"},           // cells in the row, cells needed
    {"xyz.prompt_pierwsza_kolumna_tpl", "ss"},  // words, default word
    {"xyz.prompt_sciezka", ""},
    {"xyz.prompt_zamien_osie_tpl", "ss"},  // words, default word
    {"xyz.punkty_sa", ""},
    {"xyz.rozpoznany_format", "ss"},  // layout code, description
    {"xyz.sprawdz_format", ""},
    {"xyz.uklad_nierozpoznany", ""},
    {"xyz.uklad_wykryto", "s"},  // system name
    {"xyz.uklad_zamiana", ""},
    {"xyz.wstawiono_punkty", "ds"},  // points, layout code
    {"xyz.wybor_numer", ""},
    {"xyz.wybor_wspolrzedna", ""},
    {"xyz.xls_stary_1", ""},
    {"xyz.xls_stary_2", ""},
    {"xyz.z_brak", ""},
    {"xyz.z_wczytuje", ""},
    {"xyz.zero_wierszy", ""},
    {"xyz.zoom_hint", ""},
});

/// Keywords of one question each: they differ in their first letters and can be typed as one word.
inline constexpr auto kQuestions = std::to_array<std::array<std::string_view, 2>>({
    {"xyz.kw_numer", "xyz.kw_wspolrzedna"},
    {"xyz.kw_tak", "xyz.kw_zamien"},
});

}  // namespace vexo_teksty
