#include "console/existing_drawing.h"

#include <cerrno>
#include <string>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "console/dxf/drawing_edit.h"
#include "console/dxf/drawing_fault.h"
#include "console/failure_text.h"
#include "console/files.h"
#include "vexo_xyz_impl/messages.h"

namespace console {
namespace {

[[noreturn]] void fail() { throw std::system_error(errno, std::generic_category()); }

class Descriptor {
 public:
  explicit Descriptor(const std::filesystem::path& path) : number_(open(path.c_str(), O_RDONLY | O_CLOEXEC)) {
    if (number_ < 0) fail();
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() { close(number_); }
  [[nodiscard]] int number() const { return number_; }

 private:
  int number_;
};

std::string_view key_of(Damage damage) {
  switch (damage) {
    case Damage::no_drawing:
      return "konsola.rys_nie_dxf";
    case Damage::binary:
      return "konsola.rys_binarny";
    case Damage::dwg:
      return "konsola.rys_dwg";
    case Damage::odd_code:
      return "konsola.rys_zly_kod";
    case Damage::cut_short:
      return "konsola.rys_urwany";
    case Damage::no_handles:
      return "konsola.rys_brak_uchwytow";
    case Damage::out_of_place:
      break;
  }
  return "konsola.rys_nie_na_miejscu";
}

std::string text_of(const std::filesystem::path& path, const DrawingFault& fault) {
  if (fault.line() == 0) return text_about(key_of(fault.damage()), path);
  const std::string name = path.string();
  const std::string what = vexo_xyz_impl::T(key_of(fault.damage()));
  return vexo_xyz_impl::filled("konsola.rys_uszkodzony",
                               {std::string_view(name), static_cast<long long>(fault.line()), std::string_view(what)});
}

}  // namespace

ExistingDrawing::ExistingDrawing(const std::filesystem::path& path) : path_(std::filesystem::canonical(path)) {
  read();
  outline_ = outline_of(bytes_);
}

ExistingDrawing::Identity ExistingDrawing::identity_of(int descriptor) {
  struct stat status {};
  if (fstat(descriptor, &status) != 0) fail();
  return {status.st_dev, status.st_ino, status.st_size, status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
}

// Into memory and not mapped: another program may cut the file short at any time.
void ExistingDrawing::read() {
  const Descriptor file(path_);
  identity_ = identity_of(file.number());
  const auto size = static_cast<std::size_t>(identity_.size);
  memory_ = std::make_unique_for_overwrite<char[]>(size);  // NOLINT(modernize-avoid-c-arrays)
  std::size_t filled = 0;
  while (filled < size) {
    const ssize_t got = ::read(file.number(), memory_.get() + filled, size - filled);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) fail();
    if (got == 0) break;  // shorter by now, which saving will see
    filled += static_cast<std::size_t>(got);
  }
  bytes_ = {memory_.get(), filled};
}

Ground ExistingDrawing::ground() const { return ground_of(outline_); }

bool ExistingDrawing::is_unchanged() const {
  try {
    return identity_of(Descriptor(path_).number()) == identity_;
  } catch (const std::system_error&) {
    return false;
  }
}

std::string ExistingDrawing::notes(const DrawingWishes& wishes) const {
  constexpr long long kNoUnit = 0;
  constexpr long long kMetre = 6;
  const TextEncoding encoding = form_of(outline_).encoding;
  std::string hidden;
  Names told;
  const auto look_at = [&](const std::string& layer) {
    const std::string name = encoding.name(layer);
    if (outline_.hidden_layers.contains(name) && told.insert(name).second)
      hidden += (hidden.empty() ? "" : ", ") + layer;
  };
  look_at(wishes.layers.points);
  look_at(wishes.layers.labels);
  if (wishes.height_decimals) look_at(wishes.layers.heights);
  std::string notes;
  if (!hidden.empty()) notes += vexo_xyz_impl::filled("konsola.rys_niewidoczne", {std::string_view(hidden)});
  const Tag* const stated = outline_.variable("$INSUNITS");
  const long long unit = stated == nullptr ? kNoUnit : stated->whole().value_or(kNoUnit);
  if (unit != kNoUnit && unit != kMetre) notes += vexo_xyz_impl::filled("konsola.rys_jednostka", {unit});
  return notes;
}

void ExistingDrawing::write(const Drawing& added, const Layers& layers, ByteSink& sink) const {
  write_added(bytes_, outline_, added, layers, sink);
}

void ExistingDrawing::go_on_with(std::string bytes) {
  auto written = std::make_unique<const std::string>(std::move(bytes));
  outline_ = outline_of(*written);
  memory_.reset();
  written_ = std::move(written);
  bytes_ = *written_;
}

bool ExistingDrawing::save(const Drawing* added, const Layers& layers) const {
  if (!is_unchanged()) return false;
  AtomicFile file(path_.parent_path());
  if (added != nullptr) {
    write(*added, layers, file);
  } else {
    file.write(bytes_);
  }
  file.flush();
  if (!is_unchanged()) return false;  // all that may have taken seconds
  file.replace_keeping(path_, backup());
  return true;
}

OpenedDrawing read_existing(const std::filesystem::path& path) {
  std::error_code ignored;
  const auto status = std::filesystem::status(path, ignored);
  if (status.type() == std::filesystem::file_type::not_found) return text_about("konsola.rys_brak", path);
  if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status))
    return text_about("konsola.rys_nie_plik", path);
  try {
    return std::make_unique<ExistingDrawing>(path);
  } catch (const DrawingFault& fault) {
    return text_of(path, fault);
  } catch (const std::system_error& failure) {
    return text_about("konsola.rys_nie_otwarto", path, failure);
  }
}

OpenedDrawing open_existing(const std::filesystem::path& path) {
  OpenedDrawing opened = read_existing(path);
  if (const auto* const drawing = std::get_if<std::unique_ptr<ExistingDrawing>>(&opened)) {
    // A file may be replaced that may not be written; but who protects a drawing means it.
    if (access((*drawing)->path().c_str(), W_OK) != 0)
      return text_about("konsola.blad_zapisu", path, std::system_error(errno, std::generic_category()));
    if (const auto refusal = refusal_of((*drawing)->path())) return text_about("konsola.blad_zapisu", path, *refusal);
  }
  return opened;
}

std::optional<std::string> save_existing(const ExistingDrawing& drawing, const Drawing* added, const Layers& layers) {
  try {
    if (!drawing.save(added, layers)) return text_about("konsola.rys_zmieniony", drawing.path());
  } catch (const std::system_error& failure) {
    return text_about("konsola.blad_zapisu", drawing.path(), failure);
  }
  return std::nullopt;
}

}  // namespace console
