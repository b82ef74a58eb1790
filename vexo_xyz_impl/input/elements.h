// The parts of a workbook's members that matter, picked out by patterns; no XML parser.
//
// The patterns are part of the design. Left to itself, one that finds an opening tag without its closing one would read
// to the end of the text, and again from the next opening tag: quadratic time for a hostile worksheet. So each opening
// is tried at its place only, and only when the tag ends and a closing tag is left behind it.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "vexo_xyz_impl/input/pattern.h"

namespace vexo_xyz_impl {

/// An element: its pattern, and what must stand in a text before the pattern is worth trying.
struct Element {
  Pattern pattern;
  std::string_view opening;
  std::string_view closing;
  bool is_cell = false;  ///< the opening must be followed by white space, and the tag may close itself
};

[[nodiscard]] const Element& shared_string_item();  ///< group 1: the content
[[nodiscard]] const Element& text_run();            ///< group 1: the text
[[nodiscard]] const Element& row_element();         ///< group 1: the content
[[nodiscard]] const Element& cell_element();        ///< group 1: the attributes, group 2: the content

[[nodiscard]] const Pattern& cell_reference();    ///< in a cell's attributes; group 1: as in "C7"
[[nodiscard]] const Pattern& cell_type();         ///< in a cell's attributes; group 1: as in "s"
[[nodiscard]] const Pattern& stored_value();      ///< in a cell's content; group 1: the value
[[nodiscard]] const Pattern& worksheet_member();  ///< a member's name, valid UTF-8

/// The matches of an element in a text, first to last, in time that grows with the text.
class Matches {
 public:
  /// Neither the element nor the matcher nor the text may go away meanwhile.
  Matches(const Element& element, std::string_view text, Matcher& matcher);

  [[nodiscard]] std::optional<Matcher::Match> next();

 private:
  bool find_tag_end();
  [[nodiscard]] bool opening_is_whole() const;
  [[nodiscard]] bool may_match() const;

  const Element& element_;
  std::string_view text_;
  Matcher& matcher_;
  std::size_t last_closing_;
  std::size_t at_ = 0;
  std::size_t tag_end_ = 0;
};

}  // namespace vexo_xyz_impl
