#include "console/report/report_file.h"

#include <cstddef>
#include <string>
#include <utility>

#include <nlohmann/json.hpp>

#include "console/account/account_lines.h"
#include "console/decimals.h"
#include "console/files.h"
#include "vexo_xyz_impl/messages.h"

namespace console {
namespace {

using nlohmann::ordered_json;

// What reports begin with, by which one may be known again.
constexpr std::string_view kJsonBeginning = "{\n \"outcome\": \"";
constexpr std::string_view kTextBeginning = "vexo-xyz\n";

using vexo_xyz_impl::filled;

std::string_view name_of(Outcome outcome) {
  if (outcome == Outcome::imported) return "imported";
  return outcome == Outcome::nothing ? "nothing" : "failed";
}

std::string_view name_of(Axes axes) {
  if (axes == Axes::unconfirmed) return "unconfirmed";
  return axes == Axes::swap ? "swap" : "keep";
}

// As JSON, whatever bytes a name or a text holds.
std::string json(const ordered_json& value) {
  return value.dump(-1, ' ', false, ordered_json::error_handler_t::replace);
}

std::string_view reason_for(const Findings::RowNotTakenOver& row) { return row.reason; }
std::string reason_for(const RowWithoutPoint& row) { return reason_of(row.why); }

// A row a line, made one by one: there may be a million.
template <class AnyRow>
std::string rows_as_json(const std::vector<AnyRow>& rows) {
  std::string list = "[";
  for (const AnyRow& row : rows) {
    list += list.size() > 1 ? ",\n   " : "\n   ";
    list += "{\"line\": " + std::to_string(row.line) + ", \"reason\": " + json(reason_for(row)) +
            ", \"text\": " + json(row.text) + "}";
  }
  return list + "]";
}

std::string account_as_json(const Account& account) {
  std::string text = "{";
  for (const auto& [name, count] :
       {std::pair("lines", account.lines), std::pair("comments", account.comments), std::pair("blank", account.blank),
        std::pair("rows", account.rows), std::pair("points", account.points)})
    text += "\"" + std::string(name) + "\": " + std::to_string(count) + ", ";
  return text + "\n  \"skipped\": " + rows_as_json(account.skipped) +
         ",\n  \"left_out\": " + rows_as_json(account.left_out) + "}";
}

ordered_json system_as_json(const Findings& findings) {
  ordered_json candidates = ordered_json::array();
  for (const auto& [candidate, name] : findings.systems) {
    candidates.push_back(
        {{"epsg", candidate.srid}, {"name", name}, {"swap", candidate.swap}, {"share", candidate.frac}});
  }
  return {{"candidates", std::move(candidates)}, {"axes", name_of(findings.axes)}};
}

ordered_json doubts_as_json(const std::vector<Doubt>& doubts) {
  ordered_json list = ordered_json::array();
  for (const Doubt& doubt : doubts)
    list.push_back({{"code", doubt.code}, {"text", doubt.text}, {"lines", doubt.lines}});
  return list;
}

ordered_json reason_as_json(const Reason& reason) {
  if (reason.code.empty()) return nullptr;
  return {{"code", reason.code}, {"text", reason.text}};
}

long long count_of(std::size_t count) { return static_cast<long long>(count); }

template <class AnyRow>
void add_rows(std::string& text, const std::vector<AnyRow>& rows) {
  for (const AnyRow& row : rows) {
    const std::string reason(reason_for(row));
    text += filled("konsola.raport_wiersz", {count_of(row.line), std::string_view(reason), std::string_view(row.text)});
  }
}

std::string as_text(const Findings& findings) {
  const Account& account = findings.account;
  std::string separators;
  for (const std::string& separator : findings.separators) separators += (separators.empty() ? "" : ", ") + separator;
  std::string text(kTextBeginning);
  text += filled("konsola.raport_wynik", {name_of(findings.outcome)});
  if (!findings.encoding.empty())
    text += filled("konsola.raport_plik", {std::string_view(findings.encoding), std::string_view(separators)});
  text += filled("konsola.raport_linie", {count_of(account.lines), count_of(account.comments), count_of(account.blank),
                                          count_of(account.rows)});
  text += filled("konsola.raport_wiersze", {count_of(account.rows), count_of(account.points),
                                            count_of(account.skipped.size()), count_of(account.left_out.size())});
  if (!findings.layout.empty())
    text += filled("konsola.raport_kolumny", {std::string_view(findings.layout), std::string_view(findings.evidence)});
  for (const auto& [candidate, name] : findings.systems) {
    text += filled("konsola.raport_uklad",
                   {std::string_view(name), candidate.frac * 100.0, name_of(candidate.swap ? Axes::swap : Axes::keep)});
  }
  text += filled("konsola.raport_osie", {name_of(findings.axes)});
  add_rows(text, account.left_out);
  add_rows(text, account.skipped);
  if (!findings.prepared_from.empty())
    text += filled("konsola.raport_przygotowano", {std::string_view(findings.prepared_from)});
  add_rows(text, findings.prepared_left_out);
  for (const Doubt& doubt : findings.doubts) text += filled("konsola.watpliwosc", {std::string_view(doubt.text)});
  if (findings.from_drawing) {
    const std::string distance = distance_text(*findings.from_drawing);
    text += filled("konsola.rys_odleglosc", {std::string_view(distance)});
  }
  if (!findings.drawing.empty()) {
    text += filled("konsola.zapisano", {std::string_view(findings.drawing)});
    text += filled("konsola.prep_powtorz", {std::string_view(findings.repeat)});
  }
  if (!findings.reason.code.empty()) text += filled("konsola.powod", {std::string_view(findings.reason.text)});
  return text;
}

}  // namespace

std::string report_as_json(const Findings& findings) {
  const ordered_json file = {
      {"path", findings.path}, {"encoding", findings.encoding}, {"separators", findings.separators}};
  std::string text(kJsonBeginning);
  text += std::string(name_of(findings.outcome)) + "\"";
  const auto add = [&text](std::string_view name, std::string_view value) {
    text += ",\n \"";
    text += name;
    text += "\": ";
    text += value;
  };
  add("file", json(file));
  add("account", account_as_json(findings.account));
  add("layout", json({{"code", findings.layout}, {"evidence", findings.evidence}}));
  add("system", json(system_as_json(findings)));
  add("doubts", json(doubts_as_json(findings.doubts)));
  add("reason", json(reason_as_json(findings.reason)));
  if (!findings.prepared_from.empty())
    add("prepared", "{\"from\": " + json(findings.prepared_from) +
                        ", \"left_out\": " + rows_as_json(findings.prepared_left_out) + "}");
  if (findings.from_drawing) add("from_drawing", json(*findings.from_drawing));
  if (!findings.drawing.empty()) {
    add("drawing", json(findings.drawing));
    add("repeat", json(findings.repeat));
  }
  return text + "\n}\n";
}

bool is_report(const std::filesystem::path& path) { return begins_with_any(path, {kJsonBeginning, kTextBeginning}); }

void write_report(const Findings& findings, const std::filesystem::path& path) {
  write_whole(path, path.extension() == ".json" ? report_as_json(findings) : as_text(findings));
}

}  // namespace console
