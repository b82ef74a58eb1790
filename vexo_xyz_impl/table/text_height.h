// A raw label height to one of the round heights that drawing standards and title blocks use.
#pragma once

#include <array>

namespace vexo_xyz_impl {

/// Round text heights, ascending; their order decides ties.
inline constexpr std::array<double, 26> _ROWNE_WYSOKOSCI = {0.1,  0.2,  0.25, 0.5,  0.75, 1.0,  1.2,  1.5,  2.0,
                                                            2.5,  3.0,  3.5,  4.0,  5.0,  6.0,  7.5,  10.0, 12.5,
                                                            15.0, 20.0, 25.0, 30.0, 40.0, 50.0, 75.0, 100.0};

/// The round height nearest to `h`, the smaller of two equally near; above 100 whole tens, halves to the even ten;
/// 2.5 for `h` of 0 or less. Same unit in and out. Fails with OverflowError for infinity.
[[nodiscard]] double _rowna_wysokosc(double h);

}  // namespace vexo_xyz_impl
