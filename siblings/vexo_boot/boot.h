// Notices of starts and failures: a start passes in silence, a failure leaves one line in the log.
#pragma once

#include <exception>
#include <functional>
#include <string_view>
#include <utility>

#include "vexo_xyz_impl/host/siblings.h"

namespace vexo_boot {

class Notices final : public vexo_xyz_impl::host::Notices {
 public:
  /// `log` takes a finished line without its end.
  explicit Notices(std::function<void(std::string_view)> log) : log_(std::move(log)) {}
  void zdarzenie(std::string_view /*name*/) override {}
  void blad(std::string_view name, const std::exception& failure) override;

 private:
  std::function<void(std::string_view)> log_;
};

}  // namespace vexo_boot
