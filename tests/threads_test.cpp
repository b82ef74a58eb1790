// Files read by several threads at once, as a scripting host may do: each thread finds what one alone finds. What the
// outcome does not show is for the thread sanitizer to see (./dev check threads).
#include <algorithm>
#include <cstddef>
#include <exception>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "vexo_xyz_impl/input/loading.h"
#include "vexo_xyz_impl/input/workbook_reader.h"
#include "vexo_xyz_impl/table/layout.h"
#include "vexo_xyz_impl/table/numbers.h"

#ifdef __SANITIZE_THREAD__
// The C library guards its time zone by a lock that the sanitizer does not see; libzip asks for the zone.
extern "C" __attribute__((visibility("default"))) const char* __tsan_default_suppressions() {
  return "race:tzset_internal\n";
}
#endif

namespace vexo_xyz_impl {
namespace {

constexpr std::size_t kThreads = 4;
constexpr std::size_t kRounds = 20;

std::vector<std::string> survey_files() {
  std::vector<std::string> paths;
  for (const char* folder : {TEST_DATA "/samples", TEST_DATA "/workbooks", WORKBOOKS "/samples"}) {
    for (const auto& entry : std::filesystem::directory_iterator(folder)) paths.push_back(entry.path().string());
  }
  std::ranges::sort(paths);
  return paths;
}

// All that the operations which need no host find in a file.
std::string found_in(const std::string& path) {
  try {
    const LoadResult loaded = _wczytaj(path);
    const std::vector<Row> rows = loaded.rows.value().rows();
    std::string found = std::to_string(_liczba_kolumn(rows));
    for (const Row row : rows) {
      found += '\n';
      for (const Cell cell : row) {
        found += '\t' + std::string(cell);
        if (const auto number = parse_number(cell)) found += '=' + std::to_string(*number);
        if (const auto column = _kol_nr(cell.substr(0, 3))) found += '@' + std::to_string(*column);
      }
    }
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
    for (std::size_t i = 0; i < kRounds * paths.size(); ++i) {
      found[reader].push_back(found_in(paths[(i + reader * paths.size() / kThreads) % paths.size()]));
    }
  };
  {
    std::vector<std::jthread> threads;
    for (std::size_t reader = 0; reader < kThreads; ++reader) threads.emplace_back(read, reader);
  }
  // Afterwards, so that the threads also met in whatever is made at its first use.
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
