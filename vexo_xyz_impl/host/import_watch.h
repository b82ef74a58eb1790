// Watching an import: what the command saw and made of it, for hosts that account for every row.
//
// A role that a host may leave out. Whoever watches looks and changes nothing; nothing is read twice and nothing is
// copied for it.
#pragma once

namespace vexo_xyz_impl {

struct ImportSeen;  // command/import_seen.h

namespace host {

class ImportWatch {
 public:
  virtual ~ImportWatch() = default;

  /// The rows were taken apart: the last moment at which the table has them. Not called when the import ends before.
  virtual void rows_taken_apart(const ImportSeen& seen) = 0;

  /// The import ended, whatever its outcome. Not called when no file was chosen.
  virtual void ended(const ImportSeen& seen) = 0;
};

}  // namespace host
}  // namespace vexo_xyz_impl
