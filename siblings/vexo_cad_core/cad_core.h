// The family's styling of texts: one text style with a TrueType font, so that Polish, German and Romanian letters show.
#pragma once

#include <string_view>

#include "vexo_xyz_impl/host/siblings.h"

namespace vexo_cad_core {

inline constexpr std::string_view kStyleName = "VEXO_PL";
inline constexpr std::string_view kFontFile = "arial.ttf";

/// What the styling needs of its host.
class TextStyles {
 public:
  virtual ~TextStyles() = default;
  /// The text style of that name, made with the font when the drawing has none.
  virtual vexo_xyz_impl::host::GcDbObjectId ensure_text_style(std::string_view name, std::string_view font_file) = 0;
};

class Styling final : public vexo_xyz_impl::host::Styling {
 public:
  explicit Styling(TextStyles& styles) : styles_(styles) {}
  void nadaj_styl_pl(vexo_xyz_impl::host::GcDbText& text) override {
    text.setTextStyle(styles_.ensure_text_style(kStyleName, kFontFile));
  }

 private:
  TextStyles& styles_;
};

}  // namespace vexo_cad_core
