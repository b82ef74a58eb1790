#include "python/market.h"

#include <limits>
#include <optional>
#include <string>
#include <utility>

#include "python/exceptions.h"
#include "python/host.h"

namespace scripting {
namespace {

namespace py = pybind11;

std::pair<double, double> range_of(const py::object& pair) {
  return {pair[py::int_(0)].cast<double>(), pair[py::int_(1)].cast<double>()};
}

std::optional<double> limit_of(const py::object& value) {
  if (value.is_none()) return std::nullopt;
  return value.cast<double>();
}

// The record's tag and, unless nobody reads them, its numbers, however many there are.
vexo_xyz_impl::host::CoordinateSystem system_of(const py::object& record) {
  vexo_xyz_impl::host::CoordinateSystem system;
  bool first = true;
  for (const py::handle item : record) {
    if (first) {
      system.tag = from_script(item);
    } else if (system.tag != "stereo70") {
      system.items.push_back(item.cast<double>());
    }
    first = false;
  }
  return system;
}

}  // namespace

Market::Market(py::object module) : module_(std::move(module)) {
  calling_script([&] {
    const py::dict systems(module_.attr("UKLADY"));
    for (const auto& [code, record] : systems) {
      tables_.UKLADY.emplace(enter(code), system_of(py::reinterpret_borrow<py::object>(record)));
    }
    for (const py::handle code : module_.attr("KOLEJNOSC")) tables_.KOLEJNOSC.push_back(enter(code));
    const py::dict names(module_.attr("NAZWY"));
    for (const auto& [code, name] : names) tables_.NAZWY.emplace(enter(code), from_script(name));
    for (const py::handle code : module_.attr("ZONE_EXEMPT")) tables_.ZONE_EXEMPT.insert(enter(code));
    tables_.KRAJ_LAT = range_of(module_.attr("KRAJ_LAT"));
    tables_.KRAJ_LON = range_of(module_.attr("KRAJ_LON"));
    tables_.EASTING_HALF = limit_of(module_.attr("EASTING_HALF"));
    tables_.LON_HALF = limit_of(module_.attr("LON_HALF"));
    // A number below zero is nobody's code: its name must be at hand.
    for (std::size_t i = 0; i < codes_.size(); ++i) {
      tables_.NAZWY.emplace(-1 - static_cast<int>(i), "EPSG:" + from_script(codes_[i]));
    }
  });
}

int Market::enter(py::handle code) {
  if (numbers_.contains(code)) return numbers_[code].cast<int>();
  int overflow = 0;
  const bool whole = PyLong_CheckExact(code.ptr()) != 0;
  const long long value = whole ? PyLong_AsLongLongAndOverflow(code.ptr(), &overflow) : -1;
  int number = 0;
  if (overflow == 0 && value >= 0 && value <= std::numeric_limits<int>::max()) {
    number = static_cast<int>(value);
  } else {
    codes_.push_back(py::reinterpret_borrow<py::object>(code));
    number = -static_cast<int>(codes_.size());
  }
  numbers_[code] = number;
  return number;
}

int Market::number_of(py::handle code) const {
  return calling_script([&] { return py::object(numbers_[code]).cast<int>(); });
}

py::object Market::code_of(int number) const {
  return number >= 0 ? py::object(py::int_(number)) : codes_.at(static_cast<std::size_t>(-1 - number));
}

}  // namespace scripting
