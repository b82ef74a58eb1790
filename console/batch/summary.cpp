#include "console/batch/summary.h"

#include <algorithm>
#include <ostream>
#include <string_view>

#include <nlohmann/json.hpp>

#include "console/dialogue/shown_text.h"
#include "console/plain_table.h"
#include "console/written.h"
#include "vexo_xyz_impl/messages.h"

namespace console {
namespace {

using nlohmann::ordered_json;
using vexo_xyz_impl::T;

std::string as_text(const ordered_json& report) {
  return report.dump(1, ' ', false, ordered_json::error_handler_t::replace) + "\n";
}

// Of a file whose process left none.
std::string failed_report(const std::string& file, const Reason& reason) {
  ordered_json report = {{"outcome", "failed"}, {"file", {{"path", file}}}};
  if (!reason.code.empty()) report["reason"] = {{"code", reason.code}, {"text", reason.text}};
  return as_text(report);
}

// In a word; what is set aside waits for an answer.
std::string_view result_of(ExitCode code, std::string_view reason) {
  if (code == kImported) return "konsola.wsad_wczytany";
  if (code != kNothingImported) return "konsola.wsad_blad";
  return reason == "columns_open" || reason == "axes_open" ? "konsola.wsad_odlozony" : "konsola.wsad_nic";
}

std::string as_list(const std::vector<std::string>& reports) {
  std::string list;
  for (const std::string& report : reports) list += (list.empty() ? "[\n" : ",\n") + report;
  return list + "]\n";
}

}  // namespace

Summary::Summary(std::ostream& out, std::ostream* reports) : out_(out), reports_(reports) {
  rows_.push_back(
      {T("konsola.wsad_plik"), T("konsola.wsad_punkty"), T("konsola.wsad_rysunek"), T("konsola.wsad_wynik")});
}

void Summary::add(const ImportProcess& process) {
  if (process.words.find_first_not_of('\n') != std::string::npos)
    out_ << shown_text(process.file) << ":\n" << process.words << '\n';
  out_ << std::flush;
  const auto found = nlohmann::json::parse(process.report, nullptr, false);
  told_.push_back(found.is_object() ? process.report : failed_report(process.file, process.reason));
  long long points = 0;
  std::string drawing;
  std::string code(process.reason.code);
  std::string reason = process.reason.text;
  if (found.is_object()) {
    drawing = found.value("drawing", "");
    if (process.code == kImported) points = found["account"]["points"];
    if (found["reason"].is_object()) {
      code = found["reason"]["code"];
      reason = found["reason"]["text"];
    }
  }
  points_ += points;
  files_ += process.code == kImported ? 1 : 0;
  const std::string result = T(result_of(process.code, code));
  rows_.push_back({process.file, std::to_string(points), drawing.empty() ? "-" : drawing,
                   reason.empty() ? result : result + ": " + reason});
  worst_ = std::max(worst_, process.code);
}

void Summary::add_failed(const std::string& file) {
  ImportProcess process;
  process.file = file;
  add(process);
}

void Summary::nothing_was_saved() {
  for (std::size_t i = 0; i < told_.size(); ++i) {
    auto& row = rows_[i + 1];
    auto report = ordered_json::parse(told_[i]);
    if (report["outcome"] != "imported") continue;
    report["outcome"] = "failed";
    report.erase("drawing");
    report.erase("repeat");
    told_[i] = as_text(report);
    row = {row.front(), "0", "-", T("konsola.wsad_blad")};
  }
  points_ = files_ = 0;
  worst_ = kFailure;
}

ExitCode Summary::end() {
  if (reports_ != nullptr && !written(*reports_, as_list(told_))) worst_ = kFailure;
  out_ << plain_table({Align::left, Align::right, Align::left, Align::left}, rows_);
  const auto all = static_cast<long long>(rows_.size()) - 1;
  out_ << vexo_xyz_impl::filled("konsola.wsad_razem", {files_, all, points_}) << std::flush;
  return worst_;
}

}  // namespace console
