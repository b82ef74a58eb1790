// A ZIP package: its member names, and members read whole.
//
// Packages come from anywhere, so what a member claims and what it unpacks to are both held against limits, and its
// checksum against its content. Every failure names the member.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct zip;

namespace vexo_xyz_impl {

/// The largest member that is unpacked, in bytes.
inline constexpr std::uint64_t kLargestMember = std::uint64_t{2} << 30U;

/// Unpacked to packed size from which a member of more than `kUnsuspiciousMember` bytes is taken for a bomb: repeated
/// rows of a worksheet pack about 100 to 1, no honest text 500 to 1.
inline constexpr std::uint64_t kLargestRatio = 500;
inline constexpr std::uint64_t kUnsuspiciousMember = std::uint64_t{64} << 20U;

class Package {
 public:
  /// Opens the package. Fails with BadZipFile when the file is none, OSError when it cannot be read.
  explicit Package(const std::string& path);
  Package(Package&&) noexcept;
  Package& operator=(Package&&) noexcept;
  Package(const Package&) = delete;
  Package& operator=(const Package&) = delete;
  ~Package();

  /// Names in the order of bytes, which is the order of code points; a repeated name stands once.
  [[nodiscard]] std::vector<std::string_view> names() const;
  [[nodiscard]] bool has(std::string_view name) const { return members_.find(name) != members_.end(); }

  /// The content of a member that the package has; of several with one name the last. Fails with BadZipFile when it is
  /// damaged or a bomb, MemoryError when it is too large, RuntimeError when it is encrypted, NotImplementedError when
  /// its method is not known.
  [[nodiscard]] std::vector<char> read(std::string_view name) const;

 private:
  struct Close {
    void operator()(zip* archive) const;
  };

  std::unique_ptr<zip, Close> archive_;
  std::uint64_t size_ = 0;  // of the whole package: no member is packed larger, whatever it claims
  std::map<std::string, std::uint64_t, std::less<>> members_;  // name to index
};

}  // namespace vexo_xyz_impl
