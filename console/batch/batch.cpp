#include "console/batch/batch.h"

#include <cstddef>
#include <memory>
#include <ostream>
#include <sstream>
#include <utility>
#include <variant>

#include "console/batch/import_process.h"
#include "console/batch/summary.h"
#include "console/dialogue/line_source.h"
#include "console/existing_drawing.h"
#include "console/speaking.h"
#include "console/texts/say.h"
#include "vexo_xyz_impl/bindings.h"

namespace console {
namespace {

// `jobs` at a time, or as many as the system gives; told in their order.
void import_all(std::vector<ImportProcess>& tasks, const SessionOptions& each, unsigned jobs, Summary& summary) {
  std::size_t told = 0;
  std::size_t started = 0;
  std::size_t ended = 0;
  while (told < tasks.size()) {
    for (; started < tasks.size() && started - ended < jobs; ++started) {
      ImportProcess& next = tasks[started];
      if (start(tasks, next, each)) continue;
      if (started > ended) break;  // what ends makes room
      next.has_ended = true;
      ++ended;
    }
    if (started > ended) ended += wait_for_one(tasks, each.existing.get()) ? 1 : 0;
    for (; told < tasks.size() && tasks[told].has_ended; ++told) {
      summary.add(tasks[told]);
      tasks[told] = {};
      tasks[told].has_ended = true;
    }
  }
}

}  // namespace

ExitCode run_batch(const BatchOptions& options, std::ostream& out, std::ostream* reports) {
  SessionOptions each = options.each;
  each.unattended = true;
  each.interactive = false;
  each.shows_progress = false;  // many at a time
  each.quiet = true;
  std::istringstream nobody;
  const auto lines = lines_of_stream(nobody, out);
  const Speaking speaking(each.choice, *lines, out);
  Summary summary(out, reports);
  if (each.into) {
    OpenedDrawing opened = open_existing(*each.into);
    if (const auto* const why_not = std::get_if<std::string>(&opened)) {
      for (const std::string& file : options.files) summary.add_failed(file);
      out << *why_not << std::flush;
      return summary.end();
    }
    each.existing = std::move(std::get<std::unique_ptr<ExistingDrawing>>(opened));
  }
  std::vector<ImportProcess> tasks(options.files.size());
  for (std::size_t i = 0; i < tasks.size(); ++i) tasks[i].file = options.files[i];
  import_all(tasks, each, each.existing ? 1 : options.jobs, summary);  // into one, each adds to what is there
  if (each.existing && summary.imported() > 0) {
    if (const auto why_not = save_existing(*each.existing, nullptr, each.wishes.layers)) {
      out << *why_not << std::flush;
      summary.nothing_was_saved();
    } else {
      say("konsola.rys_zapisano", {each.existing->path().string(), each.existing->backup().string()});
      vexo_xyz_impl::command_line().gcutPrintf(each.existing->notes(each.wishes));
    }
  }
  return summary.end();
}

}  // namespace console
