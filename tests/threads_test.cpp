// Files read by several threads at once, as a scripting host may do: each thread finds what one alone finds. What the
// outcome does not show is for the thread sanitizer to see (./dev check threads).
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/console_host.h"
#include "vexo_xyz_impl/crs/detection.h"
#include "vexo_xyz_impl/crs/systems.h"
#include "vexo_xyz_impl/input/loading.h"
#include "vexo_xyz_impl/table/layout.h"
#include "vexo_xyz_impl/table/points.h"

#ifdef __SANITIZE_THREAD__
// The C library guards its time zone by a lock that the sanitizer does not see; libzip asks for the zone.
extern "C" __attribute__((visibility("default"))) const char* __tsan_default_suppressions() {
  return "race:tzset_internal\n";
}
#endif

namespace vexo_xyz_impl {
namespace {

constexpr std::size_t kThreads = 4;
constexpr std::size_t kRounds = 1;

std::vector<std::string> survey_files() {
  std::vector<std::string> paths;
  constexpr std::uintmax_t kLarge = 9'000;  // bytes; what is larger takes long and shows no more
  for (const char* folder : {TEST_DATA "/samples", WORKBOOKS}) {
    for (const auto& entry : std::filesystem::directory_iterator(folder))
      if (entry.is_regular_file() && entry.file_size() < kLarge) paths.push_back(entry.path().string());
  }
  std::ranges::sort(paths);
  return paths;
}

// All that is found in a file before the first question.
std::string found_in(const std::string& path) {
  try {
    const LoadResult loaded = _wczytaj(path);
    const LayoutVerdict verdict = _wykryj_format(loaded.rows.value().rows());
    std::string found = verdict.opis;
    for (const auto& [srid, swap, frac] : _wykryj_uklad(_pary(verdict.dane, 1, 2)))
      found += '\n' + _uklad_nazwa(srid) + (swap ? '!' : '=') + std::to_string(frac);
    const Decomposition read = _rozbierz(verdict.dane, verdict.fmt.value_or(Layout::XY));
    for (const PointRecord& point : read.punkty) found += '\n' + std::string(point.nr) + '\t' + std::to_string(point.x);
    for (const SkippedLine& line : read.pominiete) found += '\n' + reason_text(line) + row_text(line.cells);
    return found;
  } catch (const std::exception& failure) {
    return failure.what();
  }
}

TEST(Threads, FindWhatOneAloneFinds) {
  const std::vector<std::string> paths = survey_files();
  ASSERT_FALSE(paths.empty());
  std::vector<std::vector<std::string>> found(kThreads);
  const auto read = [&](std::size_t reader) {  // each begins elsewhere, so that kinds of files meet
    testing_support::ConsoleHost host;
    host.load();
    for (std::size_t i = 0; i < kRounds * paths.size(); ++i) {
      found[reader].push_back(found_in(paths[(i + reader * paths.size() / kThreads) % paths.size()]));
    }
  };
  {
    std::vector<std::jthread> threads;
    for (std::size_t reader = 0; reader < kThreads; ++reader) threads.emplace_back(read, reader);
  }
  // Afterwards, so that the threads also met in whatever is made at its first use.
  testing_support::ConsoleHost host;
  host.load();
  std::vector<std::string> alone;
  for (const std::string& path : paths) alone.push_back(found_in(path));
  for (std::size_t reader = 0; reader < kThreads; ++reader) {
    for (std::size_t i = 0; i < kRounds * paths.size(); ++i) {
      const std::size_t file = (i + reader * paths.size() / kThreads) % paths.size();
      ASSERT_EQ(found[reader][i], alone[file]) << paths[file] << ", thread " << reader;
    }
  }
}

}  // namespace
}  // namespace vexo_xyz_impl
