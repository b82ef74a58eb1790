// An existing drawing with an import added: only what had to change differs from the bytes that were read.
#pragma once

#include <string_view>

#include "console/byte_sink.h"
#include "console/drawing/drawing.h"
#include "console/drawing/wishes.h"
#include "console/dxf/form.h"
#include "console/dxf/outline.h"

namespace console {

/// How the drawing spells what is added to it.
[[nodiscard]] DxfForm form_of(const Outline& outline);

/// What the drawing in these bytes gives an import to begin with.
[[nodiscard]] Ground ground_of(const Outline& outline);

/// Writes `bytes` with the entities, groups, layers, text styles and control records of `drawing` added, whose ground
/// is theirs. New lines end as the others do; texts are in the drawing's code page. The result can be added to again.
void write_added(std::string_view bytes, const Outline& outline, const Drawing& drawing, const Layers& layers,
                 ByteSink& sink);

}  // namespace console
