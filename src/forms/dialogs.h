#pragma once

#include <cstdint>
#include <optional>

#include "engine/text.h"
#include "forms/color.h"
#include "forms/font.h"

namespace tarnmill {

enum class MessageIcon { none, critical, question, exclamation, information };
enum class MessageButtons { ok, ok_cancel, yes_no, yes_no_cancel };
enum class MessageResult { ok, cancel, yes, no };

/// A message box: it stands until a person has pressed one of its buttons.
struct MessageBox {
  Text text;
  Text title = u"Tarnmill";
  MessageIcon icon = MessageIcon::none;
  MessageButtons buttons = MessageButtons::ok;
  /// The button that Enter presses, 1 for the first.
  int default_button = 1;
};

/// A box that asks for one line of text.
struct InputBox {
  Text prompt;
  Text title = u"Tarnmill";
  Text initial;
};

/// A dialog for a file to open or to save under. Filters are caption and pattern in turn, parted by "|";
/// the index counts from 1.
struct FileDialog {
  enum class Kind { open, save };
  Kind kind = Kind::open;
  Text title;
  Text filter;
  int filter_index = 0;
  std::int32_t flags = 0;
  Text file_name;
};

struct ColorDialog {
  Text title;
  std::int32_t flags = 0;
  Color color = 0;
};

struct FontDialog {
  Text title;
  std::int32_t flags = 0;
  Font font;
  Color color = 0;
};

/// What a font dialog gives: the font, and the colour where the dialog offered one.
struct FontChoice {
  Font font;
  Color color = 0;
};

struct PrinterDialog {
  std::int32_t flags = 0;
};

}  // namespace tarnmill
