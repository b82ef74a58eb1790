// The stand-alone program's own texts, beside the family's: keys that begin with "konsola.", in the same languages and
// held against this list by the same check of the build.
#pragma once

#include <array>
#include <memory>
#include <span>
#include <string_view>

#include "siblings/vexo_teksty/keys.h"
#include "siblings/vexo_teksty/teksty.h"

namespace console {

inline constexpr auto kKeys = std::to_array<vexo_teksty::Key>({
    {"konsola.blad_zapisu", "ss"},  // path, reason
    {"konsola.nie_zapisano", ""},
    {"konsola.niejasne_slowo", "ss"},  // answer, words
    {"konsola.odrzucone", "d"},        // objects refused
    {"konsola.opcja_zbedna", "s"},     // option
    {"konsola.plik_istnieje", "s"},    // path
    {"konsola.plik_zrodlowy", "s"},    // path
    {"konsola.zapisano", "s"},         // path
    {"konsola.zle_slowo", "ss"},       // answer, words
});

// The catalogues, sorted by key.
[[nodiscard]] std::span<const vexo_teksty::Entry> polish();
[[nodiscard]] std::span<const vexo_teksty::Entry> german();
[[nodiscard]] std::span<const vexo_teksty::Entry> romanian();
[[nodiscard]] std::span<const vexo_teksty::Entry> english();

/// The program's own entries in the language of that code; Polish for a code that names none.
[[nodiscard]] std::span<const vexo_teksty::Entry> own_entries(std::string_view language);

/// The family's texts and the program's own.
[[nodiscard]] std::shared_ptr<vexo_xyz_impl::host::Texts> texts_in(std::string_view language);

}  // namespace console
