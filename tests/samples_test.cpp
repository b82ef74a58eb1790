// Survey files of three markets against what is known of them: layout, candidates, points, skipped lines.
#include <algorithm>
#include <cstdio>
#include <fstream>
#include <set>
#include <string>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "tests/support/console_host.h"
#include "vexo_xyz_impl/crs/detection.h"
#include "vexo_xyz_impl/failure.h"
#include "vexo_xyz_impl/input/loading.h"
#include "vexo_xyz_impl/table/layout.h"
#include "vexo_xyz_impl/table/points.h"

namespace vexo_xyz_impl {
namespace {

using nlohmann::json;
using testing_support::ConsoleHost;

const std::string kSamples = std::string(TEST_DATA) + "/samples/";

json manifest() { return json::parse(std::ifstream(kSamples + "manifest.json")).at("files"); }

json as_json(const PointRecord& point) { return {point.nr, point.x, point.y, point.z}; }

json as_json(const std::vector<Candidate>& candidates) {
  json list = json::array();
  for (const auto& [srid, swap, frac] : candidates) list.push_back({{"srid", srid}, {"swap", swap}, {"frac", frac}});
  return list;
}

json as_json(const std::vector<SkippedLine>& skipped) {
  json list = json::array();
  for (const SkippedLine& line : skipped) list.push_back({line.row, reason_text(line), row_text(line.cells)});
  return list;
}

// The same keys as the manifest states of a file, as far as the module's operations yield them.
json found_in(const std::string& path) {
  const LoadResult loaded = _wczytaj(path);
  const std::vector<Row> rows = loaded.rows->rows();
  json found = {{"table_rows", rows.size()}};
  try {
    const LayoutVerdict verdict = _wykryj_format(rows);
    found["column_count"] = _liczba_kolumn(rows);
    found["layout"] = layout_code(verdict.fmt.value());
    found["opis_key"] = verdict.opis;
    found["data_rows"] = verdict.dane.size();

    const Decomposition read = _rozbierz(verdict.dane, *verdict.fmt);
    std::vector<Pair> pary;
    std::set<std::string_view> numbers;
    for (const PointRecord& point : read.punkty) {
      pary.emplace_back(point.x, point.y);
      numbers.insert(point.nr);
    }
    found["points"] = read.punkty.size();
    found["skipped"] = as_json(read.pominiete);
    found["duplicates"] = read.punkty.size() - numbers.size();
    found["candidates"] = as_json(_wykryj_uklad(pary));
    for (std::size_t i = 0; i < 3; ++i) found["first_points"].push_back(as_json(read.punkty.at(i)));
    found["last_point"] = as_json(read.punkty.back());
  } catch (const Failure& failure) {
    found["layout_failure"] = failure.kind();
  }
  return found;
}

TEST(Samples, AreReadAsTheyAreKnownToBe) {
  for (const json& sample : manifest()) {
    SCOPED_TRACE(sample.at("file"));
    ConsoleHost host(sample.at("market"));
    host.siblings.add("vexo_teksty", std::make_unique<testing_support::OwnTexts>());  // keys instead of texts
    host.load();
    const json found = found_in(kSamples + sample.at("file").get<std::string>());
    for (const auto& [key, value] : sample.at("expected").items()) {
      if (value.is_null() || key == "decoded_as" || key == "first_column_step" || key == "command" || key == "readings")
        continue;
      EXPECT_EQ(found.value(key, json()), value) << key;
    }
  }
}

}  // namespace
}  // namespace vexo_xyz_impl
