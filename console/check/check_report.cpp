#include "console/check/check_report.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include <nlohmann/json.hpp>

#include "console/decimals.h"
#include "console/drawing/database.h"
#include "console/plain_table.h"
#include "vexo_xyz_impl/drawing/control.h"
#include "vexo_xyz_impl/messages.h"

namespace console {
namespace {

using nlohmann::ordered_json;
using vexo_xyz_impl::filled;
using vexo_xyz_impl::T;

long long count_of(std::size_t count) { return static_cast<long long>(count); }

std::size_t count_of(const ControlFindings& findings, Change change) {
  return static_cast<std::size_t>(std::count_if(findings.changed.begin(), findings.changed.end(),
                                                [change](const ChangedPoint& one) { return one.change == change; }));
}

std::string what_of(const ChangedPoint& changed, const TextDecoding& decoded) {
  constexpr std::array<std::string_view, 3> kKeys = {"konsola.kontrola_przesuniety", "konsola.kontrola_usuniety",
                                                     "konsola.kontrola_skopiowany"};
  std::string what = T(kKeys[static_cast<std::size_t>(changed.change)]);
  if (changed.point == nullptr || changed.point->block.empty()) return what;
  const std::string block = decoded(changed.point->block);
  return what + filled("konsola.kontrola_w_bloku", {std::string_view(block)});
}

std::string table_of(const CheckedDrawing& drawing) {
  constexpr double kMillimetre = 0.001;
  const int decimals = drawing.tolerance < kMillimetre ? 4 : 3;
  std::vector<std::vector<std::string>> rows = {
      {T("konsola.kontrola_numer"), T("konsola.kontrola_co"), "ΔX", "ΔY", "ΔZ", T("konsola.kontrola_odleglosc")}};
  for (const ChangedPoint& changed : drawing.findings.changed) {
    std::vector<std::string> row = {drawing.decoded(changed.label()), what_of(changed, drawing.decoded)};
    if (changed.point != nullptr) {
      const Position shift = changed.shift();
      for (const double part : {shift.x, shift.y, shift.z, changed.distance()})
        row.push_back(with_decimals(part, decimals));
    }
    rows.push_back(std::move(row));
  }
  return plain_table({Align::left, Align::left, Align::right, Align::right, Align::right, Align::right}, rows);
}

ordered_json position_as_json(const Position& position) { return {position.x, position.y, position.z}; }

ordered_json point_as_json(const ChangedPoint& changed, const CheckedDrawing& drawing) {
  constexpr std::array<std::string_view, 3> kNames = {"moved", "deleted", "copied"};
  ordered_json one = {{"number", drawing.decoded(changed.label())},
                      {"what", kNames[static_cast<std::size_t>(changed.change)]},
                      {"registered", position_as_json(changed.registered())}};
  if (changed.point != nullptr) {
    const Position shift = changed.shift();
    one["now"] = position_as_json(changed.point->now);
    one["shift"] = position_as_json(shift);
    one["distance"] = changed.distance();
    if (changed.point->own != 0) one["handle"] = handle_text(changed.point->own);
    if (!changed.point->block.empty()) one["block"] = drawing.decoded(changed.point->block);
  }
  if (changed.listed != nullptr) one["group"] = drawing.decoded(drawing.points.lists[changed.listed->list]);
  return one;
}

}  // namespace

std::string check_as_text(const CheckedDrawing& drawing) {
  const ControlFindings& findings = drawing.findings;
  if (findings.controlled == 0 && findings.changed.empty())
    return filled("konsola.kontrola_brak", {std::string_view(drawing.path), count_of(vexo_xyz_impl::_MAX_KONTROLA)});
  std::string text = findings.changed.empty() ? std::string() : table_of(drawing);
  const std::string tolerance = spelled(drawing.tolerance, 6);
  text += filled("konsola.kontrola_suma",
                 {count_of(findings.controlled), count_of(findings.in_place), std::string_view(tolerance),
                  count_of(count_of(findings, Change::moved)), count_of(count_of(findings, Change::deleted)),
                  count_of(count_of(findings, Change::copied))});
  if (findings.unlisted > 0) text += filled("konsola.kontrola_bez_listy", {count_of(findings.unlisted)});
  return text;
}

std::string check_as_json(const CheckedDrawing& drawing) {
  const ControlFindings& findings = drawing.findings;
  ordered_json changed = ordered_json::array();
  for (const ChangedPoint& one : findings.changed) changed.push_back(point_as_json(one, drawing));
  const ordered_json all = {{"drawing", drawing.path},
                            {"tolerance", drawing.tolerance},
                            {"controlled", findings.controlled},
                            {"in_place", findings.in_place},
                            {"moved", count_of(findings, Change::moved)},
                            {"deleted", count_of(findings, Change::deleted)},
                            {"copied", count_of(findings, Change::copied)},
                            {"without_list", findings.unlisted},
                            {"points", std::move(changed)}};
  return all.dump(1, ' ', false, ordered_json::error_handler_t::replace) + "\n";
}

}  // namespace console
