#include "console/report/report_file.h"

#include <cerrno>
#include <cstddef>
#include <string>
#include <system_error>

#include <nlohmann/json.hpp>

#include "console/account/account_lines.h"
#include "console/files.h"
#include "vexo_xyz_impl/messages.h"

namespace console {
namespace {

using nlohmann::ordered_json;
using vexo_xyz_impl::filled;

std::string_view name_of(Outcome outcome) {
  if (outcome == Outcome::imported) return "imported";
  return outcome == Outcome::nothing ? "nothing" : "failed";
}

std::string_view name_of(Axes axes) {
  if (axes == Axes::unconfirmed) return "unconfirmed";
  return axes == Axes::swap ? "swap" : "keep";
}

ordered_json rows_as_json(const std::vector<RowWithoutPoint>& rows) {
  ordered_json list = ordered_json::array();
  for (const RowWithoutPoint& row : rows)
    list.push_back({{"line", row.line}, {"reason", reason_of(row.why)}, {"text", row.text}});
  return list;
}

ordered_json account_as_json(const Account& account) {
  return {{"lines", account.lines},
          {"comments", account.comments},
          {"blank", account.blank},
          {"rows", account.rows},
          {"points", account.points},
          {"skipped", rows_as_json(account.skipped)},
          {"left_out", rows_as_json(account.left_out)}};
}

ordered_json system_as_json(const Findings& findings) {
  ordered_json candidates = ordered_json::array();
  for (const auto& [candidate, name] : findings.systems) {
    candidates.push_back(
        {{"epsg", candidate.srid}, {"name", name}, {"swap", candidate.swap}, {"share", candidate.frac}});
  }
  return {{"candidates", std::move(candidates)}, {"axes", name_of(findings.axes)}};
}

std::string as_json(const Findings& findings) {
  ordered_json doubts = ordered_json::array();
  for (const Doubt& doubt : findings.doubts)
    doubts.push_back({{"code", doubt.code}, {"text", doubt.text}, {"lines", doubt.lines}});
  ordered_json reason;
  if (!findings.reason.code.empty()) reason = {{"code", findings.reason.code}, {"text", findings.reason.text}};
  const ordered_json report = {
      {"outcome", name_of(findings.outcome)},
      {"file", {{"path", findings.path}, {"encoding", findings.encoding}, {"separators", findings.separators}}},
      {"account", account_as_json(findings.account)},
      {"layout", {{"code", findings.layout}, {"evidence", findings.evidence}}},
      {"system", system_as_json(findings)},
      {"doubts", std::move(doubts)},
      {"reason", std::move(reason)},
  };
  constexpr int kIndent = 1;
  // Names that a script gave may be no UTF-8.
  return report.dump(kIndent, ' ', false, ordered_json::error_handler_t::replace) + "\n";
}

long long count_of(std::size_t count) { return static_cast<long long>(count); }

void add_rows(std::string& text, const std::vector<RowWithoutPoint>& rows) {
  for (const RowWithoutPoint& row : rows) {
    const std::string reason = reason_of(row.why);
    text += filled("konsola.raport_wiersz", {count_of(row.line), std::string_view(reason), std::string_view(row.text)});
  }
}

std::string as_text(const Findings& findings) {
  const Account& account = findings.account;
  std::string separators;
  for (const std::string& separator : findings.separators) separators += (separators.empty() ? "" : ", ") + separator;
  std::string text = filled("konsola.raport_wynik", {name_of(findings.outcome)});
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
  for (const Doubt& doubt : findings.doubts) text += filled("konsola.watpliwosc", {std::string_view(doubt.text)});
  if (!findings.reason.code.empty()) text += filled("konsola.powod", {std::string_view(findings.reason.text)});
  return text;
}

}  // namespace

void write_report(const Findings& findings, const std::filesystem::path& path) {
  const std::string report = path.extension() == ".json" ? as_json(findings) : as_text(findings);
  AtomicFile file(path.parent_path());
  file.write(report);
  file.flush();
  if (!file.commit(path, true)) throw std::system_error(EEXIST, std::generic_category());
}

}  // namespace console
