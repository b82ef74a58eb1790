// The extension module: loading it performs the module set-up, and every operation is one of its attributes.
//
// Initialisation is of the kind that runs at each import, so that a module taken from the module cache and imported
// again is set up anew.
#include "vexo_xyz_impl/command/module.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include "python/database.h"
#include "python/exceptions.h"
#include "python/host.h"
#include "python/rows.h"
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
namespace {

namespace py = pybind11;
namespace xyz = vexo_xyz_impl;

py::object or_none(std::string_view text) { return text.empty() ? py::object(py::none()) : to_script(text); }

// Work on the module's own data, the interpreter's lock let go of meanwhile.
template <class Work>
auto unlocked(Work work) {
  const py::gil_scoped_release release;
  return work();
}

// A script's path; one with a NUL would name another file.
std::string path_of(const py::object& path) {
  std::string text = from_script(path);
  if (text.find('\0') != std::string::npos) throw xyz::ValueError("a path holds a null character");
  return text;
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
    const py::tuple both{py::reinterpret_borrow<py::object>(pair)};
    if (both.size() != 2) throw xyz::UnpackError("a pair has " + std::to_string(both.size()) + " values");
    pairs.emplace_back(both[0].cast<double>(), both[1].cast<double>());
  }
  return pairs;
}

void define_input_and_table(py::module_& m) {
  m.def("_kol_nr", [](const py::object& ref) { return xyz::_kol_nr(ref.is_none() ? "" : from_script(ref)); });
  m.def("_czytaj_xlsx", [](const py::object& path) {
    return list_of(unlocked([path = path_of(path)] { return xyz::_czytaj_xlsx(path); }));
  });
  m.def("_czytaj_tekst", [](const py::object& path) {
    return rows_or_none(unlocked([path = path_of(path)] { return xyz::_czytaj_tekst(path); }));
  });
  m.def("_typ_pliku", [](const py::object& path) { return type_name(xyz::_typ_pliku(path_of(path))); });
  m.def("_wczytaj", [](const py::object& path) {
    const xyz::LoadResult loaded = unlocked([path = path_of(path)] { return xyz::_wczytaj(path); });
    return py::make_tuple(rows_or_none(loaded.rows), type_name(loaded.typ));
  });
  m.def("_num", [](const py::object& tok) { return xyz::_num(from_script(tok)); });
  m.def("_czy_liczba", [](const py::object& tok) {
    try {
      return xyz::_czy_liczba(from_script(tok));
    } catch (py::error_already_set& error) {  // what has no text form is no number
      if (error.matches(PyExc_ValueError) || error.matches(PyExc_TypeError)) return false;
      throw;
    }
  });
  m.def("_liczba_kolumn", [](const py::object& wiersze) { return xyz::_liczba_kolumn(ScriptRows(wiersze).rows()); });
  m.def("_pary",
        [](const py::object& dane, std::size_t i, std::size_t j) { return xyz::_pary(ScriptRows(dane).rows(), i, j); });
  m.def("_pierwsza_to_numer", [](const py::object& dane) { return xyz::_pierwsza_to_numer(ScriptRows(dane).rows()); });
  m.def("_wykryj_format", [](const py::object& wiersze) {
    const ScriptRows rows(wiersze);
    const xyz::LayoutVerdict verdict = unlocked([&] { return xyz::_wykryj_format(rows.rows()); });
    py::list dane;
    for (const xyz::Row row : verdict.dane) dane.append(rows.object_of(row));
    return py::make_tuple(verdict.fmt ? py::object(to_script(xyz::layout_code(*verdict.fmt))) : py::none(),
                          to_script(verdict.opis), dane);
  });
  m.def("_rozbierz", [](const py::object& wiersze, const py::object& fmt) {
    const xyz::Layout layout = layout_named(fmt);
    const ScriptRows rows(wiersze);
    const xyz::Decomposition read = unlocked([&] { return xyz::_rozbierz(rows.rows(), layout); });
    py::list punkty;
    for (const xyz::PointRecord& p : read.punkty) punkty.append(py::make_tuple(to_script(p.nr), p.x, p.y, p.z));
    py::list pominiete;
    for (const xyz::SkippedLine& line : read.pominiete) {
      pominiete.append(py::make_tuple(line.row, to_script(line.reason), to_script(line.text)));
    }
    return py::make_tuple(punkty, pominiete);
  });
  m.def("_rowna_wysokosc", [](double h) { return xyz::_rowna_wysokosc(h); });
}

void define_coordinate_systems(py::module_& m, ScriptHost& scripts) {
  m.def("_wspolczynniki", [] {
    const auto [A, beta, delta] = xyz::_wspolczynniki();
    return py::make_tuple(A, py::cast(beta), py::cast(delta));
  });
  m.def("_do_geo", [&scripts](double E, double N, const py::object& srid) -> py::object {
    const int number = scripts.market().number_of(srid);
    if (xyz::system_record(number).tag != xyz::kStereo70Tag) return py::cast(xyz::_do_geo(E, N, number));
    return py::module_::import("vexo_stereo70").attr("stereo70_do_geo")(E, N);  // the sibling's own answer, unchanged
  });
  m.def("_sensowny", [&scripts](double E, double N, const py::object& srid) {
    return xyz::_sensowny(E, N, scripts.market().number_of(srid));
  });
  m.def("_uklad_nazwa", [&scripts](const py::object& srid) {
    const py::dict names(scripts.market().module().attr("NAZWY"));
    return names.contains(srid) ? py::object(names[srid]) : py::object(to_script("EPSG:" + from_script(srid)));
  });
  m.def("_wykryj_uklad", [&scripts](const py::object& pary) {
    const auto pairs = pairs_of(pary, xyz::kDetectionSample);
    py::list candidates;
    for (const auto& [srid, swap, frac] : xyz::_wykryj_uklad(pairs)) {
      candidates.append(py::make_tuple(scripts.market().code_of(srid), swap, frac));
    }
    return candidates;
  });
}

void define_dialogue_and_drawing(py::module_& m, ScriptHost& scripts) {
  m.def("_slowo", [](const py::object& symbol) { return to_script(xyz::_slowo(from_script(symbol))); });
  m.def(
      "_kword",
      [](const std::vector<py::object>& symbole, const py::object& kl_prompt, std::size_t i_dom) {
        std::vector<std::string> texts;
        texts.reserve(symbole.size());
        for (const py::object& symbol : symbole) texts.push_back(from_script(symbol));
        const std::vector<std::string_view> symbols(texts.begin(), texts.end());
        if (i_dom >= symbols.size()) throw xyz::IndexError("there is no default symbol");
        const auto answer = xyz::_kword(symbols, from_script(kl_prompt), i_dom);
        if (!answer) return py::make_tuple(false, py::none());
        const auto position = std::find(symbols.begin(), symbols.end(), *answer) - symbols.begin();
        return py::make_tuple(true, symbole[static_cast<std::size_t>(position)]);
      },
      py::arg("symbole"), py::arg("kl_prompt"), py::arg("i_dom") = 0);
  m.def("_openModelSpace", [&scripts] {
    const Run run(scripts);
    xyz::ModelSpace model = xyz::_openModelSpace();
    if (!model.ms) return py::make_tuple(py::none(), py::none());
    const auto ms = model.ms.release();  // the script closes it
    return py::make_tuple(object_of(*ms), scripts.database_object());
  });
  m.def("_setPointDisplayVars", [] { xyz::_setPointDisplayVars(); });
  m.def("_nazwa_grupy", [&scripts](py::object db, const py::object& path) {
    const Run run(scripts);
    return to_script(xyz::_nazwa_grupy(scripts.adopt_database(std::move(db)), from_script(path)));
  });
  m.def("_grupuj", [&scripts](py::object db, py::object ids, const py::object& nazwa) {
    const Run run(scripts);
    const auto stand_ins = scripts.adopt_id_array(std::move(ids));
    const auto grouped = xyz::_grupuj(scripts.adopt_database(std::move(db)), stand_ins, from_script(nazwa));
    return py::make_tuple(grouped.ok, to_script(grouped.message));
  });
  m.def("_oznacz_do_kontroli", [&scripts](const py::object& oidy) {
    const Run run(scripts);
    std::vector<host::GcDbObjectId> ids;
    for (const py::handle oid : oidy) ids.push_back(scripts.remember(py::reinterpret_borrow<py::object>(oid)));
    const auto marked = xyz::_oznacz_do_kontroli(ids);
    return py::make_tuple(marked.ile, or_none(marked.message));
  });
}

void define_constants(py::module_& m) {
  for (const char* facility : {"re", "os", "sys", "math", "time", "zipfile"}) {
    m.attr(facility) = py::module_::import(facility);
  }
  m.attr("_A_GRS80") = xyz::_A_GRS80;
  m.attr("_F_GRS80") = xyz::_F_GRS80;
  m.attr("_A_K") = xyz::_A_K;
  m.attr("_BETA") = py::cast(xyz::_BETA);
  m.attr("_DELTA") = py::cast(xyz::_DELTA);
  m.attr("_ROWNE_WYSOKOSCI") = py::tuple(py::cast(xyz::_ROWNE_WYSOKOSCI));
  m.attr("_MAX_KONTROLA") = xyz::_MAX_KONTROLA;
}

// The host goes with its module; a later module of this name may have bound its own by then.
void let_go(void* capsule_content) {
  const std::unique_ptr<ScriptHost> scripts(static_cast<ScriptHost*>(capsule_content));
  if (host::is_bound() && &host::bound().host.siblings == scripts.get()) host::unbind();
}

void set_up(py::module_ m) {
  register_translation();
  auto* const scripts = new ScriptHost(m);  // NOLINT(cppcoreguidelines-owning-memory): the capsule owns it
  m.attr("_host") = py::capsule(scripts, let_go);
  define_constants(m);
  define_input_and_table(m);
  define_coordinate_systems(m, *scripts);
  define_dialogue_and_drawing(m, *scripts);
  xyz::load_module(scripts->roles());
  m.attr("_D") = scripts->market().module();
}

int execute(PyObject* module) {
  try {
    py::detail::get_internals();
    set_up(py::reinterpret_borrow<py::module_>(module));
    return 0;
  } catch (...) {
    raise_current();
    return -1;
  }
}

PyModuleDef_Slot slots[] = {{Py_mod_exec, reinterpret_cast<void*>(execute)}, {0, nullptr}};  // NOLINT: a C table
PyModuleDef definition = {PyModuleDef_HEAD_INIT,
                          "vexo_xyz_impl",
                          "Imports files of surveyed points into the drawing: the command VEXO_XYZ.",
                          0,
                          nullptr,
                          slots,
                          nullptr,
                          nullptr,
                          nullptr};

}  // namespace
}  // namespace scripting

extern "C" __attribute__((visibility("default"))) PyObject* PyInit_vexo_xyz_impl() {
  return PyModuleDef_Init(&scripting::definition);
}
