#include "mathpad/rtf/reader.h"

#include <algorithm>
#include <utility>

#include "mathpad/rtf/reader_machine.h"

namespace tarnmill::rtf {

bool is_rtf(std::string_view bytes) { return bytes.starts_with("{\\rtf"); }

Document read(std::string_view bytes, PairDecoder pairs) { return Reader{bytes, pairs}.read(); }

Document Reader::read() && {
  while (!is_finished_) handle(tokens_.next());
  flush();
  leave(state_);
  if (builder_.is_unended()) builder_.leave_open(paragraph_format_index(), format_index());
  return std::move(builder_).finish();
}

void Reader::handle(const Token& token) {
  switch (token.kind) {
    case Token::Kind::open_group:
      return open_group();
    case Token::Kind::close_group:
      return close_group();
    case Token::Kind::control:
      return handle_control(token);
    case Token::Kind::text:
      return take_bytes(token.text);
    case Token::Kind::end:
      is_finished_ = true;
  }
}

void Reader::open_group() {
  flush();
  fallback_left_ = 0;
  is_ignorable_ = false;
  groups_.push(state_);
}

void Reader::close_group() {
  flush();
  fallback_left_ = 0;
  is_ignorable_ = false;
  // The document's own group keeps its state, in which the last paragraph ends.
  if (groups_.depth() == 1) is_finished_ = true;
  if (groups_.depth() <= 1) return;
  const GroupState left = std::exchange(state_, groups_.pop());
  if (left.destination != state_.destination) leave(left);
}

void Reader::leave(const GroupState& left) {
  switch (left.destination) {
    case Destination::picture: {
      auto picture = std::move(picture_).finish();
      picture_ = {};
      if (picture && !left.characters.hidden) builder_.append_picture(std::move(*picture), format_index());
      return;
    }
    case Destination::font_table:
      return fonts_.end();
    case Destination::field_result:
      return put_field_symbol(left.characters);
    default:
      return;
  }
}

void Reader::handle_control(const Token& token) {
  // What \bin counts is no RTF, wherever it stands.
  if (token.text == "bin") return take_binary(token.number.value_or(0));
  if (token.text == "u") {
    fallback_left_ = 0;
  } else if (token.text != "'" && is_fallback()) {
    return;
  }
  if (token.text == "'") {
    if (token.number) {
      const char byte = static_cast<char>(*token.number);
      take_bytes({&byte, 1});
    }
    return;
  }
  flush();
  if (state_.destination != Destination::skipped) act(token);
}

void Reader::act(const Token& token) {
  const bool is_ignorable = std::exchange(is_ignorable_, token.text == "*");
  if (is_ignorable_) return;
  const ControlWord* known = find_word(token.text);
  if (is_ignorable && (known == nullptr || known->act != &Reader::enter)) {
    state_.destination = Destination::skipped;
  } else if (known != nullptr) {
    (this->*known->act)(known->takes_number ? token.number.value_or(known->given) : known->given);
  }
}

bool Reader::is_fallback() {
  if (fallback_left_ == 0) return false;
  --fallback_left_;
  return true;
}

void Reader::take_bytes(std::string_view bytes) {
  const auto left_out = std::min(bytes.size(), static_cast<std::size_t>(fallback_left_));
  fallback_left_ -= static_cast<std::int32_t>(left_out);
  bytes.remove_prefix(left_out);
  switch (state_.destination) {
    case Destination::picture:
      return picture_.add_hex(bytes);
    case Destination::color_table:
      return colors_.add_bytes(bytes);
    case Destination::frame:
    case Destination::skipped:
      return;
    default:
      pending_ += bytes;
  }
}

void Reader::take_binary(std::int32_t length) {
  const std::string_view bytes = tokens_.take(static_cast<std::size_t>(std::max(length, 0)));
  if (!is_fallback() && state_.destination == Destination::picture) picture_.add_binary(bytes);
}

void Reader::flush() {
  if (pending_.empty()) return;
  if (state_.destination == Destination::font_table) {
    fonts_.add_bytes(pending_, document_encoding_);
  } else {
    Text text;
    decode(pending_, encoding(), text, pairs_);
    put(text);
  }
  pending_.clear();
}

}  // namespace tarnmill::rtf
