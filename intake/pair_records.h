// Records of a table one of whose columns holds both coordinates, "389301,508713": that column as two.
#pragma once

#include <cstddef>

#include "intake/records.h"

namespace intake {

class PairRecords final : public Records {
 public:
  /// `records` outlives this; `column` counts from 0. A cell that holds no pair is followed by an empty one.
  PairRecords(Records& records, std::size_t column) : records_(records), column_(column) {}

  bool next(Record& record) override;
  void rewind() override { records_.rewind(); }

 private:
  Records& records_;
  std::size_t column_;
};

}  // namespace intake
