#include "script/played_person.h"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

namespace tarnmill {
namespace {

MessageBox box(MessageButtons buttons) { return {u"Go on?", u"Title", MessageIcon::question, buttons, 2}; }

struct PressRow {
  MessageButtons buttons;
  std::vector<Answer> queue;
  MessageResult pressed;
  bool complains;
};

TEST(PlayedPerson, PressesTheButtonThatTheQueueNames) {
  using B = MessageButtons;
  using R = MessageResult;
  const PressRow rows[] = {
      {B::ok, {}, R::ok, false},
      {B::ok, {u"yes"}, R::ok, false},
      {B::ok_cancel, {u"ok"}, R::ok, false},
      {B::ok_cancel, {R::cancel}, R::cancel, false},
      {B::yes_no, {u"yes"}, R::yes, false},
      {B::yes_no, {R::no}, R::no, false},
      {B::yes_no_cancel, {u"cancel"}, R::cancel, false},
      {B::ok_cancel, {}, R::cancel, false},
      {B::yes_no, {}, R::no, false},
      {B::yes_no_cancel, {}, R::cancel, false},
      {B::yes_no, {Cancelled{}}, R::no, false},
      {B::yes_no_cancel, {Cancelled{}}, R::cancel, false},
      {B::yes_no, {u"cancel"}, R::no, false},
      {B::yes_no, {u"ok"}, R::no, true},
      {B::yes_no_cancel, {u"perhaps"}, R::cancel, true},
      {B::ok_cancel, {Color{5}}, R::cancel, true},
  };
  for (const PressRow& row : rows) {
    PlayedPerson person;
    for (const Answer& each : row.queue) person.answer(each);
    EXPECT_EQ(person.message(box(row.buttons)), row.pressed);
    EXPECT_EQ(person.take_complaint().has_value(), row.complains);
    EXPECT_FALSE(person.take_complaint().has_value());
  }
}

TEST(PlayedPerson, AMessageWithOkAloneLeavesTheQueue) {
  PlayedPerson person;
  person.answer(u"yes");
  person.message(box(MessageButtons::ok));
  EXPECT_EQ(person.message(box(MessageButtons::yes_no)), MessageResult::yes);
}

TEST(PlayedPerson, RemembersAMessageAsItCame) {
  PlayedPerson person;
  person.message(box(MessageButtons::yes_no));
  ASSERT_EQ(person.dialogs().size(), 1U);
  const DialogShown& shown = person.dialogs().front();
  EXPECT_EQ(shown.kind, DialogShown::Kind::message);
  EXPECT_EQ(shown.title, u"Title");
  EXPECT_EQ(shown.text, u"Go on?");
  EXPECT_EQ(shown.icon, MessageIcon::question);
  EXPECT_EQ(shown.buttons, MessageButtons::yes_no);
  EXPECT_EQ(shown.default_button, 2);
  EXPECT_EQ(std::get<MessageResult>(shown.answer), MessageResult::no);
}

TEST(PlayedPerson, TypesIntoAnInputBox) {
  PlayedPerson person;
  person.answer(u"3.5");
  person.answer(Color{7});
  EXPECT_EQ(person.input({u"How many?", u"Count", {}}), u"3.5");
  EXPECT_EQ(person.input({}), u"7");
  EXPECT_EQ(person.input({}), std::nullopt);
  EXPECT_EQ(person.dialogs()[0].text, u"How many?");
  EXPECT_EQ(person.dialogs()[0].title, u"Count");
  EXPECT_EQ(std::get<Text>(person.dialogs()[0].answer), u"3.5");
  EXPECT_TRUE(std::holds_alternative<std::monostate>(person.dialogs()[2].answer));
}

TEST(PlayedPerson, ChoosesFiles) {
  PlayedPerson person;
  person.answer(u"/tmp/a.txt");
  const FileDialog save{FileDialog::Kind::save, u"Save", u"Text|*.txt", 1, 2, {}};
  EXPECT_EQ(person.choose_file(save), u"/tmp/a.txt");
  EXPECT_EQ(person.choose_file({}), std::nullopt);
  EXPECT_EQ(person.dialogs()[0].kind, DialogShown::Kind::save);
  EXPECT_EQ(person.dialogs()[0].filter, u"Text|*.txt");
  EXPECT_EQ(person.dialogs()[0].filter_index, 1);
  EXPECT_EQ(person.dialogs()[0].flags, 2);
  EXPECT_EQ(person.dialogs()[1].kind, DialogShown::Kind::open);
}

TEST(PlayedPerson, ChoosesAColor) {
  PlayedPerson person;
  person.answer(rgb(1, 2, 3));
  person.answer(u"red");
  EXPECT_EQ(person.choose_color({}), rgb(1, 2, 3));
  EXPECT_EQ(person.choose_color({}), std::nullopt);
  EXPECT_EQ(person.take_complaint(), "the answer queued for a colour dialog is none that it can take");
}

TEST(PlayedPerson, TheWordCancelRefusesAnyDialogThatTakesNoText) {
  PlayedPerson person;
  person.answer(u"cancel");
  person.answer(u"cancel");
  EXPECT_EQ(person.choose_color({}), std::nullopt);
  EXPECT_EQ(person.choose_font({}), std::nullopt);
  EXPECT_FALSE(person.take_complaint().has_value());
}

TEST(PlayedPerson, ChangesOnlyWhatItSaysOfAFont) {
  PlayedPerson person;
  FontAnswer answer;
  answer.size = 12.0;
  answer.italic = true;
  person.answer(answer);
  FontDialog dialog;
  dialog.font = {u"Arial", 8.25, true, false, false, false};
  dialog.color = 255;
  const auto choice = person.choose_font(dialog);
  ASSERT_TRUE(choice.has_value());
  EXPECT_EQ(choice->font, (Font{u"Arial", 12, true, true, false, false}));
  EXPECT_EQ(choice->color, 255);
  EXPECT_FALSE(person.choose_font(dialog).has_value());
}

TEST(PlayedPerson, ConfirmsThePrinterDialog) {
  PlayedPerson person;
  person.answer(u"ok");
  person.answer(Cancelled{});
  EXPECT_TRUE(person.set_up_printer({}));
  EXPECT_FALSE(person.set_up_printer({}));
  EXPECT_FALSE(person.set_up_printer({}));
  EXPECT_EQ(person.dialogs()[0].kind, DialogShown::Kind::printer);
  EXPECT_TRUE(std::holds_alternative<MessageResult>(person.dialogs()[0].answer));
  EXPECT_TRUE(std::holds_alternative<std::monostate>(person.dialogs()[1].answer));
  EXPECT_TRUE(std::holds_alternative<std::monostate>(person.dialogs()[2].answer));
}

TEST(PlayedPerson, ForgetsTheRecordAndTheQueue) {
  PlayedPerson person;
  person.answer(u"yes");
  person.message(box(MessageButtons::ok));
  person.forget();
  EXPECT_TRUE(person.dialogs().empty());
  EXPECT_EQ(person.message(box(MessageButtons::yes_no)), MessageResult::no);
}

}  // namespace
}  // namespace tarnmill
