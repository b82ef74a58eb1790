// A foreign table that has been looked at: its records, with a column that holds both coordinates parted, and its
// shape.
#pragma once

#include <optional>

#include "intake/foreign_table.h"
#include "intake/pair_records.h"
#include "intake/prepared_file.h"
#include "intake/roles.h"
#include "intake/table_shape.h"

namespace intake {

class SeenTable {
 public:
  /// `table`, which has records, outlives this. `roles` by position, where they are told, may take one column for two.
  SeenTable(const ForeignTable& table, const Roles* roles);

  [[nodiscard]] const TableShape& shape() const { return shape_; }
  [[nodiscard]] Records& records() const { return *records_; }

  /// The file of points with these roles.
  [[nodiscard]] PreparedForm form(const Roles& roles, MissingHeight missing_height) const;

 private:
  const ForeignTable& table_;
  Cells cells_;
  Records* records_;
  TableShape shape_;
  std::optional<PairRecords> parted_;
};

}  // namespace intake
