#include "console/failure_text.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

#include "console/files.h"
#include "vexo_xyz_impl/messages.h"

namespace console {
namespace {

constexpr auto kReasons = std::to_array<std::pair<int, std::string_view>>({
    {ENOENT, "konsola.powod_brak_folderu"},
    {ENOTDIR, "konsola.powod_brak_folderu"},
    {EACCES, "konsola.powod_brak_prawa"},
    {EPERM, "konsola.powod_brak_prawa"},
    {ENOSPC, "konsola.powod_dysk_pelny"},
    {EDQUOT, "konsola.powod_przydzial"},
    {EFBIG, "konsola.powod_za_duzy"},
    {EROFS, "konsola.powod_tylko_odczyt"},
    {EEXIST, "konsola.powod_istnieje"},
    {EISDIR, "konsola.powod_nie_plik"},
    {ENAMETOOLONG, "konsola.powod_dluga_nazwa"},
    {EIO, "konsola.powod_nosnik"},
});

std::string reason_of(const std::error_code& code) {
  const auto* const found =
      std::find_if(kReasons.begin(), kReasons.end(), [&](const auto& reason) { return reason.first == code.value(); });
  if (found != kReasons.end() && code.category() == std::generic_category()) return vexo_xyz_impl::T(found->second);
  const std::string words = code.message();
  return vexo_xyz_impl::filled("konsola.powod_inny", {std::string_view(words), static_cast<long long>(code.value())});
}

std::string_view key_of(FileStep step) {
  switch (step) {
    case FileStep::create:
      return "konsola.krok_utworzenie";
    case FileStep::write:
      return "konsola.krok_zapis";
    case FileStep::flush:
      return "konsola.krok_utrwalenie";
    case FileStep::rename:
      break;
  }
  return "konsola.krok_nazwa";
}

}  // namespace

std::string failure_text(const std::system_error& failure) {
  std::string reason = reason_of(failure.code());
  const auto* const of_file = dynamic_cast<const FileFailure*>(&failure);
  if (of_file == nullptr) return reason;
  return vexo_xyz_impl::filled(key_of(of_file->step()), {std::string_view(reason)});
}

std::string text_about(std::string_view key, const std::filesystem::path& path) {
  const std::string name = path.string();
  return vexo_xyz_impl::filled(key, {std::string_view(name)});
}

std::string text_about(std::string_view key, const std::filesystem::path& path, std::string_view reason) {
  const std::string name = path.string();
  return vexo_xyz_impl::filled(key, {std::string_view(name), reason});
}

std::string text_about(std::string_view key, const std::filesystem::path& path, const std::system_error& failure) {
  return text_about(key, path, failure_text(failure));
}

}  // namespace console
