// vexo_cad_core for scripts: the family's text style on a text of the host's drawing, through the host's own interface.
//
// A label without its style is no reason to lose an import: whatever the host lacks or refuses leaves the text as it
// is, in silence. Only what is no ordinary error in scripts (KeyboardInterrupt, SystemExit) passes.
#include <exception>
#include <stdexcept>
#include <string>
#include <utility>

#include <pybind11/pybind11.h>

#include "python/host_names.h"
#include "python/module_start.h"
#include "python/values.h"
#include "siblings/vexo_cad_core/cad_core.h"

namespace {

namespace py = pybind11;

template <class Action>
void ignoring_failures(Action action) {
  try {
    action();
  } catch (const py::error_already_set& error) {
    if (!error.matches(PyExc_Exception)) throw;
  } catch (const std::exception&) {  // NOLINT(bugprone-empty-catch): an answer of an unexpected shape, a refusal
  }
}

py::object host(const char* name) {
  py::object found;
  for (const char* binding : scripting::kBindingModules) {
    ignoring_failures([&] { found = py::module_::import(binding).attr(name); });
  }
  if (!found) throw std::runtime_error(std::string("the host has no ") + name);
  return found;
}

// What `work` makes of an opened object, which is closed on every path.
template <class Work>
py::object with_opened(const py::object& opened, Work work) {
  const auto close = [&] { ignoring_failures([&] { opened.attr("close")(); }); };
  py::object result;
  try {
    result = work(opened);
  } catch (...) {
    close();
    throw;
  }
  close();
  return result;
}

// The text styles of the working database. What answers are judged by is at hand before anything is opened.
class TextStyles {
 public:
  // The id of the family's style; no object when there is none.
  [[nodiscard]] py::object find() const {
    return with_table("kForRead", [this](const py::object& table) {
      const bool there = table.attr("has")(vexo_cad_core::kStyleName).cast<bool>();
      return there ? granted(table.attr("getAt")(vexo_cad_core::kStyleName)) : py::object();
    });
  }

  [[nodiscard]] py::object make() const {
    return with_table("kForWrite", [this](const py::object& table) {
      return with_opened(host("GcDbTextStyleTableRecord")(), [&](const py::object& record) {
        demand_set(record.attr("setName")(vexo_cad_core::kStyleName));
        demand_set(record.attr("setFileName")(vexo_cad_core::kFontFile));
        return granted(table.attr("add")(record));
      });
    });
  }

 private:
  template <class Work>
  [[nodiscard]] py::object with_table(const char* mode, Work work) const {
    return with_opened(granted(database_.attr("getTextStyleTable")(modes_.attr(mode))), work);
  }

  // The second of (status, object).
  [[nodiscard]] py::object granted(const py::object& answer) const {
    const py::list both = scripting::items_of(answer, 2);
    try {
      demand_ok(both[0]);
    } catch (const py::error_already_set&) {  // a status that cannot be judged: nobody has what was opened, if it was
      ignoring_failures([&] { both[1].attr("close")(); });
      throw;
    }
    return both[1];
  }

  // Setters may as well answer nothing.
  void demand_set(const py::object& answer) const {
    if (!answer.is_none()) demand_ok(answer);
  }

  void demand_ok(const py::object& status) const {
    if (!status.equal(ok_)) throw std::runtime_error("the host refuses");
  }

  py::object ok_ = host("Gcad").attr("eOk");
  py::object modes_ = host("GcDb");
  py::object database_ = host("gcdbWorkingDatabase")();
};

py::object found_or_made() {
  const TextStyles styles;
  py::object style = styles.find();
  return style ? style : styles.make();
}

void set_style(const py::object& text, const py::object& style) {
  if (style) text.attr("setTextStyle")(style);
}

void nadaj_styl_pl(const py::object& text) {
  ignoring_failures([&] { set_style(text, found_or_made()); });
}

// The same for all labels of one run, during which the drawing stays the same: its style is looked up once.
py::cpp_function styling_of_one_run() {
  py::object style;
  ignoring_failures([&] { style = found_or_made(); });
  return {[style](const py::object& text) { ignoring_failures([&] { set_style(text, style); }); },
          py::name("nadaj_styl_pl"), py::arg("text")};
}

void set_up(py::module_& m) {
  scripting::define(m, "nadaj_styl_pl", nadaj_styl_pl, py::arg("text"),
                    "Gives a text the family's text style, made in the working database when it has none.");
  scripting::define(m, "styling_of_one_run", styling_of_one_run,
                    "nadaj_styl_pl for many texts of one drawing: looks the style up now, and no more.");
}

}  // namespace

VEXO_SCRIPT_MODULE(vexo_cad_core, "The family's styling of texts.", set_up)
