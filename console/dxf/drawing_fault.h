// What makes bytes no drawing that could be read or changed.
#pragma once

#include <cstddef>
#include <stdexcept>

namespace console {

enum class Damage {
  no_drawing,    ///< not a DXF file
  binary,        ///< a DXF file that is not text
  dwg,           ///< a drawing in the format of CAD programs
  odd_code,      ///< a line that should be a group code and is none
  cut_short,     ///< the bytes end before the drawing does
  out_of_place,  ///< sections, tables or records that are not where they must be
  no_handles,    ///< the greatest handle leaves none for new objects
};

class DrawingFault : public std::runtime_error {
 public:
  /// `line` is the physical one, from 1; 0 where no line is to blame.
  DrawingFault(Damage damage, std::size_t line) : runtime_error("damaged drawing"), damage_(damage), line_(line) {}
  [[nodiscard]] Damage damage() const { return damage_; }
  [[nodiscard]] std::size_t line() const { return line_; }

 private:
  Damage damage_;
  std::size_t line_;
};

}  // namespace console
