#include "python/operations.h"

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <pybind11/stl.h>

#include "python/database.h"
#include "python/exceptions.h"
#include "python/lock.h"
#include "python/module_start.h"
#include "python/rows.h"
#include "python/values.h"
#include "vexo_xyz_impl/command/keywords.h"
#include "vexo_xyz_impl/crs/detection.h"
#include "vexo_xyz_impl/crs/systems.h"
#include "vexo_xyz_impl/crs/transverse_mercator.h"
#include "vexo_xyz_impl/drawing/control.h"
#include "vexo_xyz_impl/drawing/group.h"
#include "vexo_xyz_impl/drawing/model_space.h"
#include "vexo_xyz_impl/input/loading.h"
#include "vexo_xyz_impl/input/text_reader.h"
#include "vexo_xyz_impl/input/workbook_reader.h"
#include "vexo_xyz_impl/table/layout.h"
#include "vexo_xyz_impl/table/numbers.h"
#include "vexo_xyz_impl/table/points.h"
#include "vexo_xyz_impl/table/text_height.h"

namespace scripting {

namespace py = pybind11;
namespace xyz = vexo_xyz_impl;

namespace {

py::object or_none(std::string_view text) { return text.empty() ? py::object(py::none()) : to_script(text); }

// Work on the module's own data, the interpreter's lock let go of meanwhile.
template <class Work>
auto unlocked(Work work) {
  const Unlocked unlocked;
  return work();
}

py::object type_name(std::optional<xyz::FileType> typ) {
  if (!typ) return py::none();
  switch (*typ) {
    case xyz::FileType::xlsx:
      return py::str("xlsx");
    case xyz::FileType::xls_stary:
      return py::str("xls_stary");
    case xyz::FileType::tekst:
      break;
  }
  return py::str("tekst");
}

py::object rows_or_none(const std::optional<xyz::Table>& table) {
  return table ? py::object(list_of(*table)) : py::object(py::none());
}

xyz::Layout layout_named(const py::object& code) {
  for (const xyz::Layout layout : {xyz::Layout::XY, xyz::Layout::XYZ, xyz::Layout::NrXY, xyz::Layout::NrXYZ}) {
    if (code.equal(to_script(xyz::layout_code(layout)))) return layout;
  }
  throw xyz::KeyError(from_script(code));
}

std::vector<xyz::Pair> pairs_of(const py::object& pary, std::size_t most) {
  std::vector<xyz::Pair> pairs;
  for (const py::handle pair : pary) {
    if (pairs.size() == most) break;
    const py::list both = items_of(pair, 2);
    const double first = number_from_script(both[0]);
    pairs.emplace_back(first, number_from_script(both[1]));
  }
  return pairs;
}

// Skipped lines as scripts have them; of a million reasons a few are different.
py::list skipped_lines(const std::vector<xyz::SkippedLine>& lines) {
  std::map<std::pair<std::size_t, std::size_t>, py::str> reasons;  // by the cells needed and had
  py::list skipped;
  for (const xyz::SkippedLine& line : lines) {
    const std::pair key(line.cells_needed, line.cells_needed == 0 ? 0 : line.cells.size());
    auto known = reasons.find(key);
    if (known == reasons.end()) known = reasons.emplace(key, to_script(xyz::reason_text(line))).first;
    skipped.append(py::make_tuple(line.row, known->second, to_script(xyz::row_text(line.cells))));
  }
  return skipped;
}

}  // namespace

void define_input_and_table(py::module_& m, const std::shared_ptr<const ScriptModule>& module) {
  define(
      m, "_kol_nr", [](const py::object& ref) { return xyz::_kol_nr(ref.is_none() ? "" : from_script(ref)); },
      py::arg("ref"), "Zero-based column of a cell reference such as C7, None when it names none.");
  define(
      m, "_czytaj_xlsx",
      [](const py::object& path) {
        return list_of(unlocked([path = path_from_script(path)] { return xyz::_czytaj_xlsx(path); }));
      },
      py::arg("path"), "The rows of a workbook's first worksheet, lists of cell texts.");
  define(
      m, "_czytaj_tekst",
      [](const py::object& path) {
        return rows_or_none(unlocked([path = path_from_script(path)] { return xyz::_czytaj_tekst(path); }));
      },
      py::arg("path"), "The rows of a delimited text file, lists of cell texts; None when it cannot be read.");
  define(
      m, "_typ_pliku", [](const py::object& path) { return type_name(xyz::_typ_pliku(path_from_script(path))); },
      py::arg("path"), "'xlsx', 'xls_stary' or 'tekst' by the first bytes, None when the file cannot be read.");
  define(
      m, "_wczytaj",
      [](const py::object& path) {
        const xyz::LoadResult loaded = unlocked([path = path_from_script(path)] { return xyz::_wczytaj(path); });
        return py::make_tuple(rows_or_none(loaded.rows), type_name(loaded.typ));
      },
      py::arg("path"), "(rows or None, file type or None).");
  define(
      m, "_num", [](const py::object& tok) { return xyz::_num(from_script(tok)); }, py::arg("tok"),
      "The number in a cell; ValueError when it holds none.");
  define(
      m, "_czy_liczba",
      [](const py::object& tok) {
        try {
          return xyz::_czy_liczba(from_script(tok));
        } catch (py::error_already_set& error) {  // what has no text form is no number
          if (error.matches(PyExc_ValueError) || error.matches(PyExc_TypeError)) return false;
          throw;
        }
      },
      py::arg("tok"), "Whether a cell holds a number.");
  define(
      m, "_liczba_kolumn", [](const py::object& wiersze) { return xyz::_liczba_kolumn(ScriptRows(wiersze).rows()); },
      py::arg("wiersze"), "The commonest row length, the greater of equally common ones.");
  define(
      m, "_pary",
      [](const py::object& dane, std::size_t i, std::size_t j) { return xyz::_pary(ScriptRows(dane).rows(), i, j); },
      py::arg("dane"), py::arg("i"), py::arg("j"), "The pairs of numbers in columns i and j.");
  define(
      m, "_pierwsza_to_numer",
      [module](const py::object& dane) {
        const ScriptRows rows(dane);
        const Run run(module);
        return unlocked([&] { return xyz::_pierwsza_to_numer(rows.rows()); });
      },
      py::arg("dane"), "Whether the first column holds point numbers; None when the content cannot tell.");
  define(
      m, "_wykryj_format",
      [module](const py::object& wiersze) {
        const ScriptRows rows(wiersze);
        const Run run(module);
        const xyz::LayoutVerdict verdict = unlocked([&] { return xyz::_wykryj_format(rows.rows()); });
        py::list dane;
        for (const xyz::Row row : verdict.dane) dane.append(rows.object_of(row));
        return py::make_tuple(verdict.fmt ? py::object(to_script(xyz::layout_code(*verdict.fmt))) : py::none(),
                              to_script(verdict.opis), dane);
      },
      py::arg("wiersze"), "(layout code or None, description, data rows).");
  define(
      m, "_rozbierz",
      [module](const py::object& wiersze, const py::object& fmt) {
        const xyz::Layout layout = layout_named(fmt);
        const ScriptRows rows(wiersze);
        const xyz::Decomposition read = unlocked([&] { return xyz::_rozbierz(rows.rows(), layout); });
        py::list punkty;
        for (const xyz::PointRecord& p : read.punkty) punkty.append(py::make_tuple(to_script(p.nr), p.x, p.y, p.z));
        const Run run(module);
        return py::make_tuple(punkty, skipped_lines(read.pominiete));
      },
      py::arg("wiersze"), py::arg("fmt"), "(points as (number, x, y, z), skipped lines as (row, reason, text)).");
  define(
      m, "_rowna_wysokosc", [](const py::object& h) { return xyz::_rowna_wysokosc(number_from_script(h)); },
      py::arg("h"), "The round text height nearest to a raw one.");
}

void define_coordinate_systems(py::module_& m, const std::shared_ptr<const ScriptModule>& module) {
  define(
      m, "_wspolczynniki",
      [] {
        const auto [A, beta, delta] = xyz::_wspolczynniki();
        return py::make_tuple(A, py::cast(beta), py::cast(delta));
      },
      "The rectifying radius in metres and the series' coefficients beta and delta.");
  define(
      m, "_do_geo",
      [module](const py::object& E, const py::object& N, const py::object& srid) -> py::object {
        const auto zone = module->market->UKLADY(module->market->number_of(srid));
        if (zone) return py::cast(xyz::inverse(*zone, number_from_script(E), number_from_script(N)));
        return py::module_::import("vexo_stereo70").attr("stereo70_do_geo")(E, N);  // the sibling's answer, unchanged
      },
      py::arg("E"), py::arg("N"), py::arg("srid"), "Grid coordinates in metres to (latitude, longitude) in radians.");
  define(
      m, "_sensowny",
      [module](const py::object& E, const py::object& N, const py::object& srid) {
        const Run run(module);
        return xyz::_sensowny(number_from_script(E), number_from_script(N), module->market->number_of(srid));
      },
      py::arg("E"), py::arg("N"), py::arg("srid"), "Whether a position is plausible in a system.");
  define(
      m, "_uklad_nazwa", [module](const py::object& srid) { return module->market->name_of(srid); }, py::arg("srid"),
      "The system's name, 'EPSG:' and the code when it has none.");
  define(
      m, "_wykryj_uklad",
      [module](const py::object& pary) {
        const auto pairs = pairs_of(pary, xyz::kDetectionSample);
        const Run run(module);
        py::list candidates;
        for (const auto& [srid, swap, frac] : xyz::_wykryj_uklad(pairs)) {
          candidates.append(py::make_tuple(module->market->code_of(srid), swap, frac));
        }
        return candidates;
      },
      py::arg("pary"), "The plausible readings of coordinate pairs as (system, exchanged, share).");
}

void define_dialogue_and_drawing(py::module_& m, const std::shared_ptr<const ScriptModule>& module) {
  define(
      m, "_slowo",
      [module](const py::object& symbol) {
        const Run run(module);
        return to_script(xyz::_slowo(from_script(symbol)));
      },
      py::arg("symbol"), "The keyword of a symbol in the market's language.");
  define(
      m, "_kword",
      [module](const std::vector<py::object>& symbole, const py::object& kl_prompt, std::size_t i_dom) {
        std::vector<std::string> texts;
        texts.reserve(symbole.size());
        for (const py::object& symbol : symbole) texts.push_back(from_script(symbol));
        const std::vector<std::string_view> symbols(texts.begin(), texts.end());
        const Run run(module);
        const auto answer = xyz::_kword(symbols, from_script(kl_prompt), i_dom);
        if (!answer) return py::make_tuple(false, py::none());
        const auto position = std::find(symbols.begin(), symbols.end(), *answer) - symbols.begin();
        return py::make_tuple(true, symbole[static_cast<std::size_t>(position)]);
      },
      py::arg("symbole"), py::arg("kl_prompt"), py::arg("i_dom") = 0,
      "Asks for one of the symbols: (accepted, symbol).");
  define(
      m, "_openModelSpace",
      [module] {
        Run run(module);
        xyz::ModelSpace model = xyz::_openModelSpace();
        if (!model.ms) return py::make_tuple(py::none(), py::none());
        const py::object db = dynamic_cast<ScriptObject&>(*model.db).object();
        const auto ms = model.ms.release();  // the script closes it
        return py::make_tuple(object_of(*ms), db);
      },
      "(model space opened for writing, database), or (None, None).");
  define(
      m, "_setPointDisplayVars",
      [module] {
        const Run run(module);
        xyz::_setPointDisplayVars();
      },
      "Makes points visible as crosses.");
  define(
      m, "_nazwa_grupy",
      [module](py::object db, const py::object& path) {
        Run run(module);
        ScriptDatabase database(run, std::move(db));
        return to_script(xyz::_nazwa_grupy(database, path_from_script(path)));
      },
      py::arg("db"), py::arg("path"), "A free group name made of the date and the file's name.");
  define(
      m, "_grupuj",
      [module](py::object db, py::object ids, const py::object& nazwa) {
        Run run(module);
        ScriptDatabase database(run, std::move(db));
        const auto grouped = xyz::_grupuj(database, ScriptIdArray(run, std::move(ids)), from_script(nazwa));
        return py::make_tuple(grouped.ok, to_script(grouped.message));
      },
      py::arg("db"), py::arg("ids"), py::arg("nazwa"), "Gathers entities in a new group: (success, message).");
  define(
      m, "_oznacz_do_kontroli",
      [module](const py::object& oidy) {
        Run run(module);
        std::vector<host::GcDbObjectId> ids;
        for (const py::handle oid : oidy) ids.push_back(run.remember(py::reinterpret_borrow<py::object>(oid)));
        const auto marked = xyz::_oznacz_do_kontroli(ids);
        return py::make_tuple(marked.ile, or_none(marked.message));
      },
      py::arg("oidy"), "Registers points for the control of shifts: (count, message or None).");
}

}  // namespace scripting
