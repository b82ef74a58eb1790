#include "intake/compound_file.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <istream>
#include <optional>
#include <span>
#include <vector>

namespace intake {
namespace {

constexpr std::size_t kHeaderSize = 512;
constexpr std::size_t kEntrySize = 128;
constexpr std::size_t kNameBytesAt = 64;
constexpr std::size_t kSectorShiftAt = 30;
constexpr std::size_t kFirstDirectorySectorAt = 48;
constexpr std::size_t kTableSectorsAt = 76;  // of the allocation table: the first 109 stand in the header
constexpr std::size_t kTableSectors = 109;
constexpr std::uint32_t kLastSector = 0xFFFFFFFA;
constexpr int kMostDirectorySectors = 256;  // eight entries or more each; an office document has a few dozen

std::uint32_t number_at(std::span<const char> bytes, std::size_t at, std::size_t size) {
  std::uint32_t number = 0;
  for (std::size_t i = size; i-- > 0;) number = number << 8U | static_cast<unsigned char>(bytes[at + i]);
  return number;
}

bool read_at(std::istream& file, std::uint64_t at, std::span<char> bytes) {
  file.clear();
  file.seekg(static_cast<std::streamoff>(at));
  return static_cast<bool>(file.read(bytes.data(), static_cast<std::streamsize>(bytes.size())));
}

bool is_named(std::span<const char> entry, std::string_view name) {
  if (number_at(entry, kNameBytesAt, 2) != 2 * (name.size() + 1)) return false;
  for (std::size_t i = 0; i < name.size(); ++i)
    if (entry[2 * i] != name[i] || entry[2 * i + 1] != 0) return false;
  return true;
}

class CompoundFile {
 public:
  explicit CompoundFile(std::istream& file) : file_(file), sound_(read_at(file, 0, header_)) {
    const std::uint32_t shift = sound_ ? number_at(header_, kSectorShiftAt, 2) : 0;
    sound_ = shift == 9 || shift == 12;
    if (sound_) sector_.resize(std::size_t{1} << shift);
  }

  bool has_entry(std::initializer_list<std::string_view> names) {
    if (!sound_) return false;
    std::uint32_t sector = number_at(header_, kFirstDirectorySectorAt, 4);
    for (int read = 0; read < kMostDirectorySectors && sector < kLastSector; ++read) {
      if (!read_at(file_, place_of(sector), sector_)) return false;
      for (std::size_t at = 0; at < sector_.size(); at += kEntrySize) {
        const auto entry = std::span<const char>(sector_).subspan(at, kEntrySize);
        if (std::any_of(names.begin(), names.end(), [&](std::string_view name) { return is_named(entry, name); }))
          return true;
      }
      const auto next = sector_after(sector);
      if (!next) return false;
      sector = *next;
    }
    return false;
  }

 private:
  [[nodiscard]] std::uint64_t place_of(std::uint32_t sector) const {
    return (std::uint64_t{sector} + 1) * sector_.size();
  }

  std::optional<std::uint32_t> sector_after(std::uint32_t sector) {
    const std::size_t a_sector = sector_.size() / 4;
    const std::size_t table = sector / a_sector;
    if (table >= kTableSectors) return std::nullopt;
    const std::uint32_t table_sector = number_at(header_, kTableSectorsAt + 4 * table, 4);
    if (table_sector >= kLastSector) return std::nullopt;
    std::array<char, 4> next{};
    if (!read_at(file_, place_of(table_sector) + 4 * (sector % a_sector), next)) return std::nullopt;
    return number_at(next, 0, 4);
  }

  std::istream& file_;
  std::array<char, kHeaderSize> header_{};
  bool sound_;
  std::vector<char> sector_;
};

}  // namespace

bool has_entry(std::istream& file, std::initializer_list<std::string_view> names) {
  return CompoundFile(file).has_entry(names);
}

}  // namespace intake
