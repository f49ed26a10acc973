#pragma once

#include <memory>
#include <optional>
#include <string>

#include "mathpad/rtf/color_table.h"
#include "mathpad/rtf/document_builder.h"
#include "mathpad/rtf/font_table.h"
#include "mathpad/rtf/group_state.h"
#include "mathpad/rtf/picture_reader.h"
#include "mathpad/rtf/tokenizer.h"

namespace tarnmill::rtf {

/// Reads one file: the state that its tokens change, and the document that grows by them. What a control word
/// does is a member function, and `find_word` is the table that leads to it.
class Reader {
 public:
  Reader(std::string_view bytes, PairDecoder pairs) : tokens_{bytes}, pairs_{pairs}, fonts_{pairs} {}

  /// Reads to the end of the first group or of the bytes.
  [[nodiscard]] Document read() &&;

 private:
  struct ControlWord {
    std::string_view word;
    void (Reader::*act)(std::int32_t);
    /// What the function gets if the file gives no number, or in all cases.
    std::int32_t given = 0;
    bool takes_number = false;
  };
  struct Vocabulary;
  static const ControlWord* find_word(std::string_view word);

  /// \name Tokens
  ///@{
  void handle(const Token& token);
  void open_group();
  void close_group();
  void leave(const GroupState& left);
  void handle_control(const Token& token);
  void act(const Token& token);
  bool is_fallback();
  void take_bytes(std::string_view bytes);
  void take_binary(std::int32_t length);
  void flush();
  ///@}

  /// \name What the state stands for
  ///@{
  [[nodiscard]] const DeclaredFont* font() const { return fonts_.find(state_.characters.font); }
  [[nodiscard]] Encoding encoding() const;
  [[nodiscard]] CharacterFormat character_format();
  std::uint32_t format_index();
  std::uint32_t paragraph_format_index();
  ///@}

  /// \name Words that change the text
  ///@{
  void put(TextView text);
  void put_character(std::int32_t c);
  void put_unicode(std::int32_t c);
  void put_field_symbol(const CharacterState& characters);
  void end_paragraph(std::int32_t);
  void end_filled_paragraph(std::int32_t);
  ///@}

  /// \name Words that change the format
  ///@{
  template <bool CharacterState::*Switch>
  void turn(std::int32_t on) {
    state_.characters.*Switch = on != 0;
  }
  template <class Edit>
  void edit_paragraph(Edit edit);
  template <std::int32_t ParagraphFormat::*Indent>
  void set_indent(std::int32_t twips);
  void reset_characters(std::int32_t);
  void set_font(std::int32_t number);
  void set_size(std::int32_t half_points);
  void set_color(std::int32_t number) { state_.characters.color = number; }
  void raise(std::int32_t half_points);
  void lower(std::int32_t half_points);
  void set_script(std::int32_t script) { state_.characters.script = static_cast<Script>(script); }
  void reset_paragraph(std::int32_t);
  void align(std::int32_t alignment);
  void set_tab_kind(std::int32_t kind) { tab_kind_ = static_cast<TabKind>(kind); }
  void add_tab(std::int32_t position);
  ///@}

  /// \name Words that declare
  ///@{
  void enter(std::int32_t destination);
  void set_page(std::int32_t page) { document_encoding_ = encoding_of_page(page); }
  void set_fallback_length(std::int32_t length);
  void set_default_font(std::int32_t number);
  void set_default_tab(std::int32_t twips);
  void set_font_charset(std::int32_t charset) { fonts_.set_charset(charset); }
  void set_font_page(std::int32_t page) { fonts_.set_page(page); }
  template <std::uint8_t Rgb::*Part>
  void set_color_part(std::int32_t value) {
    colors_.set<Part>(value);
  }
  void set_picture_kind(std::int32_t kind) { picture_.set_kind(static_cast<PictureKind>(kind)); }
  template <std::int32_t PictureReader::Sizes::*Size>
  void set_picture_size(std::int32_t value) {
    picture_.sizes.*Size = value;
  }
  ///@}

  Tokenizer tokens_;
  PairDecoder pairs_;
  DocumentBuilder builder_;
  FontTable fonts_;
  ColorTable colors_;
  PictureReader picture_;
  GroupStack groups_;
  GroupState state_;

  Encoding document_encoding_ = encoding_of_page(1252);
  std::int32_t default_font_ = 0;
  const std::shared_ptr<const ParagraphFormat> plain_paragraph_ = state_.paragraph;
  TabKind tab_kind_ = TabKind::left;
  Text field_instruction_;
  /// The document's length where the field's result began.
  std::size_t field_start_ = 0;

  /// Bytes of text that no other token has followed yet, since a character may be cut between tokens.
  std::string pending_;
  /// Characters still to leave out behind one in Unicode.
  std::int32_t fallback_left_ = 0;
  /// The group is to be passed over if its first word is not known.
  bool is_ignorable_ = false;
  bool is_finished_ = false;

  /// The states that were last looked up in the document, and what they were found to be there.
  std::optional<CharacterState> known_characters_;
  std::uint32_t known_format_ = 0;
  std::shared_ptr<const ParagraphFormat> known_paragraph_;
  std::uint32_t known_paragraph_format_ = 0;
};

}  // namespace tarnmill::rtf
