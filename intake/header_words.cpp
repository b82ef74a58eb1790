#include "intake/header_words.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <vector>

#include "intake/cell_number.h"
#include "vexo_xyz_impl/table/numbers.h"
#include "vexo_xyz_impl/text/ascii.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace intake {
namespace {

namespace text = vexo_xyz_impl::text;

struct Vocabulary {
  Named named;
  std::string_view words;  // between blanks, folded; German umlauts in both spellings
};

// Single letters first: a word is looked up whole.
constexpr auto kVocabulary = std::to_array<Vocabulary>({
    {Named::x, " x xx "},
    {Named::y, " y yy "},
    {Named::easting,
     " e easting eastings east este est ost osten ostwert rechts rechtswert rechtswerte rw wschod wschodnia wschodni "
     "wsch oeste xeast eastx "},
    {Named::northing,
     " n northing northings north nord norden nordwert norte hoch hochwert hochwerte hw polnoc polnocna polnocny poln "
     "ynorth northy "},
    {Named::height,
     " z h elev elevation elevatie elevacio ele alt altitude altitudine height heights hgt ht hoehe hoehen hohe hohen "
     "wys wysokosc wysokosci rzedna rzedne rz cota cote kota kote niveau hmsl msl nhn npm nap zcoord depth tiefe "
     "quota inaltime inaltimea altura altitud hnhn hnn hell hort orthoheight up level hn poziom rl dhhn gok ahd "},
    {Named::maybe_height, " glebokosc glebokosci adancime adancimea "},
    {Named::latitude,
     " lat latitude latitudine latitudinea latitud breite breitengrad szerokosc szer phi b geobreite fi lati latdd "
     "latdeg declat "},
    {Named::longitude,
     " lon long lng longitude longitudine longitudinea longitud laenge lange laengengrad langengrad dlugosc dl lambda "
     "l lam longi londd londeg geolaenge declon declong "},
    {Named::pair,
     " xy yx en ne xyz position positions coordinates coords koordinaten koordinate wspolrzedne coordonate latlon "
     "latlong lonlat location lokalizacja geometry wkt geom "},
    {Named::number,
     " nr no num nume numer numero number nummer name nazwa names namen punkt punkty punktu pkt pnkt pt pts pkte "
     "punkte point points punct pct punctul id ids ident identifier bhid holeid hole station stacja statie stn sta "
     "label etykieta etichet eticheta bezeichnung denumire denumirea punktnr punktnummer ptnr ptno pnr pktnr nrpkt "
     "idpkt nrpunktu ptid pointid pointname pointno pointnumber pno pid kennung title tytul gcp marker messstelle "
     "messpunkt festpunkt osnowa reper oznaczenie site siteid "},
    {Named::counter, " fid objectid oid index idx lp lfd lfdnr crt nrcrt rowid row unnamed ordinal seq sequence "},
    {Named::code,
     " code codes kod kodu cod codul desc descr description opis opisu descriere descrierea beschreibung art typ type "
     "tip feature featurename layer warstwa strat schicht class classification klasa klasse clasa klassifikation "
     "formation surface remark remarks uwagi uwaga observatii bemerkung bemerkungen notes note comment comments "
     "komentarz kommentar attribute atrybut attribut rodzaj symbol "},
    {Named::zone, " zone strefa strefy zona pas fus streifen utmzone epsg crs srid system uklad "},
    {Named::error,
     " mx my mz mp mh me mn mxy myx std stdev stddev stdx stdy stdz sigma sig sigmax sigmay sigmaz sx sy sz se sn sd "
     "rms rmse error errors err blad bledu bledy bledu fehler mfehler mittlererfehler eroare eroarea accuracy acc "
     "precision precyzja dokladnosc genauigkeit precizie precizia dop pdop hdop vdop hrms vrms residual residuals "
     "residuum variance var cov hacc vacc quality uncertainty cq "},
    {Named::date,
     " date datum data dataora time zeit czas ora godzina uhrzeit timestamp utc datetime created year rok jahr an "
     "anul month day dzien tag created modified "},
    {Named::other_value,
     " dip azimuth azymut azimut strike plunge polarity depth tiefe level floor roll pitch yaw omega kappa heading "
     "kierunek richtung direction "
     "length dlugoscm dist distance odleglosc entfernung strecke distanta chainage hektometr kilometraz area "
     "pole flaeche flache suprafata powierzchnia image img pixel px py u v row col column rows cols zeile spalte line "
     "line2 sample radius promien diff delta dx dy dz dh nx ny nz gx gy gz vx vy vz vn ve vu qx qy qz qw rx ry rz red "
     "green blue intensity returnnumber scale skala massstab weight wt wag speed predkosc porosity permeability perm "
     "facies lithology ai normalx normaly normalz "
     "value val wert wartosc valoare hi hr hz v_angle vertical horizontal angle kat winkel unghi temperature temp "
     "count from to ncols nrows xllcorner yllcorner cellsize nodata xllcenter yllcenter "},
});

// What may stand beside the word that says it, telling nothing more.
constexpr std::string_view kNeutral =
    " coord coords coordinate coordinates koord koordinate koordinaten wsp wspolrzedna wspolrzedne coordonata coor utm "
    "collar location loc pos position point punkt pkt geom world map gps gnss grid local wgs wert value the of in wg "
    "ground survey orthometric normal normalna mid center centroid centre p pt ortho etrf etrs msl deg dd decimal "
    "wgs84 "
    "geo geogr geograficzna geographic projected npm plain kron amsl asl nhn coordx coordy m mapa ref ";

// What takes the coordinate's meaning from a name that has one: a scaled copy, a derivative, another height.
constexpr std::string_view kOfSomethingElse =
    " r rel scaled norm normalized gradient instrument target antenna antena anteny celu instrumentu reflector tarczy "
    "rod pole tyczki geoid undulation geoida pressure cisnienie image pixel img photo delta diff difference roznica "
    "temp accuracy error size count step min max std sigma height_of ";

constexpr std::string_view kUnits =
    " m mm cm dm km ft feet us-ft usft ftus in meter meters metre metres metry metr metrow deg degree degrees stopnie "
    "grad grade gon rad mnpm mnhn mnn msl \xC2\xB0 dd dms ";

// Lengths: a "length" given in one of them is no longitude.
constexpr std::string_view kLengths = " m mm cm dm km ft feet meter meters metre metres metry metr ";

bool among(std::string_view words, std::string_view word) {
  const std::size_t at = words.find(word);
  for (std::size_t i = at; i != std::string_view::npos; i = words.find(word, i + 1)) {
    if (i > 0 && words[i - 1] == ' ' && i + word.size() < words.size() && words[i + word.size()] == ' ') return true;
  }
  return false;
}

// Letters with diacritics as the letters without; 0 for what folds to itself.
std::string_view folded(char32_t c) {
  struct Fold {
    std::u32string_view letters;
    std::string_view plain;
  };
  static constexpr auto kFolds = std::to_array<Fold>({
      {U"ąĄăĂâÂäÄáÁàÀãÃåÅ", "a"},
      {U"ćĆčČçÇ", "c"},
      {U"ęĘéÉèÈêÊëË", "e"},
      {U"îÎíÍìÌïÏ", "i"},
      {U"łŁ", "l"},
      {U"ńŃñÑ", "n"},
      {U"óÓöÖòÒôÔõÕ", "o"},
      {U"śŚșȘşŞšŠ", "s"},
      {U"țȚţŢ", "t"},
      {U"üÜúÚùÙ", "u"},
      {U"źŹżŻžŽ", "z"},
      {U"ß", "ss"},
  });
  for (const Fold& fold : kFolds)
    if (fold.letters.find(c) != std::u32string_view::npos) return fold.plain;
  return {};
}

enum class Letter { none, lower, upper, digit, foreign };

struct Words {
  std::vector<std::string> words;  // in order, folded
  bool is_length = false;          // in brackets stands a unit of lengths
};

// Takes the units in brackets out of a name.
std::string without_units(std::string_view name, bool& is_length) {
  std::string rest;
  while (!name.empty()) {
    const std::size_t opening = std::min(name.find_first_of("[(<{"), name.size());
    rest += name.substr(0, opening);
    name.remove_prefix(opening);
    const std::size_t closing = name.find_first_of("])>}");
    if (closing == std::string_view::npos) return rest.append(name);
    const std::string_view inside = name.substr(1, closing - 1);
    if (is_unit(inside)) {
      is_length |= among(kLengths, inside);
      rest += ' ';
    } else {
      rest.append(name.substr(0, closing + 1));
    }
    name.remove_prefix(closing + 1);
  }
  return rest;
}

Letter letter_of(char32_t c) {
  if (c >= U'a' && c <= U'z') return Letter::lower;
  if (c >= U'A' && c <= U'Z') return Letter::upper;
  if (c >= U'0' && c <= U'9') return Letter::digit;
  if (!folded(c).empty()) return Letter::lower;
  return c >= 0xC0 && !text::is_white_space(c) ? Letter::foreign : Letter::none;
}

// Punctuation, numbers, a change from lower to upper case and of scripts part words. Numbers, as those of a coordinate
// system or a year, are none.
Words words_of(std::string_view raw) {
  Words found;
  const std::string name = without_units(raw, found.is_length);
  std::string word;
  Letter before = Letter::none;
  const auto end_word = [&] {
    if (!word.empty()) found.words.push_back(std::exchange(word, {}));
  };
  for (std::size_t at = 0; at < name.size();) {
    const auto decoded = text::decode(name, at).value_or(text::CodePoint{U' ', 1});
    const Letter letter = letter_of(decoded.value);
    const bool is_part = letter != Letter::none && letter != Letter::digit;
    if (!is_part || (before == Letter::lower && letter == Letter::upper) ||
        (before == Letter::foreign) != (letter == Letter::foreign)) {
      end_word();
    } else if (before == Letter::upper && letter == Letter::lower && word.size() > 1) {
      std::string next(1, word.back());  // "LPCSNorthing": the last capital begins the next word
      word.pop_back();
      end_word();
      word = std::move(next);
    }
    if (const std::string_view plain = folded(decoded.value); !plain.empty()) {
      word += plain;
    } else if (letter == Letter::foreign) {
      word.append(name, at, decoded.bytes);
    } else if (is_part) {
      word += text::ascii_lower(name[at]);
    }
    before = letter;
    at += decoded.bytes;
  }
  end_word();
  return found;
}

Named looked_up(std::string_view word) {
  for (const Vocabulary& entry : kVocabulary)
    if (among(entry.words, word)) return entry.named;
  return Named::unknown;
}

// Words that are put together: "xcollar", "geomx", "stationsnummer", "gelaendehoehe".
Named compound(std::string_view word) {
  if (word.size() < 2) return Named::unknown;
  const auto axis = [](char c) {
    return c == 'x' ? Named::x : c == 'y' ? Named::y : c == 'z' ? Named::height : Named::unknown;
  };
  if (axis(word.front()) != Named::unknown && among(kNeutral, word.substr(1))) return axis(word.front());
  if (axis(word.back()) != Named::unknown && among(kNeutral, word.substr(0, word.size() - 1))) return axis(word.back());
  struct Affix {
    std::string_view text;
    Named named;
  };
  static constexpr auto kBeginnings = std::to_array<Affix>({{"easting", Named::easting},
                                                            {"northing", Named::northing},
                                                            {"rechtswert", Named::easting},
                                                            {"hochwert", Named::northing},
                                                            {"latitude", Named::latitude},
                                                            {"longitude", Named::longitude},
                                                            {"wysokosc", Named::height},
                                                            {"punktnr", Named::number},
                                                            {"punktnum", Named::number}});
  static constexpr auto kEndings = std::to_array<Affix>({{"easting", Named::easting},
                                                         {"northing", Named::northing},
                                                         {"nummer", Named::number},
                                                         {"punkt", Named::number},
                                                         {"pointid", Named::number},
                                                         {"pointname", Named::number},
                                                         {"name", Named::number},
                                                         {"hoehe", Named::height},
                                                         {"hohe", Named::height},
                                                         {"height", Named::height},
                                                         {"elevation", Named::height},
                                                         {"elev", Named::height},
                                                         {"altitude", Named::height},
                                                         {"latitude", Named::latitude},
                                                         {"longitude", Named::longitude},
                                                         {"code", Named::code},
                                                         {"date", Named::date},
                                                         {"datum", Named::date},
                                                         {"time", Named::date}});
  for (const Affix& affix : kBeginnings)
    if (word.starts_with(affix.text)) return affix.named;
  for (const Affix& affix : kEndings)
    if (word.ends_with(affix.text)) return affix.named;
  return Named::unknown;
}

// Of a name's words that say something the one that says most: what makes it no coordinate before the axis that is
// told, that before a bare X or Y, and a point's number last: "point code", "station height".
constexpr auto kByWeight = std::to_array<Named>({
    Named::error,
    Named::date,
    Named::zone,
    Named::counter,
    Named::latitude,
    Named::longitude,
    Named::easting,
    Named::northing,
    Named::x,
    Named::y,
    Named::height,
    Named::maybe_height,
    Named::code,
    Named::number,
    Named::pair,
    Named::other_value,
});

std::size_t weight(Named named) {
  return static_cast<std::size_t>(std::find(kByWeight.begin(), kByWeight.end(), named) - kByWeight.begin());
}

// Both axes in one name are a pair of values, or a difference between systems; X and northing are one axis told twice.
Named combined(const std::vector<Named>& said) {
  const auto says = [&](Named named) { return std::find(said.begin(), said.end(), named) != said.end(); };
  if ((says(Named::easting) && says(Named::northing)) || (says(Named::latitude) && says(Named::longitude)) ||
      (says(Named::x) && says(Named::y))) {
    return Named::pair;
  }
  return *std::min_element(said.begin(), said.end(), [](Named a, Named b) { return weight(a) < weight(b); });
}

}  // namespace

bool is_unit(std::string_view word) {
  std::string unit;
  for (const char c : text::trim(word)) {
    if (c != '[' && c != ']' && c != '(' && c != ')' && c != '.' && c != ' ') unit += text::ascii_lower(c);
  }
  return !unit.empty() && among(kUnits, unit);
}

HeaderName header_name(std::string_view name) {
  const std::string_view trimmed = text::trim(name);
  if (trimmed.empty()) return {Named::nothing, 0};
  const Words words = words_of(trimmed);
  if (words.words.empty()) return {Named::unknown, 0};

  std::string joined;
  for (const std::string& word : words.words) joined += word;
  if (joined == "lp" || joined == "ortho") return {joined == "lp" ? Named::counter : Named::height, 0};  // "L.p."
  HeaderName result{Named::unknown, 0};
  if (words.words.size() > 1) {
    if (const Named whole = looked_up(joined); whole != Named::unknown && joined.size() > 2) return {whole, 0};
  }
  std::vector<Named> said;
  bool of_something_else = false;
  for (const std::string& word : words.words) {
    Named named = looked_up(word);
    if (named == Named::unknown) named = compound(word);
    // "Position X", "Point height": the other word says it.
    const bool neutral = words.words.size() > 1 && among(kNeutral, word);
    if (words.words.size() > 1 && among(kOfSomethingElse, word)) of_something_else = true;
    if (neutral && (named == Named::pair || named == Named::number || named == Named::other_value)) {
      if (named == Named::number) said.push_back(named);
      continue;
    }
    if (named != Named::unknown) {
      said.push_back(named);
    } else if (!neutral) {
      ++result.unknown_words;
    }
  }
  if (said.empty()) {
    result.named = joined == "coord" || words.words.size() == result.unknown_words ? Named::unknown : looked_up(joined);
    return result;
  }
  result.named = combined(said);
  if (result.named == Named::pair && said.size() > 2) result.named = Named::other_value;
  if (names_a_coordinate(result.named) && of_something_else) {
    const bool is_normal =
        result.named == Named::height && std::count(words.words.begin(), words.words.end(), "norm") > 0;
    result.named = is_normal ? Named::maybe_height : Named::other_value;
  }
  const bool is_angle = result.named == Named::latitude || result.named == Named::longitude;
  if (is_angle && words.is_length) result.named = Named::other_value;  // "Länge [m]"
  return result;
}

bool is_header(std::span<const std::string_view> cells) {
  std::size_t filled = 0;
  std::size_t numbers = 0;
  std::size_t known = 0;
  std::size_t coordinates = 0;
  for (const std::string_view cell : cells) {
    if (cell.empty()) continue;
    ++filled;
    if (vexo_xyz_impl::parse_number(cell) || is_sexagesimal(cell)) {
      ++numbers;
      continue;
    }
    const Named named = header_name(cell).named;
    if (named == Named::unknown) continue;
    ++known;
    if (names_a_coordinate(named)) ++coordinates;
  }
  if (filled < 2 || 4 * numbers > filled) return false;
  return coordinates >= 2 || (coordinates == 1 && 2 * known >= filled) || known == filled;
}

}  // namespace intake
