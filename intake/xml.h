// XML by a parser: the elements and characters of one member of a package, as events along the path that matters.
//
// A handler gives each element that matters a state, by its parent's state and its local name; whatever stands in other
// elements is never told. Prefixes are told apart from names, declared or not, since programs use them as they like.
// UTF-8, UTF-16, ISO 8859-1 and ASCII are read. Declarations of entities are refused: no workbook has one, and a bomb
// is made of them.
#pragma once

#include <cstddef>
#include <exception>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

struct XML_ParserStruct;

namespace intake {

class XmlAttributes {
 public:
  explicit XmlAttributes(const char** pairs) : pairs_(pairs) {}

  /// The value, UTF-8 with its entities decoded; null when there is no such attribute.
  [[nodiscard]] const char* find(std::string_view name) const;

  /// The same, of an attribute with any prefix.
  [[nodiscard]] const char* find_prefixed(std::string_view local_name) const;

  /// The value, empty when there is none.
  [[nodiscard]] std::string_view operator[](std::string_view name) const;

 private:
  const char** pairs_;  // names and values in turn, then null
};

struct XmlElement {
  std::string_view name;  ///< without its prefix
  bool prefixed = false;
  XmlAttributes attributes;
};

/// What a handler makes of an element; beside these, numbers of its own from 1 on.
inline constexpr int kIgnored = -1;
inline constexpr int kDocument = 0;

class XmlHandler {
 public:
  XmlHandler() = default;
  XmlHandler(const XmlHandler&) = delete;
  XmlHandler& operator=(const XmlHandler&) = delete;
  virtual ~XmlHandler() = default;

  /// The state of an element that stands in one of state `parent`; `kIgnored` for it and all in it.
  virtual int start(int parent, const XmlElement& element) = 0;

  /// A piece of an element's own text.
  virtual void characters(int /*state*/, std::string_view /*text*/) {}

  /// Whether the parser is to pause behind this element.
  virtual bool end(int /*state*/) { return false; }
};

class XmlParser {
 public:
  /// Neither the bytes nor the handler may go away meanwhile. `member` names them in failures.
  XmlParser(std::string member, std::span<const char> bytes, XmlHandler& handler);

  /// Goes on until the handler pauses it (true) or the document ends (false). Fails with ParseError when it is not
  /// well-formed, and with what the handler fails with.
  bool run();

 private:
  struct Free {
    void operator()(XML_ParserStruct* parser) const;
  };

  template <typename Step>
  void guarded(Step step);
  [[noreturn]] void fail() const;

  static void on_start(void* self, const char* name, const char** attributes);
  static void on_end(void* self, const char* name);
  static void on_characters(void* self, const char* text, int size);
  static void on_entity(void* self, const char*, int, const char*, int, const char*, const char*, const char*,
                        const char*);

  std::string member_;
  std::span<const char> bytes_;
  XmlHandler& handler_;
  std::unique_ptr<XML_ParserStruct, Free> parser_;
  std::size_t fed_ = 0;
  bool ended_ = false;  // all bytes were fed
  bool paused_ = false;
  std::vector<int> states_{kDocument};
  std::size_t ignored_ = 0;  // elements open within one that is ignored, itself counted
  std::exception_ptr failure_;
};

/// A document as a whole: fails as `XmlParser::run`.
void parse_xml(std::string member, std::span<const char> bytes, XmlHandler& handler);

}  // namespace intake
