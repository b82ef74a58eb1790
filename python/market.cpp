#include "python/market.h"

#include <limits>

#include "python/exceptions.h"
#include "python/lock.h"
#include "python/values.h"

namespace scripting {

namespace py = pybind11;

using vexo_xyz_impl::host::ZoneParameters;

namespace {

constexpr const char* kStereo70 = "stereo70";  // tag of the one system that is no zone

// The whole number of a code that is one and not below zero.
std::optional<int> whole_number(const py::object& code) {
  if (PyLong_CheckExact(code.ptr()) == 0) return std::nullopt;
  int overflow = 0;
  const long long value = PyLong_AsLongLongAndOverflow(code.ptr(), &overflow);
  if (overflow != 0 || value < 0 || value > std::numeric_limits<int>::max()) return std::nullopt;
  return static_cast<int>(value);
}

bool has(const py::object& table, const py::object& code) {
  const int found = PySequence_Contains(table.ptr(), code.ptr());
  if (found < 0) throw py::error_already_set();
  return found != 0;
}

}  // namespace

int ScriptMarket::number_of(const py::object& code) const {
  if (const auto number = whole_number(code)) return *number;
  return calling_script([&] {
    if (!numbers_.contains(code)) {
      static_cast<void>(py::object(module_.attr("UKLADY")[code]));  // fails for a code that is nobody's
      codes_.push_back(code);
      numbers_[code] = -static_cast<int>(codes_.size());
    }
    return numbers_[code].cast<int>();
  });
}

py::object ScriptMarket::code_of(int number) const {
  return number >= 0 ? py::object(py::int_(number)) : codes_.at(static_cast<std::size_t>(-1 - number));
}

py::object ScriptMarket::name_of(const py::object& code) const {
  return calling_script([&]() -> py::object {
    const py::object names = module_.attr("NAZWY");
    return has(names, code) ? py::object(names[code]) : to_script("EPSG:" + from_script(code));
  });
}

std::optional<ZoneParameters> ScriptMarket::UKLADY(int srid) const {
  const Locked lock;
  return calling_script([&]() -> std::optional<ZoneParameters> {
    const py::object record = module_.attr("UKLADY")[code_of(srid)];
    if (py::object(record[py::int_(0)]).equal(py::str(kStereo70))) return std::nullopt;
    const py::list items = items_of(record, 5);
    const auto number = [&](std::size_t i) { return number_from_script(items[i]); };
    return ZoneParameters{number(1), number(2), number(3), number(4)};
  });
}

std::vector<int> ScriptMarket::KOLEJNOSC() const {
  const Locked lock;
  return calling_script([&] {
    std::vector<int> order;
    for (const py::handle code : module_.attr("KOLEJNOSC")) {
      order.push_back(number_of(py::reinterpret_borrow<py::object>(code)));
    }
    return order;
  });
}

std::optional<std::string> ScriptMarket::NAZWY(int srid) const {
  const Locked lock;
  return calling_script([&] { return std::optional(from_script(name_of(code_of(srid)))); });
}

bool ScriptMarket::ZONE_EXEMPT(int srid) const {
  const Locked lock;
  return calling_script([&] { return has(module_.attr("ZONE_EXEMPT"), code_of(srid)); });
}

std::pair<double, double> ScriptMarket::range(const char* table) const {
  const Locked lock;
  return calling_script([&]() -> std::pair<double, double> {
    const py::object bounds = module_.attr(table);
    const py::object least = bounds[py::int_(0)];
    return {number_from_script(least), number_from_script(bounds[py::int_(1)])};
  });
}

std::optional<double> ScriptMarket::limit(const char* table) const {
  const Locked lock;
  return calling_script([&]() -> std::optional<double> {
    const py::object value = module_.attr(table);
    return value.is_none() ? std::nullopt : std::optional(number_from_script(value));
  });
}

}  // namespace scripting
