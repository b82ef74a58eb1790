#include "intake/xml.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <utility>

#include <expat.h>

#include "vexo_xyz_impl/failure.h"

namespace intake {
namespace {

constexpr std::size_t kFedAtOnce = std::size_t{1} << 16U;

std::string_view without_prefix(std::string_view name) {
  const std::size_t colon = name.find(':');
  return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

}  // namespace

const char* XmlAttributes::find(std::string_view name) const {
  for (const char** at = pairs_; *at != nullptr; at += 2)
    if (name == *at) return at[1];
  return nullptr;
}

const char* XmlAttributes::find_prefixed(std::string_view local_name) const {
  for (const char** at = pairs_; *at != nullptr; at += 2)
    if (without_prefix(*at) == local_name && local_name != *at) return at[1];
  return nullptr;
}

std::string_view XmlAttributes::operator[](std::string_view name) const {
  const char* const found = find(name);
  return found != nullptr ? std::string_view(found) : std::string_view();
}

void XmlParser::Free::operator()(XML_ParserStruct* parser) const { XML_ParserFree(parser); }

XmlParser::XmlParser(std::string member, std::span<const char> bytes, XmlHandler& handler)
    : member_(std::move(member)), bytes_(bytes), handler_(handler), parser_(XML_ParserCreate(nullptr)) {
  if (!parser_) throw std::bad_alloc();
  XML_SetUserData(parser_.get(), this);
  XML_SetElementHandler(parser_.get(), on_start, on_end);
  XML_SetCharacterDataHandler(parser_.get(), on_characters);
  XML_SetEntityDeclHandler(parser_.get(), on_entity);
}

bool XmlParser::run() {
  while (paused_ || !ended_) {
    XML_Status status = XML_STATUS_OK;
    if (std::exchange(paused_, false)) {
      status = XML_ResumeParser(parser_.get());
    } else {
      const std::size_t size = std::min(kFedAtOnce, bytes_.size() - fed_);
      const char* const next = bytes_.data() + fed_;
      fed_ += size;
      ended_ = fed_ == bytes_.size();
      status = XML_Parse(parser_.get(), next, static_cast<int>(size), ended_ ? XML_TRUE : XML_FALSE);
    }
    if (failure_) std::rethrow_exception(failure_);
    if (status == XML_STATUS_ERROR) fail();
    if (status == XML_STATUS_SUSPENDED) return paused_ = true;
  }
  return false;
}

// The parser is C: nothing may be thrown through it.
template <typename Step>
void XmlParser::guarded(Step step) {
  if (failure_) return;
  try {
    step();
  } catch (...) {
    failure_ = std::current_exception();
    XML_StopParser(parser_.get(), XML_FALSE);
  }
}

void XmlParser::fail() const {
  const XML_Error error = XML_GetErrorCode(parser_.get());
  if (error == XML_ERROR_NO_MEMORY) throw std::bad_alloc();
  throw vexo_xyz_impl::Failure(
      "ParseError", "member '" + member_ + "', line " + std::to_string(XML_GetCurrentLineNumber(parser_.get())) + ": " +
                        XML_ErrorString(error) + "; open the workbook in a spreadsheet program and save it again");
}

void XmlParser::on_start(void* self, const char* name, const char** attributes) {
  auto& parser = *static_cast<XmlParser*>(self);
  if (parser.ignored_ != 0) {
    ++parser.ignored_;
    return;
  }
  parser.guarded([&] {
    const std::string_view local = without_prefix(name);
    const bool prefixed = local.data() != name;
    const int state = parser.handler_.start(parser.states_.back(), {local, prefixed, XmlAttributes(attributes)});
    if (state == kIgnored)
      parser.ignored_ = 1;
    else
      parser.states_.push_back(state);
  });
}

void XmlParser::on_end(void* self, const char* /*name*/) {
  auto& parser = *static_cast<XmlParser*>(self);
  if (parser.ignored_ != 0) {
    --parser.ignored_;
    return;
  }
  parser.guarded([&] {
    const int state = parser.states_.back();
    parser.states_.pop_back();
    if (parser.handler_.end(state)) XML_StopParser(parser.parser_.get(), XML_TRUE);
  });
}

void XmlParser::on_characters(void* self, const char* text, int size) {
  auto& parser = *static_cast<XmlParser*>(self);
  if (parser.ignored_ != 0) return;
  parser.guarded([&] { parser.handler_.characters(parser.states_.back(), {text, static_cast<std::size_t>(size)}); });
}

void XmlParser::on_entity(void* self, const char*, int, const char*, int, const char*, const char*, const char*,
                          const char*) {
  auto& parser = *static_cast<XmlParser*>(self);
  parser.guarded([&] {
    throw vexo_xyz_impl::Failure("ParseError", "member '" + parser.member_ +
                                                   "' declares entities of its own, as no workbook does; "
                                                   "open it in a spreadsheet program and save it again");
  });
}

void parse_xml(std::string member, std::span<const char> bytes, XmlHandler& handler) {
  XmlParser(std::move(member), bytes, handler).run();
}

}  // namespace intake
