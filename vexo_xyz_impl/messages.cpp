#include "vexo_xyz_impl/messages.h"

#include <cstddef>
#include <utility>

#include <fmt/args.h>
#include <fmt/format.h>
#include <fmt/printf.h>

#include "vexo_xyz_impl/failure.h"
#include "vexo_xyz_impl/notices.h"

namespace vexo_xyz_impl {
namespace {

enum class Conversion { text, whole, real };

// What each placeholder of a template converts, in order; empty for a malformed template. {fmt} checks neither
// surplus values nor a text given to %d in every version, so the template is held against its values beforehand.
std::optional<std::vector<Conversion>> conversions(std::string_view tpl) {
  std::vector<Conversion> found;
  for (std::size_t at = tpl.find('%'); at != std::string_view::npos; at = tpl.find('%', at)) {
    const std::size_t type = tpl.find_first_not_of("-+ #0123456789.", at + 1);
    if (type == std::string_view::npos) return std::nullopt;
    switch (tpl[type]) {
      case '%':
        if (type != at + 1) return std::nullopt;
        break;
      case 's':
        found.push_back(Conversion::text);
        break;
      case 'd':
      case 'i':
        found.push_back(Conversion::whole);
        break;
      case 'e':
      case 'f':
      case 'g':
        found.push_back(Conversion::real);
        break;
      default:
        return std::nullopt;
    }
    at = type + 1;
  }
  return found;
}

bool takes(Conversion conversion, const TemplateValue& value) {
  switch (conversion) {
    case Conversion::text:
      return true;
    case Conversion::whole:
      return std::holds_alternative<long long>(value);
    case Conversion::real:
      return std::holds_alternative<double>(value);
  }
  return false;
}

}  // namespace

std::optional<std::string> try_fill(std::string_view tpl, const std::vector<TemplateValue>& values) {
  const auto wanted = conversions(tpl);
  if (!wanted || wanted->size() != values.size()) return std::nullopt;
  fmt::dynamic_format_arg_store<fmt::printf_context> arguments;
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (!takes((*wanted)[i], values[i])) return std::nullopt;
    const auto pass = [&](const auto& value) {
      if ((*wanted)[i] == Conversion::text) {
        arguments.push_back(fmt::format("{}", value));  // %s shows any value as text
      } else {
        arguments.push_back(value);
      }
    };
    std::visit(pass, values[i]);
  }
  try {
    return fmt::vsprintf(fmt::string_view(tpl.data(), tpl.size()),
                         fmt::basic_format_args<fmt::printf_context>(arguments));
  } catch (const fmt::format_error&) {
    return std::nullopt;
  }
}

std::string filled(std::string_view key, const std::vector<TemplateValue>& values) {
  std::string tpl = T(key);
  if (tpl == key) return tpl;
  if (auto text = try_fill(tpl, values)) return std::move(*text);
  notify_failure(ValueError("the text of '" + std::string(key) + "' does not take its values: '" + tpl + "'"));
  return tpl;
}

void print(std::string_view key) { command_line().gcutPrintf(T(key)); }

void print(std::string_view key, const std::vector<TemplateValue>& values) {
  command_line().gcutPrintf(filled(key, values));
}

}  // namespace vexo_xyz_impl
