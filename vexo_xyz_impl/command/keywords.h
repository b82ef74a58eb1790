// Keyword questions that hold in every language.
//
// Code compares fixed symbols only; the words that the user sees and types come from the catalogue, the prompt and
// the host's keyword list are built from the same words, and the answer is decoded by its position among them.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace vexo_xyz_impl {

/// Symbols of the two questions.
inline constexpr std::string_view kNumer = "Numer";
inline constexpr std::string_view kWspolrzedna = "Wspolrzedna";
inline constexpr std::string_view kTak = "Tak";
inline constexpr std::string_view kZamien = "Zamien";

/// The keyword for a symbol in the market's language; the symbol itself where the catalogue has no word for it or one
/// with a blank, which could not be typed as one keyword.
[[nodiscard]] std::string _slowo(std::string_view symbol);

/// Asks for one of the symbols with the catalogue's prompt `kl_prompt`; Enter is the symbol at `i_dom`. Empty when
/// the user cancelled. Fails with IndexError when there is no symbol at `i_dom`.
[[nodiscard]] std::optional<std::string_view> _kword(std::span<const std::string_view> symbole,
                                                     std::string_view kl_prompt, std::size_t i_dom = 0);

}  // namespace vexo_xyz_impl
