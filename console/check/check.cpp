#include "console/check/check.h"

#include <memory>
#include <sstream>
#include <string>
#include <system_error>
#include <variant>

#include "console/check/check_report.h"
#include "console/dxf/drawing_edit.h"
#include "console/existing_drawing.h"
#include "console/speaking.h"
#include "console/texts/say.h"
#include "console/written.h"
#include "vexo_xyz_impl/bindings.h"

namespace console {
namespace {

// Line by line: there may be more of them than are shown of one text.
void print_lines(const std::string& text) {
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) vexo_xyz_impl::command_line().gcutPrintf(line + "\n");
}

ExitCode check(const CheckOptions& options, std::ostream& reports) {
  std::error_code ignored;
  if (!std::filesystem::is_regular_file(options.file, ignored)) {
    say("konsola.kontrola_nie_plik", {options.file.string()});
    return kFailure;
  }
  const OpenedDrawing opened = read_existing(options.file);
  if (const auto* const why_not = std::get_if<std::string>(&opened)) {
    print_lines(*why_not);
    return kFailure;
  }
  const ExistingDrawing& drawing = *std::get<std::unique_ptr<ExistingDrawing>>(opened);
  const DrawingPoints points = points_in(drawing.bytes(), drawing.outline());
  const ControlFindings findings = check_control(points, options.tolerance);
  const TextDecoding decoded(form_of(drawing.outline()).encoding);
  const CheckedDrawing checked = {options.file.string(), options.tolerance, points, findings, decoded};
  if (options.json) {
    if (!written(reports, check_as_json(checked))) return kFailure;
  } else {
    print_lines(check_as_text(checked));
  }
  return findings.controlled > 0 && findings.changed.empty() ? kImported : kNothingImported;
}

}  // namespace

ExitCode run_check(const CheckOptions& options, const Choice& choice, LineSource& lines, std::ostream& out,
                   std::ostream& reports) {
  const Speaking speaking(choice, lines, out);
  return check(options, reports);
}

}  // namespace console
