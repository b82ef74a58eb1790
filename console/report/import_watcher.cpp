#include "console/report/import_watcher.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <numeric>
#include <set>
#include <string_view>
#include <utility>

#include "console/account/account_lines.h"
#include "console/decimals.h"
#include "console/dialogue/shown_text.h"
#include "console/nearness.h"
#include "console/report/reasons.h"
#include "vexo_xyz_impl/crs/systems.h"
#include "vexo_xyz_impl/failure.h"
#include "vexo_xyz_impl/messages.h"
#include "vexo_xyz_impl/notices.h"

namespace console {
namespace {

using vexo_xyz_impl::AxesBy;
using vexo_xyz_impl::Cell;
using vexo_xyz_impl::ImportSeen;
using vexo_xyz_impl::Row;
using vexo_xyz_impl::host::CommandOutcome;

// What stands between the cells of the first rows, the names of separators in the order of their codes.
std::vector<std::string> separators_of(std::span<const Row> rows) {
  constexpr std::size_t kSample = 1000;
  std::set<char> found;
  for (const Row row : rows.first(std::min(rows.size(), kSample))) {
    std::optional<Cell> before;
    for (const Cell cell : row) {
      if (before) {
        const char* const end = before->data() + before->size();
        const std::string_view between(end, static_cast<std::size_t>(cell.data() - end));
        const std::size_t mark = between.find_first_of(";\t");
        found.insert(mark == std::string_view::npos ? ' ' : between[mark]);
      }
      before = cell;
    }
  }
  std::vector<std::string> names(found.size());
  std::transform(found.begin(), found.end(), names.begin(), [](char mark) {
    return mark == '\t' ? "tab" : mark == ' ' ? "blank" : ";";
  });
  return names;
}

void note_file(Findings& findings, const ImportSeen& seen) {
  if (seen.loaded.typ != vexo_xyz_impl::FileType::tekst || !seen.loaded.rows) return;
  findings.encoding = seen.loaded.rows->encoding();
  findings.separators = separators_of(seen.loaded.rows->rows());
}

// Whether a question was left open that the columns or the axes were to be settled by.
bool has_open_question(const ImportSeen& seen) {
  const bool left_columns_open = !seen.verdict.fmt && !seen.verdict.dane.empty() && !seen.failure;
  return left_columns_open || seen.axes.how == AxesBy::unconfirmed;
}

Outcome outcome_of(const ImportSeen& seen) {
  if (seen.outcome == CommandOutcome::failed) return Outcome::failed;
  const bool has_points = seen.read.punkty.size() > seen.refused.size();
  return seen.outcome == CommandOutcome::done && has_points ? Outcome::imported : Outcome::nothing;
}

Axes axes_of(const ImportSeen& seen) {
  if (seen.axes.how == AxesBy::unconfirmed) return Axes::unconfirmed;
  return seen.axes.swap ? Axes::swap : Axes::keep;
}

std::vector<std::size_t> all_points(const ImportSeen& seen) {
  std::vector<std::size_t> points(seen.read.punkty.size());
  std::iota(points.begin(), points.end(), std::size_t{0});
  return points;
}

// What would have answered the questions that arose.
std::vector<std::string> answers_to(const ImportSeen& seen) {
  std::vector<std::string> answers;
  if (seen.verdict.fmt && seen.columns_asked)
    answers = {"--first-column", has_number(*seen.verdict.fmt) ? "number" : "coordinate"};
  if (seen.axes.how == AxesBy::answered || seen.axes.how == AxesBy::unconfirmed)
    answers.insert(answers.end(), {"--axes", seen.axes.swap ? "swap" : "keep"});
  return answers;
}

void append(std::vector<Doubt>& doubts, std::vector<Doubt> more) {
  std::move(more.begin(), more.end(), std::back_inserter(doubts));
}

// Where the points lie that the drawing took, as they stand or with their axes exchanged.
std::vector<PlanPoint> in_plan(const ImportSeen& seen, bool swap) {
  std::vector<PlanPoint> points;
  points.reserve(seen.read.punkty.size());
  auto refused = seen.refused.begin();
  for (std::size_t i = 0; i < seen.read.punkty.size(); ++i) {
    const auto& point = seen.read.punkty[i];
    if (refused != seen.refused.end() && *refused == i) {
      ++refused;
    } else {
      points.push_back(swap ? PlanPoint{point.y, point.x} : PlanPoint{point.x, point.y});
    }
  }
  return points;
}

std::vector<std::size_t> lines_of(const std::vector<Findings::RowNotTakenOver>& rows) {
  std::vector<std::size_t> lines(rows.size());
  std::transform(rows.begin(), rows.end(), lines.begin(), [](const auto& row) { return row.line; });
  return lines;
}

}  // namespace

void ImportWatcher::rows_taken_apart(const ImportSeen& seen) {
  findings_ = {};
  seen_ = &seen;
  places_.emplace(seen);
  note_file(findings_, seen);
  findings_.account = account_of(seen, *places_);
  header_ = header_of(seen, *places_);
  named_axes_ = header_ ? named_axes(*header_, *seen.verdict.fmt) : std::nullopt;
  Evidence evidence{seen, *places_, header_, {}};
  if (!seen.read.punkty.empty()) {
    findings_.doubts = doubts_of_rows(evidence);
  } else if (auto doubt = doubt_height(evidence)) {
    findings_.doubts.push_back(std::move(*doubt));
  }
  if (tell_points_) tell_points_(seen.read.punkty.size());
}

void ImportWatcher::made_of(std::string path, std::vector<Findings::RowNotTakenOver> left_out) {
  made_of_ = std::move(path);
  not_taken_over_ = std::move(left_out);
}

void ImportWatcher::ended(const ImportSeen& seen) {
  if (!places_) {
    findings_ = {};
    note_file(findings_, seen);
    findings_.account = account_without_points(seen);
  }
  findings_.path = seen.path;
  findings_.prepared_from = made_of_;
  findings_.prepared_left_out = not_taken_over_;
  if (auto doubt = doubt_at("rows_left_out", "konsola.watp_przygotowanie", lines_of(not_taken_over_)))
    findings_.doubts.push_back(std::move(*doubt));
  is_set_aside_ = sets_open_files_aside_ && has_open_question(seen);
  findings_.outcome = is_set_aside_ ? Outcome::nothing : outcome_of(seen);
  if (places_ && (is_set_aside_ || seen.outcome == CommandOutcome::failed)) {
    take_back(findings_.account, seen, *places_, all_points(seen), Why::not_imported);
  } else if (places_) {
    take_back(findings_.account, seen, *places_, seen.refused, Why::refused);
  }
  if (seen.verdict.fmt) {
    findings_.layout = layout_code(*seen.verdict.fmt);
    findings_.has_heights = vexo_xyz_impl::has_heights(*seen.verdict.fmt);
  }
  findings_.evidence = seen.verdict.opis;
  for (const auto& candidate : seen.axes.candidates)
    findings_.systems.push_back({candidate, vexo_xyz_impl::_uklad_nazwa(candidate.srid)});
  findings_.axes = axes_of(seen);
  findings_.answers = answers_to(seen);
  if (places_ && findings_.outcome == Outcome::imported) {
    if (drawing_ != nullptr) findings_.from_drawing = least_distance(in_plan(seen, false), *drawing_);
    Evidence evidence{seen, *places_, header_, findings_.from_drawing};
    append(findings_.doubts, doubts_of_import(evidence));
  }
  if (seen.loaded.typ == vexo_xyz_impl::FileType::xlsx && seen.loaded.rows)
    append(findings_.doubts, doubts_of_workbook(seen, places_ ? &*places_ : nullptr));
  findings_.reason = reason_of(seen, findings_);
  seen_ = nullptr;
  if (is_set_aside_ && findings_.reason.code.empty())
    findings_.reason = reason_named(seen.verdict.fmt ? "axes_open" : "columns_open");
  if (seen.outcome == CommandOutcome::failed && !seen.failure)  // the module tells the log of its own failures only
    vexo_xyz_impl::notify_failure(vexo_xyz_impl::OSError(shown_text(seen.path) + ": " + findings_.reason.text));
  if (takes_pictures_ && findings_.outcome == Outcome::imported)
    picture_ = picture_of(seen, *places_, findings_.doubts);
  places_.reset();
  header_.reset();
}

std::string ImportWatcher::beside_reading(vexo_xyz_impl::host::AxisOrder order, double share) const {
  std::string lines;
  if (share < 1.0) {
    const auto percent = static_cast<long long>(std::floor(share * 100.0));
    lines += vexo_xyz_impl::filled("konsola.odczyt_udzial", {percent});
  }
  if (named_axes_ && named_axes_->order == order) {
    lines += vexo_xyz_impl::filled("konsola.odczyt_naglowek",
                                   {static_cast<long long>(named_axes_->line), std::string_view(named_axes_->first),
                                    std::string_view(named_axes_->second)});
  }
  if (drawing_ != nullptr && seen_ != nullptr) {
    const bool swap = order == vexo_xyz_impl::host::AxisOrder::north_first;
    if (const auto distance = least_distance(in_plan(*seen_, swap), *drawing_)) {
      const std::string text = distance_text(*distance);
      lines += vexo_xyz_impl::filled("konsola.odczyt_odleglosc", {std::string_view(text)});
    }
  }
  return lines;
}

void print_findings(const Findings& findings) {
  if (findings.outcome == Outcome::imported) print_account(findings.account);
  if (findings.from_drawing && !is_far_from_drawing(*findings.from_drawing)) {
    const std::string text = distance_text(*findings.from_drawing);
    vexo_xyz_impl::print("konsola.rys_odleglosc", {std::string_view(text)});
  }
  for (const Doubt& doubt : findings.doubts) vexo_xyz_impl::print("konsola.watpliwosc", {std::string_view(doubt.text)});
  if (!findings.reason.code.empty()) vexo_xyz_impl::print("konsola.powod", {std::string_view(findings.reason.text)});
}

}  // namespace console
