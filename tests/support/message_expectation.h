#pragma once

#include <gtest/gtest.h>

#include "script/scripted_desk.h"

namespace tarnmill {

/// The one message shown since the record was emptied last, which this does again; fails when there is none
/// or more.
inline void expect_one_message(ScriptedDesk& desk, const Text& text, MessageIcon icon = MessageIcon::none,
                               const Text& title = u"Tarnmill", MessageButtons buttons = MessageButtons::ok,
                               int default_button = 1) {
  ASSERT_EQ(desk.dialogs().size(), 1U) << to_utf8(text);
  const DialogShown& shown = desk.dialogs().front();
  EXPECT_EQ(to_utf8(shown.text), to_utf8(text));
  EXPECT_EQ(shown.icon, icon);
  EXPECT_EQ(to_utf8(shown.title), to_utf8(title));
  EXPECT_EQ(shown.buttons, buttons);
  EXPECT_EQ(shown.default_button, default_button);
  desk.forget();
}

}  // namespace tarnmill
