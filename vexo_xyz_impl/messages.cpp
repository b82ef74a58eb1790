#include "vexo_xyz_impl/messages.h"

#include <utility>

#include "vexo_xyz_impl/failure.h"
#include "vexo_xyz_impl/notices.h"

namespace vexo_xyz_impl {

std::string filled(std::string_view key, const std::vector<TemplateValue>& values) {
  std::string tpl = T(key);
  if (tpl == key) return tpl;
  if (auto text = text::try_fill(tpl, values)) return std::move(*text);
  notify_failure(ValueError("the text of '" + std::string(key) + "' does not take its values: '" + tpl + "'"));
  return tpl;
}

void print(std::string_view key) { command_line().gcutPrintf(T(key)); }

void print(std::string_view key, const std::vector<TemplateValue>& values) {
  command_line().gcutPrintf(filled(key, values));
}

}  // namespace vexo_xyz_impl
