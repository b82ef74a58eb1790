// Which of a workbook's numbers are shown as dates and times, and what is shown.
//
// A person sees "2024-05-01" where the file has 45413. The text made here is the ISO form whatever the format's own
// order, so that no reader takes it for a number; numbers of all other formats stay as they are stored.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace intake {

enum class ShownAs {
  number,
  date,          ///< yyyy-mm-dd
  time,          ///< hh:mm:ss
  date_time,     ///< yyyy-mm-dd hh:mm:ss
  elapsed_time,  ///< hh:mm:ss, hours beyond 24
};

/// What a format's code makes of a number.
[[nodiscard]] ShownAs shown_as(std::string_view format_code);

/// The text of a count of days that a workbook stores; empty for what is no date of its calendar. `from_1904`: days
/// are counted from 1904, not 1900.
[[nodiscard]] std::optional<std::string> date_text(double days, ShownAs form, bool from_1904);

class NumberFormats {
 public:
  NumberFormats() = default;

  /// Reads the styles of a workbook; fails as `parse_xml` does.
  NumberFormats(const std::string& member, std::span<const char> xml);

  /// How a cell's style, a whole number as text, shows its number.
  [[nodiscard]] ShownAs of_style(std::string_view style) const;

  /// Whether any style shows dates or times.
  [[nodiscard]] bool any_dates() const;

 private:
  std::vector<ShownAs> styles_;
};

}  // namespace intake
