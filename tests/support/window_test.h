#pragma once

#include <gtest/gtest.h>

#include <string>

#include "support/message_expectation.h"
#include "support/test_program.h"

namespace tarnmill {

/// The program with one window of it, and the words in which tests tell what was shown.
template <class W>
class WindowTest : public testing::Test {
 protected:
  [[nodiscard]] W& form() { return program.window<W>(); }

  /// Runs something as the event loop does; it must not end the program.
  template <class Action>
  void act(Action&& action) {
    EXPECT_TRUE(program.bench.enter(action));
  }
  /// Clicks a control of the window.
  template <class C>
  void click(C W::*control) {
    act([&] { (form().*control).press(); });
  }
  /// The one message shown since the last call; fails when there is none or more.
  void expect_message(const Text& text, MessageIcon icon = MessageIcon::none, const Text& title = u"Tarnmill",
                      MessageButtons buttons = MessageButtons::ok, int default_button = 1) {
    expect_one_message(program.desk, text, icon, title, buttons, default_button);
  }
  void expect_no_message() {
    EXPECT_TRUE(program.desk.dialogs().empty());
    EXPECT_EQ(program.bench.MousePointer(), 0);
  }

  TestProgram program;
};

}  // namespace tarnmill
