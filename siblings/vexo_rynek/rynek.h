// The market selection: which country's data and language the family works with.
#pragma once

#include <string>
#include <utility>

#include "vexo_xyz_impl/host/siblings.h"

namespace vexo_rynek {

class Market final : public vexo_xyz_impl::host::Market {
 public:
  /// `chosen` is the market that the user asked for; empty leaves it to the environment variable VEXO_RYNEK, in any
  /// letter case, and without that to "PL".
  explicit Market(std::string chosen = {}) : chosen_(std::move(chosen)) {}
  [[nodiscard]] std::string rynek() const override;

 private:
  std::string chosen_;
};

}  // namespace vexo_rynek
