#include "vexo_xyz_impl/input/package.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <span>
#include <system_error>
#include <utility>

#include <zip.h>

#include "vexo_xyz_impl/failure.h"
#include "vexo_xyz_impl/text/paths.h"
#include "vexo_xyz_impl/text/utf8.h"

namespace vexo_xyz_impl {
namespace {

struct CloseMember {
  void operator()(zip_file_t* member) const { zip_fclose(member); }
};

zip_t* open(const std::filesystem::path& path, zip_error_t& error) {
#ifdef _WIN32
  zip_source_t* const source = zip_source_win32w_create(path.c_str(), 0, -1, &error);
#else
  zip_source_t* const source = zip_source_file_create(path.c_str(), 0, -1, &error);
#endif
  if (source == nullptr) return nullptr;
  zip_t* const archive = zip_open_from_source(source, ZIP_RDONLY, &error);
  if (archive == nullptr) zip_source_free(source);
  return archive;
}

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

// Up to so many bytes of a member; fewer at its end only, where its checksum is looked at as well.
std::size_t fill(std::span<char> bytes, zip_file_t* member, std::string_view name) {
  std::size_t filled = 0;
  while (filled < bytes.size()) {
    const zip_int64_t got = zip_fread(member, bytes.data() + filled, bytes.size() - filled);
    if (got < 0) {
      zip_error_t* error = zip_file_get_error(member);
      fail(name, zip_error_code_zip(error), zip_error_strerror(error));
    }
    if (got == 0) break;
    filled += static_cast<std::size_t>(got);
  }
  return filled;
}

}  // namespace

void Package::Close::operator()(zip* archive) const { zip_discard(archive); }

Package::Package(Package&&) noexcept = default;
Package& Package::operator=(Package&&) noexcept = default;
Package::~Package() = default;

Package::Package(const std::string& path) {
  const std::filesystem::path file = text::path_of(path);
  zip_error_t error;
  zip_error_init(&error);
  archive_.reset(open(file, error));
  const int code = zip_error_code_zip(&error);
  const std::string reason = zip_error_strerror(&error);
  zip_error_fini(&error);
  if (!archive_ && (code == ZIP_ER_OPEN || code == ZIP_ER_READ || code == ZIP_ER_NOENT))
    throw OSError(path + ": " + reason);
  if (!archive_) throw BadZipFile("not a sound workbook (a ZIP package): " + reason);
  std::error_code unknown;
  size_ = std::filesystem::file_size(file, unknown);
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

std::vector<char> Package::read(std::string_view name) {
  std::vector<char> bytes = read_bytes(name);
  const std::string_view text(bytes.data(), bytes.size());
  if (text::is_valid(text)) return bytes;
  const std::size_t size = text::size_with_replacements(text);
  take(name, size);
  return text::with_replacements(text, size);
}

std::vector<char> Package::read_bytes(std::string_view name) {
  const zip_uint64_t index = members_.find(name)->second;
  zip_stat_t claimed;
  zip_stat_init(&claimed);
  if (zip_stat_index(archive_.get(), index, 0, &claimed) != 0 || (claimed.valid & ZIP_STAT_SIZE) == 0) {
    throw BadZipFile(quoted(name) + " has no size");
  }
  take(name, claimed.size);
  const std::uint64_t packed = std::min<std::uint64_t>(claimed.comp_size, size_);
  if (claimed.size > kUnsuspiciousMember && claimed.size / kLargestRatio > packed) {
    throw BadZipFile(quoted(name) + " unpacks to more than " + std::to_string(kLargestRatio) +
                     " times its size and is not unpacked");
  }

  const std::unique_ptr<zip_file_t, CloseMember> member(zip_fopen_index(archive_.get(), index, 0));
  if (!member) {
    zip_error_t* error = zip_get_error(archive_.get());
    fail(name, zip_error_code_zip(error), zip_error_strerror(error));
  }
  std::vector<char> content(static_cast<std::size_t>(claimed.size));
  content.resize(fill(content, member.get(), name));
  std::array<char, 1> beyond{};
  if (fill(beyond, member.get(), name) != 0) throw BadZipFile(quoted(name) + " unpacks to more than it claims");
  return content;
}

void Package::take(std::string_view name, std::uint64_t bytes) {
  if (bytes > left_) {
    throw MemoryError(quoted(name) + " is too large: of a workbook " + std::to_string(kMostUnpacked >> 20U) +
                      " MiB are unpacked at most; keep the points alone in it, or save its sheet as CSV");
  }
  left_ -= bytes;
}

}  // namespace vexo_xyz_impl
