// A glance at the bytes of a worksheet that the importer has at hand anyway: whether looking closer is worth its time.
//
// Parsing a sheet takes as long as importing it, and nearly all sheets are sound. What the glance takes for sound is so
// if its cells are written in one way throughout, as every program does.
#pragma once

#include <string_view>

#include "intake/number_formats.h"

namespace intake {

/// Whether `Workbook::inspect` might find a flaw in the sheet.
[[nodiscard]] bool may_be_flawed(std::string_view sheet, const NumberFormats& formats);

}  // namespace intake
