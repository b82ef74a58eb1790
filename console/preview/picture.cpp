#include "console/preview/picture.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

#include "console/account/lines.h"
#include "vexo_xyz_impl/crs/systems.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace console {
namespace {

using vexo_xyz_impl::AxesBy;
using vexo_xyz_impl::ImportSeen;

// Finds the suspects among the points by the lines that doubts name.
class Suspects {
 public:
  Suspects(const ImportSeen& seen, const RowPlaces& places, std::span<const Doubt> doubts) : places_(places) {
    for (const Doubt& doubt : doubts) {
      const auto* const reason = std::find(kSuspicions.begin(), kSuspicions.end(), doubt.code);
      if (reason == kSuspicions.end()) continue;
      const auto suspicion = static_cast<Suspicion>(reason - kSuspicions.begin());
      for (const std::size_t line : doubt.lines) {
        const auto [known, is_new] = by_line_.emplace(line, suspicion);
        if (!is_new) known->second = std::min(known->second, suspicion);
      }
    }
    // The table's rows are forgotten by now, so that only the text can tell where points without a number stood.
    if (!by_line_.empty() && seen.loaded.typ == vexo_xyz_impl::FileType::tekst)
      lines_ = lines_with_rows(seen.loaded.rows->text());
  }

  [[nodiscard]] Suspicion of(std::size_t point) const {
    if (by_line_.empty()) return Suspicion::none;
    const std::size_t row = places_.row_of_point(point);
    const auto found = by_line_.find(lines_.empty() ? row + 1 : lines_[row].number);
    return found == by_line_.end() ? Suspicion::none : found->second;
  }

 private:
  const RowPlaces& places_;
  std::unordered_map<std::size_t, Suspicion> by_line_;
  std::vector<Line> lines_;
};

// A doubt names the later ones of a number's points; which of them is wrong, nobody knows.
void suspect_all_of_a_number(std::vector<PicturePoint>& points) {
  std::unordered_set<std::string_view> numbers;
  for (const PicturePoint& point : points)
    if (point.suspicion == Suspicion::repeated_number) numbers.insert(point.label);
  if (numbers.empty()) return;
  for (PicturePoint& point : points)
    if (numbers.contains(point.label)) point.suspicion = std::min(point.suspicion, Suspicion::repeated_number);
}

// As much of a label as a page has room for.
std::string_view shown(std::string_view label, std::string& shortened) {
  constexpr std::size_t kLongest = 24;
  if (label.size() <= kLongest) return label;
  const std::string_view beginning = vexo_xyz_impl::text::first_characters(label, kLongest);
  if (beginning.size() == label.size()) return label;
  shortened = std::string(beginning) + "…";
  return shortened;
}

void take_points(Picture& picture, const ImportSeen& seen, const Suspects& suspects) {
  const auto& punkty = seen.read.punkty;
  picture.points.reserve(punkty.size() - seen.refused.size());
  std::string shortened;
  auto refused = seen.refused.begin();
  for (std::size_t i = 0; i < punkty.size(); ++i) {
    if (refused != seen.refused.end() && *refused == i) {
      ++refused;
      continue;
    }
    const auto kept = picture.letters.keep(std::span<const char>(shown(punkty[i].nr, shortened)));
    picture.points.push_back({punkty[i].x, punkty[i].y, {kept.data(), kept.size()}, suspects.of(i)});
  }
}

void take_systems(Picture& picture, const ImportSeen& seen) {
  picture.axes_known = seen.axes.how != AxesBy::none_recognised && seen.axes.how != AxesBy::unconfirmed;
  if (seen.axes.how == AxesBy::unconfirmed) return;
  for (const auto& candidate : seen.axes.candidates)
    if (candidate.swap == seen.axes.swap) picture.systems.push_back(vexo_xyz_impl::_uklad_nazwa(candidate.srid));
}

}  // namespace

Picture picture_of(const ImportSeen& seen, const RowPlaces& places, std::span<const Doubt> doubts) {
  Picture picture;
  take_points(picture, seen, Suspects(seen, places, doubts));
  suspect_all_of_a_number(picture.points);
  take_systems(picture, seen);
  picture.in_degrees =
      std::any_of(doubts.begin(), doubts.end(), [](const Doubt& doubt) { return doubt.code == "degrees"; });
  return picture;
}

}  // namespace console
