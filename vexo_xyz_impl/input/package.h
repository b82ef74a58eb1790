// A ZIP package: its member names, and members read whole as text.
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

/// The most that is unpacked and decoded of one package, in bytes: a full worksheet of twenty columns.
inline constexpr std::uint64_t kMostUnpacked = std::uint64_t{1} << 30U;

/// Unpacked to packed size from which a member of more than `kUnsuspiciousMember` bytes is taken for a bomb. Rows that
/// differ in nothing but their numbers pack about 10 to 1, empty ones with formats 30 to 1, and a note of a thousand
/// characters that stands in every row 110 to 1.
inline constexpr std::uint64_t kLargestRatio = 200;
inline constexpr std::uint64_t kUnsuspiciousMember = std::uint64_t{16} << 20U;

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

  /// The text of a member, with U+FFFD for what is no UTF-8; of several with one name the last. `name` must be one of
  /// `names()`. Fails with BadZipFile when the member is damaged, a bomb, or larger than it claims, MemoryError
  /// when it is too large beside those read before, RuntimeError when it is encrypted, NotImplementedError when its
  /// method is not known.
  [[nodiscard]] std::vector<char> read(std::string_view name);

  /// As `read`, but the bytes as they are, for who knows their encoding.
  [[nodiscard]] std::vector<char> read_bytes(std::string_view name);

 private:
  struct Close {
    void operator()(zip* archive) const;
  };

  void take(std::string_view name, std::uint64_t bytes);

  std::unique_ptr<zip, Close> archive_;
  std::uint64_t size_ = 0;  // of the whole package: no member is packed larger, whatever it claims
  std::uint64_t left_ = kMostUnpacked;
  std::map<std::string, std::uint64_t, std::less<>> members_;  // name to index
};

}  // namespace vexo_xyz_impl
