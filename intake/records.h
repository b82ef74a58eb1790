// A foreign table as a run of records: what every reader of such tables delivers and what a points' file is made of.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace intake {

struct Record {
  std::size_t line = 0;                 ///< physical line, or the row of a worksheet as its program numbers it; from 1
  bool hidden = false;                  ///< of a worksheet: by hand or by a filter
  std::vector<std::string_view> cells;  ///< UTF-8, without quotes and the blanks around; valid until the next record
};

/// Reads a table from its beginning to its end, as often as wanted, without keeping it.
class Records {
 public:
  Records() = default;
  Records(const Records&) = delete;
  Records& operator=(const Records&) = delete;
  virtual ~Records() = default;

  /// The next record in `record`, whose memory is used again; false behind the last one. Blank lines give no record.
  virtual bool next(Record& record) = 0;

  /// Begins anew.
  virtual void rewind() = 0;
};

}  // namespace intake
