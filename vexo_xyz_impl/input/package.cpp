#include "vexo_xyz_impl/input/package.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include <zip.h>

#include "vexo_xyz_impl/failure.h"

namespace vexo_xyz_impl {
namespace {

constexpr std::size_t kBlock = std::size_t{1} << 20U;  // unpacked at a time, so that a lie shows before memory is gone

struct CloseMember {
  void operator()(zip_file_t* member) const { zip_fclose(member); }
};

std::string quoted(std::string_view name) { return "member '" + std::string(name) + "'"; }

[[noreturn]] void fail(std::string_view name, int error_code, const std::string& reason) {
  const std::string text = quoted(name) + ": " + reason;
  switch (error_code) {
    case ZIP_ER_NOPASSWD:
    case ZIP_ER_WRONGPASSWD:
      throw Failure("RuntimeError", quoted(name) + " is encrypted; save the workbook without a password");
    case ZIP_ER_COMPNOTSUPP:
    case ZIP_ER_ENCRNOTSUPP:
      throw NotImplementedError(text + "; open the workbook in a spreadsheet program and save it again");
    case ZIP_ER_MEMORY:
      throw MemoryError(text);
    default:
      throw BadZipFile(text);
  }
}

void refuse_if_too_large(std::string_view name, std::uint64_t unpacked, std::uint64_t packed) {
  if (unpacked > kLargestMember) {
    throw MemoryError(quoted(name) + " unpacks to more than " + std::to_string(kLargestMember >> 20U) + " MiB");
  }
  if (unpacked > kUnsuspiciousMember && unpacked / kLargestRatio > packed) {
    throw BadZipFile(quoted(name) + " unpacks to more than " + std::to_string(kLargestRatio) +
                     " times its size and is not unpacked");
  }
}

}  // namespace

void Package::Close::operator()(zip* archive) const { zip_discard(archive); }

Package::Package(Package&&) noexcept = default;
Package& Package::operator=(Package&&) noexcept = default;
Package::~Package() = default;

Package::Package(const std::string& path) {
  int code = ZIP_ER_OK;
  archive_.reset(zip_open(path.c_str(), ZIP_RDONLY, &code));
  if (!archive_) {
    zip_error_t error;
    zip_error_init_with_code(&error, code);
    const std::string reason = zip_error_strerror(&error);
    zip_error_fini(&error);
    if (code == ZIP_ER_OPEN || code == ZIP_ER_READ || code == ZIP_ER_NOENT) throw OSError(path + ": " + reason);
    throw BadZipFile("not a sound workbook (a ZIP package): " + reason);
  }
  std::error_code unknown;
  size_ = std::filesystem::file_size(path, unknown);
  const zip_int64_t count = zip_get_num_entries(archive_.get(), 0);
  for (zip_int64_t i = 0; i < count; ++i) {
    const auto index = static_cast<zip_uint64_t>(i);
    if (const char* name = zip_get_name(archive_.get(), index, ZIP_FL_ENC_GUESS))
      members_.insert_or_assign(name, index);
  }
}

std::vector<std::string_view> Package::names() const {
  std::vector<std::string_view> names;
  for (const auto& [name, index] : members_) names.emplace_back(name);
  return names;
}

std::vector<char> Package::read(std::string_view name) const {
  const zip_uint64_t index = members_.find(name)->second;
  zip_stat_t claimed;
  zip_stat_init(&claimed);
  if (zip_stat_index(archive_.get(), index, 0, &claimed) != 0 || (claimed.valid & ZIP_STAT_SIZE) == 0) {
    throw BadZipFile(quoted(name) + " has no size");
  }
  const std::uint64_t packed = std::min<std::uint64_t>(claimed.comp_size, size_);
  refuse_if_too_large(name, claimed.size, packed);

  const std::unique_ptr<zip_file_t, CloseMember> member(zip_fopen_index(archive_.get(), index, 0));
  if (!member) {
    zip_error_t* error = zip_get_error(archive_.get());
    fail(name, zip_error_code_zip(error), zip_error_strerror(error));
  }
  // One byte more than claimed: the end, and with it the checksum, is seen without growing.
  std::vector<char> content(static_cast<std::size_t>(claimed.size) + 1);
  std::size_t filled = 0;
  while (true) {
    const zip_int64_t got = zip_fread(member.get(), content.data() + filled, content.size() - filled);
    if (got < 0) {
      zip_error_t* error = zip_file_get_error(member.get());
      fail(name, zip_error_code_zip(error), zip_error_strerror(error));
    }
    if (got == 0) break;
    filled += static_cast<std::size_t>(got);
    if (filled < content.size()) continue;
    refuse_if_too_large(name, filled, packed);
    content.resize(content.size() + kBlock);
  }
  content.resize(filled);
  return content;
}

}  // namespace vexo_xyz_impl
