// Why a file gives no points, or hardly any: its kind, what separates its values, what is written in them.
#pragma once

#include <string_view>

#include "console/report/findings.h"
#include "intake/file_kind.h"
#include "vexo_xyz_impl/command/import_seen.h"

namespace console {

/// The code of a kind of file that says all; none for texts and workbooks, which may be read.
[[nodiscard]] std::string_view kind_code(intake::FileKind kind);

/// The reason of that code, in the user's language. The module must be entered.
[[nodiscard]] Reason reason_named(std::string_view code);

/// The reason, named with the way on; none when the file is what the importer reads. To be asked when the import has
/// ended, before what was seen is gone.
[[nodiscard]] Reason reason_of(const vexo_xyz_impl::ImportSeen& seen, const Findings& findings);

/// Whether making a points' file of it (`vexo-xyz prepare`) is the way on.
[[nodiscard]] bool can_be_prepared(const Reason& reason);

}  // namespace console
