// The records of a text in UTF-8, by its dialect.
//
// A quoted cell may hold separators, doubled quotes and line breaks; a quote that is not closed within a few lines, or
// that stands inside a cell, is a character like others. Lines end at LF, CR LF or a lone CR. Lines of which nothing is
// left, and those that "#" or "//" begins, give no record.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "intake/dialect.h"
#include "intake/records.h"

namespace intake {

/// Characters of a text; of what is no UTF-8, bytes that begin none do not count.
[[nodiscard]] std::size_t characters_in(std::string_view utf8);

class TextRecords final : public Records {
 public:
  /// `utf8` outlives the records.
  TextRecords(std::string_view utf8, Dialect dialect);

  bool next(Record& record) override;
  void rewind() override { restart(text_); }

  /// Begins anew with another text of the same dialect.
  void restart(std::string_view utf8);

  /// Lines, and those that gave no record, as far as it has been read.
  [[nodiscard]] std::size_t lines() const { return line_ - 1; }
  [[nodiscard]] std::size_t comments() const { return comments_; }
  [[nodiscard]] std::size_t blank() const { return blank_; }

  /// The comments before the first record, without their signs: one of them may hold the columns' names.
  [[nodiscard]] std::vector<std::pair<std::size_t, std::string_view>> leading_comments() const;

 private:
  void skip_line();
  void end_line();
  void read_separated(Record& record);
  void read_blank_separated(Record& record);
  void read_plain(Record& record);
  bool read_quoted(Record& record);
  void put_in_places(Record& record, std::string_view line);
  void unescape(Record& record);

  std::string_view text_;
  Dialect dialect_;
  std::array<bool, 256> ends_cell_{};
  std::size_t at_ = 0;
  std::size_t line_ = 1;
  std::size_t comments_ = 0;
  std::size_t blank_ = 0;
  std::vector<std::size_t> escaped_;  // cells with doubled quotes
  std::string unescaped_;
  std::vector<std::string_view> placed_;
};

}  // namespace intake
