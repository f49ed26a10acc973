#include <random>

#include "mathpad/rtf/document_builder.h"
#include "mathpad/rtf/writer.h"
#include "rtf_support.h"

namespace tarnmill::rtf {
namespace {

// Documents of everything that one can hold, the same ones for the same seed.
class RandomDocument {
 public:
  explicit RandomDocument(std::uint32_t seed) : random_{seed} {}

  Document make() {
    for (int paragraphs = below(6); paragraphs >= 0; --paragraphs) {
      for (int runs = below(5); runs > 0; --runs) append_run();
      builder_.end_paragraph(builder_.paragraph_format(paragraph_format()), builder_.format(format()));
    }
    if (below(2) == 0) {
      builder_.append(u"open", builder_.format(format()));
      builder_.leave_open(builder_.paragraph_format(paragraph_format()), builder_.format(format()));
    }
    builder_.set_default_tab(1 + below(1000));
    return std::move(builder_).finish();
  }

 private:
  int below(int limit) { return std::uniform_int_distribution{0, limit - 1}(random_); }

  void append_run() {
    const std::uint32_t index = builder_.format(format());
    if (below(6) == 0) {
      builder_.append_picture(
          {.kind = static_cast<PictureKind>(below(5)),
           .bytes = std::string(static_cast<std::size_t>(1 + below(200)), static_cast<char>(below(256))),
           .width = below(4000),
           .height = below(4000),
           .scale_x = 1 + below(300),
           .scale_y = 1 + below(300)},
          index);
      return;
    }
    Text text;
    for (int length = 1 + below(20); length > 0; --length) {
      text +=
          below(3) == 0 ? static_cast<char16_t>(below(0x10000)) : static_cast<char16_t>(0x20 + below(0x60));
    }
    builder_.append(text + u"end", index);
  }

  CharacterFormat format() {
    static constexpr TextView names[]{u"Tahoma", u"Times New Roman", u"Š;ć π", u"x{}\\"};
    return {.font = builder_.font(names[below(4)]),
            .half_points = 1 + below(200),
            .rise = below(40) - 20,
            .color = below(2) == 0 ? std::optional<Rgb>{} : Rgb{static_cast<std::uint8_t>(below(256)), 7, 9},
            .bold = below(2) == 0,
            .italic = below(2) == 0,
            .underline = below(2) == 0,
            .strike = below(2) == 0};
  }

  ParagraphFormat paragraph_format() {
    ParagraphFormat format{.alignment = static_cast<Alignment>(below(4)),
                           .left_indent = below(1000) - 500,
                           .right_indent = below(1000),
                           .first_indent = below(1000) - 500};
    for (int tabs = 0, position = 0; tabs < below(5); ++tabs) {
      position += 1 + below(1000);
      format.tabs.push_back({position, static_cast<TabKind>(below(4))});
    }
    return format;
  }

  std::mt19937 random_;
  DocumentBuilder builder_;
};

// Numbers of formats depend on which one was met first, so formats are compared for what they say.
void expect_same_look(const Document& one, const Document& other) {
  ASSERT_EQ(one.text, other.text);
  ASSERT_EQ(one.paragraphs.size(), other.paragraphs.size());
  ASSERT_EQ(one.runs.size(), other.runs.size());
  EXPECT_EQ(one.pictures, other.pictures);
  EXPECT_EQ(one.default_tab, other.default_tab);
  EXPECT_EQ(one.open_end, other.open_end);
  const auto named = [](const Document& document, std::uint32_t index) {
    CharacterFormat format = document.formats.at(index);
    const Text name = document.fonts.at(format.font);
    format.font = none;
    return std::pair{name, format};
  };
  for (std::size_t i = 0; i < one.runs.size(); ++i) {
    EXPECT_EQ(one.runs[i].length, other.runs[i].length);
    EXPECT_EQ(one.runs[i].picture, other.runs[i].picture);
    EXPECT_EQ(named(one, one.runs[i].format), named(other, other.runs[i].format));
  }
  for (std::size_t i = 0; i < one.paragraphs.size(); ++i) {
    EXPECT_EQ(one.paragraphs[i].length, other.paragraphs[i].length);
    EXPECT_EQ(paragraph_format_of(one, i), paragraph_format_of(other, i));
    EXPECT_EQ(named(one, one.paragraphs[i].end_format), named(other, other.paragraphs[i].end_format));
  }
}

TEST(RtfRoundTrip, KeepsEverythingThatADocumentHolds) {
  for (std::uint32_t seed = 0; seed < 300; ++seed) {
    SCOPED_TRACE(seed);
    const Document document = RandomDocument{seed}.make();
    expect_same_look(document, read(write(document)));
  }
}

TEST(RtfRoundTrip, EveryCodeUnitThatTextCanHoldComesBack) {
  Text text;
  for (char32_t c = 0x20; c <= 0xFFFD; ++c) text += static_cast<char16_t>(c);
  DocumentBuilder builder;
  builder.append(text, builder.format({}));
  builder.end_paragraph(builder.paragraph_format({}), 0);
  const Document document = std::move(builder).finish();
  EXPECT_EQ(read(write(document)), document);
}

TEST(RtfRoundTrip, ADocumentWithoutFontsStaysWithout) {
  const Document document = read(R"({\rtf1 a\b b\par})");
  EXPECT_EQ(read(write(document)), document);
}

TEST(RtfRoundTrip, TextWithoutAFontTakesTheFirst) {
  const Document document = read(write(read(R"({\rtf1\deff9{\fonttbl{\f0 Arial;}}a\f0 b})")));
  EXPECT_EQ(font_of(document, u"a"), "Arial");
}

TEST(RtfRoundTrip, AnEmptyLineKeepsItsSize) {
  const Document document = read(write(read_body(R"(\fs20 a\par\fs60\par\fs20 b\par)")));
  EXPECT_EQ(document.formats.at(document.paragraphs.at(1).end_format).half_points, 60);
}

}  // namespace
}  // namespace tarnmill::rtf
