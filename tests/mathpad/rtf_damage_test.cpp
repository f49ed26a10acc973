#include <random>

#include "mathpad/rtf/writer.h"
#include "rtf_support.h"

namespace tarnmill::rtf {
namespace {

// Whatever was read can be written, and reads as the same text again.
void expect_sound(const Document& document) {
  std::size_t runs = 0;
  std::size_t length = 0;
  for (const Paragraph& paragraph : document.paragraphs) {
    EXPECT_EQ(paragraph.start, length);
    EXPECT_EQ(paragraph.first_run, runs);
    for (const TextRun& run : document.runs_of(paragraph)) {
      length += run.length;
      EXPECT_LT(run.format, document.formats.size());
    }
    runs += paragraph.run_count;
    EXPECT_EQ(paragraph.start + paragraph.length, length);
  }
  EXPECT_EQ(runs, document.runs.size());
  EXPECT_EQ(length, document.text.size());
  EXPECT_EQ(read(write(document)).text, document.text);
}

std::vector<std::string> samples() {
  std::vector<std::string> files;
  for (const char* name : {"formats.rtf", "languages.rtf", "pictures.rtf", "structure.rtf"}) {
    files.push_back(data_file(name));
  }
  return files;
}

TEST(RtfDamage, ATruncatedFileKeepsTheTextBefore) {
  const std::string file = file_of(R"(one\par{\b two}\par three)");
  const std::string whole = "one|two|three";
  for (std::size_t length = file.find("two") + 3; length < file.size(); ++length) {
    const std::string text = text_of(read(file.substr(0, length)));
    EXPECT_TRUE(text.starts_with("one|two")) << length << ": " << text;
    EXPECT_TRUE(whole.starts_with(text)) << length << ": " << text;
  }
}

TEST(RtfDamage, FilesOfOthersCutAnywhereAreSound) {
  for (const std::string& file : samples()) {
    for (std::size_t length = 0; length < file.size(); length += 7)
      expect_sound(read(file.substr(0, length)));
  }
}

TEST(RtfDamage, OfUnbalancedBracesTheTextBeforeIsKept) {
  EXPECT_EQ(text_of(read("{\\rtf1 a{b{c")), "abc");
  EXPECT_EQ(text_of(read("{\\rtf1 a}}}}b}")), "a");
  EXPECT_EQ(text_of(read("}}}{\\rtf1 a}")), "a");
  EXPECT_EQ(text_of(read("a}b")), "ab");
  EXPECT_EQ(text_of(read("{\\rtf1{\\fonttbl{\\f0 A;}}b{\\stylesheet c")), "b");
}

TEST(RtfDamage, TextThatIsNoRtfIsReadAsText) { EXPECT_EQ(text_of(read("no RTF at all")), "no RTF at all"); }

std::string times(std::size_t count, std::string_view part) {
  std::string all;
  for (std::size_t i = 0; i < count; ++i) all += part;
  return all;
}

TEST(RtfDamage, AHundredThousandGroupsDeepTheTextIsRead) {
  constexpr std::size_t deep = 100'000;
  for (const std::string_view opened :
       {"{", "{\\b", "{\\i\\b0", "{\\li5", "{\\field{\\fldrslt ", "{\\*\\shppict"}) {
    const std::size_t braces = opened.find_last_of('{') == 0 ? deep : 2 * deep;
    const std::string file = "{\\rtf1 a" + times(deep, opened) + "\r\nb" + times(braces, "}") + "c}";
    EXPECT_EQ(text_of(read(file)), "abc") << opened;
    EXPECT_EQ(text_of(read("{\\rtf1 a" + times(deep, opened) + "\r\nb")), "ab") << opened;
  }
}

TEST(RtfDamage, DeepGroupsThatArePassedOverEndWhereTheyEnd) {
  constexpr std::size_t deep = 100'000;
  EXPECT_EQ(text_of(read("{\\rtf1 a{\\*\\x" + times(deep, "{\\b") + times(deep, "}") + "}b}")), "ab");
}

TEST(RtfDamage, FormatsComeBackFromTheDeep) {
  const Document document = read("{\\rtf1\\b0 " + times(1000, "{{\\b") + "\r\na" + times(2000, "}") + "b}");
  EXPECT_TRUE(format_of(document, u"a").bold);
  EXPECT_FALSE(format_of(document, u"b").bold);
}

TEST(RtfDamage, HugeNumbersAreCut) {
  for (const std::string_view word :
       {"u",   "uc",       "fs",   "f",      "cf",      "up",      "dn",   "li",       "ri",
        "fi",  "tx",       "deff", "deftab", "ansicpg", "bin0\\v", "picw", "picwgoal", "picscalex",
        "red", "fcharset", "cpg",  "b",      "super",   "par",     "tab",  "unheard"}) {
    for (const std::string_view number :
         {"-2147483648", "2147483647", "-99999999999999999999", "99999999999999999999"}) {
      expect_sound(read_body(joined({"a\\", word, number, R"( b{\pict\pngblip\)", word, number, " 00}c"})));
    }
  }
}

TEST(RtfDamage, AHugeFallbackLengthEndsWithItsGroup) {
  EXPECT_EQ(text_of(read_body("{\\uc2147483647\\u960 abc}d\\par e")), "πd|e");
}

TEST(RtfDamage, BytesAtRandomAreSound) {
  std::mt19937 random{1};
  std::uniform_int_distribution byte{0, 255};
  for (int i = 0; i < 300; ++i) {
    std::string bytes = i % 2 == 0 ? "{\\rtf1 " : "";
    for (int length = 0; length < 2000; ++length) bytes += static_cast<char>(byte(random));
    expect_sound(read(bytes));
  }
}

// Bytes changed, left out, doubled and moved, most of them to what means something in RTF.
void damage(std::string& bytes, std::mt19937& random) {
  constexpr std::string_view signs = "{}\\'*;-019abu \r\n\xE4";
  const auto below = [&random](std::size_t limit) {
    return std::uniform_int_distribution<std::size_t>{0, limit - 1}(random);
  };
  for (std::size_t count = 1 + below(20); count > 0 && bytes.size() > 64; --count) {
    const std::size_t place = below(bytes.size());
    switch (below(4)) {
      case 0:
        bytes[place] = signs[below(signs.size())];
        break;
      case 1:
        bytes.erase(place, below(32));
        break;
      case 2:
        bytes.insert(place, bytes.substr(below(bytes.size()), below(64)));
        break;
      default:
        bytes[place] = static_cast<char>(below(256));
    }
  }
}

TEST(RtfDamage, DamagedFilesAreSound) {
  std::mt19937 random{2};
  for (const std::string& file : samples()) {
    for (int i = 0; i < 250; ++i) {
      std::string bytes = file;
      damage(bytes, random);
      expect_sound(read(bytes));
    }
  }
}

}  // namespace
}  // namespace tarnmill::rtf
