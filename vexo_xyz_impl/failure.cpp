#include "vexo_xyz_impl/failure.h"

#include <new>
#include <stdexcept>
#include <system_error>

namespace vexo_xyz_impl {
namespace {

const char* kind_of(const std::exception& failure) {
  if (dynamic_cast<const std::bad_alloc*>(&failure) != nullptr) return "MemoryError";
  if (dynamic_cast<const std::length_error*>(&failure) != nullptr) return "MemoryError";
  if (dynamic_cast<const std::system_error*>(&failure) != nullptr) return "OSError";
  if (dynamic_cast<const std::out_of_range*>(&failure) != nullptr) return "IndexError";
  if (dynamic_cast<const std::invalid_argument*>(&failure) != nullptr) return "ValueError";
  return "RuntimeError";
}

}  // namespace

FailureNote describe(const std::exception& failure) {
  if (const auto* own = dynamic_cast<const Failure*>(&failure)) return {own->kind(), own->what()};
  const std::string kind = kind_of(failure);
  return {kind, kind == "MemoryError" ? "not enough memory" : failure.what()};
}

}  // namespace vexo_xyz_impl
