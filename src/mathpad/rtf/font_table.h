#pragma once

#include <map>
#include <optional>
#include <string>

#include "mathpad/rtf/encoding.h"

namespace tarnmill::rtf {

/// A font as a document's font table declares it.
struct DeclaredFont {
  Text name;
  /// Without one, the document's own encoding holds.
  std::optional<Encoding> encoding;
};

/// Gathers the font table of an RTF file: a number, a character set, and a name that ends at a semicolon.
class FontTable {
 public:
  explicit FontTable(PairDecoder pairs) : pairs_{pairs} {}

  /// Begins the declaration of a font by its number in the file; the one before it ends.
  void begin(std::int32_t number);
  /// The character set or the code page of the font that was begun. The page wins.
  void set_charset(std::int32_t charset) { charset_ = charset; }
  void set_page(std::int32_t page) { page_ = page; }
  /// Parts of its name, in the font's own encoding or the document's.
  void add_bytes(std::string_view bytes, const Encoding& document);
  void add_characters(TextView text);
  /// Ends the declaration, with or without a semicolon. A font without a name is none.
  void end();

  /// The font of a number, or nullptr.
  [[nodiscard]] const DeclaredFont* find(std::int32_t number) const;

 private:
  [[nodiscard]] std::optional<Encoding> encoding() const;

  PairDecoder pairs_;
  std::map<std::int32_t, DeclaredFont> fonts_;
  std::int32_t number_ = 0;
  std::optional<std::int32_t> charset_;
  std::optional<std::int32_t> page_;
  Text name_;
};

}  // namespace tarnmill::rtf
