#include "vexo_xyz_impl/drawing/group.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>

#include "vexo_xyz_impl/messages.h"
#include "vexo_xyz_impl/text/local_time.h"

namespace vexo_xyz_impl {
namespace {

constexpr std::string_view kPrefix = "PIKIETY_";
constexpr std::string_view kStemOfNothing = "IMPORT";
constexpr std::size_t kLongestStem = 40;
constexpr int kLastSuffix = 99;

bool survives_group_dialog(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_' || c == '-';
}

// Last component without the part from its last "." on.
std::string_view raw_stem(std::string_view path) {
  const std::string_view name = path.substr(path.find_last_of("/\\") + 1);
  return name.substr(0, name.rfind('.'));
}

std::string clean_stem(std::string_view path) {
  std::string stem;
  bool replacing = false;  // inside a run of characters that one "_" stands for
  for (const char c : raw_stem(path)) {
    if (survives_group_dialog(c)) {
      stem += c;
    } else if (!replacing) {
      stem += '_';
    }
    replacing = !survives_group_dialog(c);
  }
  const std::size_t first = stem.find_first_not_of('_');
  if (first == std::string::npos) return std::string(kStemOfNothing);
  stem = stem.substr(first, stem.find_last_not_of('_') - first + 1);
  stem.resize(std::min(stem.size(), kLongestStem));  // after the strip: a cut stem may end in "_"
  return stem;
}

std::string free_name(host::GcDbDictionary& groups, const std::string& nazwa) {
  if (!groups.has(nazwa)) return nazwa;
  for (int i = 2; i <= kLastSuffix; ++i) {
    std::string kand = nazwa + "_" + std::to_string(i);
    if (!groups.has(kand)) return kand;
  }
  return nazwa + "_" + text::local_time("%H%M%S");
}

}  // namespace

std::string _nazwa_grupy(host::GcDbDatabase& db, const std::string& path) {
  std::string nazwa = std::string(kPrefix) + text::local_time("%Y-%m-%d") + "_" + clean_stem(path);
  auto [status, dictionary] = db.getGroupDictionary(host::GcDb::kForRead);
  host::Opened<host::GcDbDictionary> groups(std::move(dictionary));
  if (status != host::Gcad::eOk) return nazwa;
  nazwa = free_name(*groups, nazwa);
  groups.finish();
  return nazwa;
}

GroupingResult _grupuj(host::GcDbDatabase& db, const host::GcDbObjectIdArray& ids, const std::string& nazwa) {
  if (ids.length() == 0) return {false, T("xyz.grup_brak_encji")};
  auto [dictionary_status, dictionary] = db.getGroupDictionary(host::GcDb::kForWrite);
  host::Opened<host::GcDbDictionary> groups(std::move(dictionary));
  if (dictionary_status != host::Gcad::eOk) return {false, T("xyz.grup_brak_slownika")};

  host::Opened<host::GcDbGroup> grupa(bound().host.database.newGcDbGroup(T("xyz.grupa_opis"), true));
  const auto added = groups->setAt(nazwa, *grupa);
  if (added.first != host::Gcad::eOk) {
    grupa.discard();
    groups.finish();
    return {false, T("xyz.grup_setat")};
  }
  grupa->append(ids);
  grupa.finish();
  groups.finish();
  return {true, ""};
}

}  // namespace vexo_xyz_impl
