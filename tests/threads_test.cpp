// Files read by several threads at once, as a scripting host may do: each thread finds what one alone finds. What the
// outcome does not show is for the thread sanitizer to see (./dev check threads).
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <filesystem>
#include <map>
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

using Found = std::map<std::string, std::string>;  // by path

// Each reader begins elsewhere, so that kinds of files meet.
Found found_from(std::size_t begin, const std::vector<std::string>& paths) {
  testing_support::ConsoleHost host;
  host.load();
  Found found;
  for (std::size_t i = 0; i < paths.size(); ++i) {
    const std::string& path = paths[(begin + i) % paths.size()];
    found[path] = found_in(path);
  }
  return found;
}

TEST(Threads, FindWhatOneAloneFinds) {
  const std::vector<std::string> paths = survey_files();
  ASSERT_FALSE(paths.empty());
  std::vector<Found> found(kThreads);
  {
    std::vector<std::jthread> threads;
    for (std::size_t reader = 0; reader < kThreads; ++reader)
      threads.emplace_back([&, reader] { found[reader] = found_from(reader * paths.size() / kThreads, paths); });
  }
  // Afterwards, so that the threads also met in whatever is made at its first use.
  const Found alone = found_from(0, paths);
  for (const Found& one : found) EXPECT_EQ(one, alone);
}

}  // namespace
}  // namespace vexo_xyz_impl
