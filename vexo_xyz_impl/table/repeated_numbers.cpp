#include "vexo_xyz_impl/table/repeated_numbers.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <numeric>
#include <string_view>
#include <vector>

namespace vexo_xyz_impl {
namespace {

// Shorter numbers before longer ones, which is how a counter rises.
bool rises(std::string_view before, std::string_view after) {
  return before.size() != after.size() ? before.size() < after.size() : before < after;
}

// Sorts words by dealing them into heaps by their highest bits first: the heaps are sorted in the nearest memory, which
// takes a third of the time of sorting all at once. Words of different heaps must be in order as numbers.
template <class Before>
std::vector<std::uint64_t> sorted_in_heaps(const std::vector<std::uint64_t>& words, Before before) {
  constexpr std::size_t kHeap = 64;  // words, if their highest bits are as good as random
  const int heap_bits = std::max(1, static_cast<int>(std::bit_width(words.size() / kHeap)));
  const auto heap_of = [heap_bits](std::uint64_t word) { return word >> static_cast<unsigned>(64 - heap_bits); };
  std::vector<std::size_t> ends((std::size_t{1} << static_cast<unsigned>(heap_bits)) + 1);  // first, where heaps begin
  for (const std::uint64_t word : words) ++ends[heap_of(word) + 1];
  std::partial_sum(ends.begin(), ends.end(), ends.begin());
  std::vector<std::uint64_t> dealt(words.size());
  for (const std::uint64_t word : words) dealt[ends[heap_of(word)]++] = word;
  std::size_t begin = 0;
  for (const std::size_t end : ends) {
    std::sort(dealt.data() + begin, dealt.data() + end, before);
    begin = end;
  }
  return dealt;
}

}  // namespace

std::size_t repeated_numbers(std::span<const PointRecord> punkty, std::size_t (*hash)(std::string_view)) {
  const auto not_rising = [](const PointRecord& a, const PointRecord& b) { return !rises(a.nr, b.nr); };
  if (std::adjacent_find(punkty.begin(), punkty.end(), not_rising) == punkty.end()) return 0;  // as in most files

  // A word for each point: its place in the low bits, as much of its number's hash as there is room for above them.
  const auto place_bits = static_cast<unsigned>(std::bit_width(punkty.size()));
  std::vector<std::uint64_t> words;
  words.reserve(punkty.size());
  for (const PointRecord& point : punkty) words.push_back((std::uint64_t{hash(point.nr)} << place_bits) + words.size());
  const auto number_of = [&](std::uint64_t word) { return punkty[word & ((std::uint64_t{1} << place_bits) - 1)].nr; };
  const auto hash_of = [&](std::uint64_t word) { return word >> place_bits; };
  words = sorted_in_heaps(words, [&](std::uint64_t a, std::uint64_t b) {
    return hash_of(a) != hash_of(b) ? a < b : number_of(a) < number_of(b);
  });
  std::size_t repeated = 0;
  for (std::size_t i = 1; i < words.size(); ++i)
    repeated += hash_of(words[i]) == hash_of(words[i - 1]) && number_of(words[i]) == number_of(words[i - 1]) ? 1 : 0;
  return repeated;
}

}  // namespace vexo_xyz_impl
