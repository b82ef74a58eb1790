// Doubts about point numbers: repeated ones, one place under two, labels that hold what should be columns.
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <span>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "console/account/account_lines.h"
#include "console/doubts/doubts.h"
#include "console/drawing/drawing.h"
#include "vexo_xyz_impl/messages.h"
#include "vexo_xyz_impl/table/repeated_numbers.h"

namespace console {
namespace {

using vexo_xyz_impl::filled;
using vexo_xyz_impl::PointRecord;

bool at_one_place(const PointRecord& a, const PointRecord& b) { return a.x == b.x && a.y == b.y && a.z == b.z; }

std::uint64_t bits_of(double value) {
  std::uint64_t bits = 0;
  value += 0.0;  // both zeros alike
  std::memcpy(&bits, &value, sizeof bits);
  return bits;
}

std::uint64_t hash_of_place(const PointRecord& point) {
  constexpr std::uint64_t kOdd = 0x9E3779B97F4A7C15U;  // 2^64 over the golden ratio: spreads what lies close together
  std::uint64_t hash = bits_of(point.x) * kOdd;
  hash = (hash ^ (hash >> 32U) ^ bits_of(point.y)) * kOdd;
  hash = (hash ^ (hash >> 32U) ^ bits_of(point.z)) * kOdd;
  return hash ^ (hash >> 29U);
}

// Points whose place may have been seen before, found by a bit for each hash: none that was is missed, and of the
// others a few in a hundred come along, so that the thorough search has little to do.
std::vector<std::size_t> perhaps_seen_before(std::span<const PointRecord> punkty, std::vector<std::uint64_t>& seen) {
  std::vector<std::size_t> found;
  const std::uint64_t mask = seen.size() * 64 - 1;
  for (std::size_t i = 0; i < punkty.size(); ++i) {
    const std::uint64_t bit = hash_of_place(punkty[i]) & mask;
    std::uint64_t& word = seen[bit / 64];
    const std::uint64_t flag = std::uint64_t{1} << (bit % 64);
    if ((word & flag) != 0) found.push_back(i);
    word |= flag;
  }
  return found;
}

std::vector<std::uint64_t> bits_for(std::size_t points) {
  std::size_t words = 16;
  while (words * 2 < points) words *= 2;  // 32 bits a point and more
  return std::vector<std::uint64_t>(words);
}

// Points at a place that an earlier one has, of another number where they have numbers of their own.
std::vector<std::size_t> at_the_place_of_an_earlier_one(std::span<const PointRecord> punkty, bool have_numbers) {
  auto bits = bits_for(punkty.size());
  const auto suspects = perhaps_seen_before(punkty, bits);
  if (suspects.empty()) return {};
  std::unordered_set<std::uint64_t> wanted;
  for (const std::size_t i : suspects) wanted.insert(hash_of_place(punkty[i]));
  std::vector<std::size_t> found;
  std::unordered_map<std::uint64_t, std::size_t> first;  // point at each place that is asked about
  for (std::size_t i = 0; i < punkty.size(); ++i) {
    const std::uint64_t hash = hash_of_place(punkty[i]);
    if (!wanted.contains(hash)) continue;
    const auto [earlier, is_first] = first.emplace(hash, i);
    const PointRecord& other = punkty[earlier->second];
    if (is_first || !at_one_place(other, punkty[i])) continue;
    if (!have_numbers || other.nr != punkty[i].nr) found.push_back(i);
  }
  return found;
}

struct Repeated {
  std::vector<std::size_t> same_place;   // points with the number of an earlier one and its place
  std::vector<std::size_t> other_place;  // and another place
};

Repeated repeated_among(std::span<const PointRecord> punkty) {
  Repeated repeated;
  std::unordered_map<std::string_view, std::size_t> first;
  first.reserve(punkty.size());
  for (std::size_t i = 0; i < punkty.size(); ++i) {
    const auto [earlier, is_first] = first.emplace(punkty[i].nr, i);
    if (is_first) continue;
    auto& list = at_one_place(punkty[earlier->second], punkty[i]) ? repeated.same_place : repeated.other_place;
    list.push_back(i);
  }
  return repeated;
}

std::string told_of(std::span<const std::size_t> elsewhere, std::span<const std::size_t> there) {
  const std::string places_elsewhere = listed(elsewhere);
  const std::string places_there = listed(there);
  const auto count_elsewhere = static_cast<long long>(elsewhere.size());
  const auto count_there = static_cast<long long>(there.size());
  if (there.empty())
    return filled("konsola.watp_powtorzone_gdzie_indziej", {count_elsewhere, std::string_view(places_elsewhere)});
  if (elsewhere.empty()) return filled("konsola.watp_powtorzone_tam", {count_there, std::string_view(places_there)});
  return filled("konsola.watp_powtorzone",
                {count_elsewhere, std::string_view(places_elsewhere), count_there, std::string_view(places_there)});
}

// A mark that no label has of itself: a comma or a colon at its end, a comma before a number with decimals.
bool holds_separator(std::string_view label) {
  if (label.ends_with(',') || label.ends_with(':')) return true;
  const std::size_t comma = label.find(',');
  return comma != std::string_view::npos && label.find_first_of(",.", comma + 1) != std::string_view::npos;
}

}  // namespace

std::optional<Doubt> doubt_repeated_number(Evidence& evidence) {
  if (evidence.seen.dubli == 0) return std::nullopt;
  const Repeated repeated = repeated_among(evidence.seen.read.punkty);
  auto lines = lines_of(evidence.places, repeated.other_place);
  const auto same = lines_of(evidence.places, repeated.same_place);
  std::string text = told_of(lines, same);
  lines.insert(lines.end(), same.begin(), same.end());
  std::sort(lines.begin(), lines.end());
  return Doubt{"repeated_number", std::move(text), std::move(lines)};
}

std::optional<Doubt> doubt_same_place(Evidence& evidence) {
  const auto& punkty = evidence.seen.read.punkty;
  const auto found = at_the_place_of_an_earlier_one(punkty, has_number(*evidence.seen.verdict.fmt));
  return doubt_at("same_place", "konsola.watp_to_samo_miejsce", lines_of(evidence.places, found));
}

std::optional<Doubt> doubt_long_label(Evidence& evidence) {
  const auto& punkty = evidence.seen.read.punkty;
  std::vector<std::size_t> points;
  for (std::size_t i = 0; i < punkty.size(); ++i)
    if (punkty[i].nr.size() > kLongestLabel) points.push_back(i);
  return doubt_at("long_label", "konsola.watp_dlugi_numer", lines_of(evidence.places, points));
}

std::optional<Doubt> doubt_comma_in_label(Evidence& evidence) {
  const auto& seen = evidence.seen;
  if (!has_number(*seen.verdict.fmt)) return std::nullopt;
  std::vector<std::size_t> points;
  for (std::size_t i = 0; i < seen.read.punkty.size(); ++i)
    if (holds_separator(seen.read.punkty[i].nr)) points.push_back(i);
  if (points.empty()) return std::nullopt;
  auto lines = lines_of(evidence.places, points);
  const std::string_view label = seen.read.punkty[points.front()].nr;
  const std::string places = listed(lines);
  return Doubt{"comma_in_label", filled("konsola.watp_przecinek", {label, std::string_view(places)}), std::move(lines)};
}

}  // namespace console
