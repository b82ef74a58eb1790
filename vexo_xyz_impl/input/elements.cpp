#include "vexo_xyz_impl/input/elements.h"

namespace vexo_xyz_impl {
namespace {

constexpr std::string_view kWhiteSpace = " \t\n\v\f\r";

// Where `tag` stands last. The library's own search compares a whole tag at every place.
std::size_t last_of(std::string_view tag, std::string_view text) {
  std::size_t at = text.rfind(tag.front());
  while (at != std::string_view::npos && !text.substr(at).starts_with(tag)) {
    at = at == 0 ? std::string_view::npos : text.rfind(tag.front(), at - 1);
  }
  return at;
}

}  // namespace

const Element& shared_string_item() {
  static const Element element{Pattern("<si>(.*?)</si>", Pattern::dot_matches_line_ends | Pattern::anchored), "<si>",
                               "</si>"};
  return element;
}

const Element& text_run() {
  static const Element element{Pattern("<t[^>]*>([^<]*)</t>", Pattern::anchored), "<t", "</t>"};
  return element;
}

const Element& row_element() {
  static const Element element{Pattern("<row[^>]*>(.*?)</row>", Pattern::dot_matches_line_ends | Pattern::anchored),
                               "<row", "</row>"};
  return element;
}

const Element& cell_element() {
  static const Element element{
      Pattern("<c\\s([^>]*?)(?:/>|>(.*?)</c>)", Pattern::dot_matches_line_ends | Pattern::anchored), "<c", "</c>",
      true};
  return element;
}

const Pattern& cell_reference() {
  static const Pattern pattern(R"re(r="([A-Z]+\d+)")re");
  return pattern;
}

const Pattern& cell_type() {
  static const Pattern pattern(R"re(t="(\w+)")re");
  return pattern;
}

const Pattern& stored_value() {
  static const Pattern pattern("<v>([^<]*)</v>");
  return pattern;
}

const Pattern& worksheet_member() {
  static const Pattern pattern(R"(xl/worksheets/sheet\d+\.xml$)", Pattern::anchored | Pattern::unicode);
  return pattern;
}

Matches::Matches(const Element& element, std::string_view text, Matcher& matcher)
    : element_(element), text_(text), matcher_(matcher), last_closing_(last_of(element.closing, text)) {}

std::optional<Matcher::Match> Matches::next() {
  while (true) {
    at_ = text_.find(element_.opening, at_);
    if (at_ == std::string_view::npos || !find_tag_end()) break;
    if (!opening_is_whole()) {
      ++at_;
      continue;
    }
    if (const auto match = may_match() ? matcher_.find(element_.pattern, text_, at_) : std::nullopt) {
      at_ = match->end;
      return match;
    }
    at_ = tag_end_;  // another opening before the end of this tag would have the same end and fail as this one did
  }
  at_ = text_.size();
  return std::nullopt;
}

// Where the tag opened at `at_` ends; false when it never does, and no later one either.
bool Matches::find_tag_end() {
  const std::size_t from = at_ + element_.opening.size() - 1;
  if (tag_end_ < from || tag_end_ == 0) tag_end_ = text_.find('>', from);
  return tag_end_ != std::string_view::npos;
}

// "<c" may begin "<cols" as well.
bool Matches::opening_is_whole() const {
  return !element_.is_cell || kWhiteSpace.find(text_[at_ + element_.opening.size()]) != std::string_view::npos;
}

bool Matches::may_match() const {
  if (element_.is_cell && text_[tag_end_ - 1] == '/') return true;
  return last_closing_ != std::string_view::npos && last_closing_ > tag_end_;
}

}  // namespace vexo_xyz_impl
