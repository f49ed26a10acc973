#include <gtest/gtest.h>

#include "mathpad/rtf/document_builder.h"

namespace tarnmill::rtf {
namespace {

TEST(RtfBuilder, GivesEqualsTheSameIndex) {
  DocumentBuilder builder;
  EXPECT_EQ(builder.font(u"Tahoma"), 0U);
  EXPECT_EQ(builder.font(u"Arial"), 1U);
  EXPECT_EQ(builder.font(u"Tahoma"), 0U);
  EXPECT_EQ(builder.format({.bold = true}), 0U);
  EXPECT_EQ(builder.format({.italic = true}), 1U);
  EXPECT_EQ(builder.format({.bold = true}), 0U);
  EXPECT_EQ(builder.paragraph_format({.tabs = {{720}}}), 0U);
  EXPECT_EQ(builder.paragraph_format({}), 1U);
  EXPECT_EQ(builder.paragraph_format({.tabs = {{720}}}), 0U);
}

TEST(RtfBuilder, KeepsOfAFontsNameWhatAFontTableCanHold) {
  DocumentBuilder builder;
  EXPECT_EQ(builder.font(u" \tTa;homa "), 0U);
  EXPECT_EQ(builder.font(u"Tahoma"), 0U);
  for (const TextView nameless : {u"", u" ", u";", u"\u0001; "}) EXPECT_EQ(builder.font(nameless), none);
  EXPECT_EQ(std::move(builder).finish().fonts, std::vector<Text>{u"Tahoma"});
}

TEST(RtfBuilder, CutsTextIntoParagraphsAndRuns) {
  DocumentBuilder builder;
  const std::uint32_t plain = builder.format({});
  const std::uint32_t bold = builder.format({.bold = true});
  const std::uint32_t left = builder.paragraph_format({});
  builder.append(u"ab", plain);
  builder.append(u"c", bold);
  builder.append(u"", plain);
  builder.append(u"d", bold);
  builder.append_picture({}, bold);
  builder.append(u"e", bold);
  builder.end_paragraph(left, bold);
  builder.end_paragraph(left, plain);
  builder.append(u"f", plain);
  EXPECT_TRUE(builder.is_unended());
  builder.leave_open(left, plain);
  const Document document = std::move(builder).finish();
  EXPECT_EQ(document.text, u"abcd\uFFFCef");
  EXPECT_EQ(document.runs,
            (std::vector<TextRun>{{2, plain}, {2, bold}, {1, bold, 0}, {1, bold}, {1, plain}}));
  EXPECT_EQ(document.paragraphs,
            (std::vector<Paragraph>{
                {0, 6, 0, 4, left, bold}, {6, 0, 4, 0, left, plain}, {6, 1, 4, 1, left, plain}}));
  EXPECT_EQ(document.text_of(document.paragraphs[2]), u"f");
  EXPECT_EQ(document.runs_of(document.paragraphs[0]).size(), 4U);
  EXPECT_TRUE(document.open_end);
}

TEST(RtfBuilder, KeepsOutWhatWouldMeanSomethingElse) {
  DocumentBuilder builder;
  builder.append(Text{u"\0\u0001a\tb\r\n\u007F\u2029\u2028\uFFFC\uFDD1\uFFFE\uFFFFc\uFDF0", 16},
                 builder.format({}));
  builder.end_paragraph(builder.paragraph_format({}), 0);
  EXPECT_EQ(std::move(builder).finish().text, u"\u0001a\tb\u007F\u2028\u2028\uFFFD\uFFFD\uFFFD\uFFFDc\uFDF0");
}

TEST(RtfBuilder, IsUnendedWhileItHasNoParagraph) {
  DocumentBuilder builder;
  EXPECT_TRUE(builder.is_unended());
  builder.end_paragraph(builder.paragraph_format({}), builder.format({}));
  EXPECT_FALSE(builder.is_unended());
}

}  // namespace
}  // namespace tarnmill::rtf
