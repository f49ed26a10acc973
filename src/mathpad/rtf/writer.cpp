#include "mathpad/rtf/writer.h"

#include <array>
#include <map>
#include <string_view>

#include "mathpad/rtf/writer_text.h"

namespace tarnmill::rtf {
namespace {

constexpr std::array<std::string_view, 4> alignment_words{"\\ql", "\\qr", "\\qc", "\\qj"};
constexpr std::array<std::string_view, 4> tab_words{"", "\\tqr", "\\tqc", "\\tqdec"};
constexpr std::array<std::string_view, 5> picture_words{"\\pngblip", "\\jpegblip", "\\dibitmap0",
                                                        "\\wmetafile8", "\\emfblip"};

template <std::size_t Count, class Enumeration>
std::string_view word_of(const std::array<std::string_view, Count>& words, Enumeration value) {
  return words.at(static_cast<std::size_t>(value));
}

std::string numbered(std::string_view word, std::int64_t number) {
  return std::string{word} + std::to_string(number);
}

class Writer {
 public:
  explicit Writer(const Document& document) : document_{document} {}

  std::string write() {
    begin();
    for (const Paragraph& paragraph : document_.paragraphs) write_paragraph(paragraph);
    return std::move(out_) + "}\r\n";
  }

 private:
  // Formats are put into words once each, however often they are used.
  void begin() {
    for (const CharacterFormat& format : document_.formats) format_words_.push_back(words_of(format));
    for (const ParagraphFormat& format : document_.paragraph_formats) {
      paragraph_words_.push_back(words_of(format));
    }
    out_.reserve(document_.text.size() + document_.text.size() / 4);
    out_ += R"({\rtf1\ansi\ansicpg1252\uc1\deff0)";
    out_ += numbered("\\deftab", document_.default_tab);
    write_fonts();
    write_colors();
    out_ += "\r\n";
  }

  void write_fonts() {
    out_ += "{\\fonttbl";
    for (std::size_t i = 0; i < document_.fonts.size(); ++i) {
      out_ += numbered("{\\f", static_cast<std::int64_t>(i)) + "\\fnil\\fcharset0 ";
      write_text(document_.fonts[i], out_);
      out_ += ";}";
    }
    out_ += '}';
  }

  // The first entry has no parts: it is the colour of text that was given none.
  void write_colors() {
    out_ += "\r\n{\\colortbl ;";
    for (const Rgb& color : colors_) {
      out_ += numbered("\\red", color.red) + numbered("\\green", color.green) +
              numbered("\\blue", color.blue) + ';';
    }
    out_ += '}';
  }

  std::int64_t color_number(const Rgb& color) {
    const auto [found, is_new] = color_numbers_.try_emplace(color, colors_.size() + 1);
    if (is_new) colors_.push_back(color);
    return static_cast<std::int64_t>(found->second);
  }

  std::string words_of(const CharacterFormat& format) {
    std::string words = "\\plain";
    if (format.font != none) words += numbered("\\f", format.font);
    words += numbered("\\fs", format.half_points);
    if (format.color) words += numbered("\\cf", color_number(*format.color));
    if (format.bold) words += "\\b";
    if (format.italic) words += "\\i";
    if (format.underline) words += "\\ul";
    if (format.strike) words += "\\strike";
    if (format.rise > 0) words += numbered("\\up", format.rise);
    if (format.rise < 0) words += numbered("\\dn", -std::int64_t{format.rise});
    return words + ' ';
  }

  static std::string words_of(const ParagraphFormat& format) {
    std::string words = "\\pard";
    words += word_of(alignment_words, format.alignment);
    if (format.left_indent != 0) words += numbered("\\li", format.left_indent);
    if (format.right_indent != 0) words += numbered("\\ri", format.right_indent);
    if (format.first_indent != 0) words += numbered("\\fi", format.first_indent);
    for (const TabStop& tab : format.tabs) {
      words += word_of(tab_words, tab.kind);
      words += numbered("\\tx", tab.position);
    }
    return words + ' ';
  }

  void write_paragraph(const Paragraph& paragraph) {
    out_ += paragraph_words_[paragraph.format];
    TextView text = document_.text_of(paragraph);
    for (const TextRun& run : document_.runs_of(paragraph)) {
      out_ += format_words_[run.format];
      if (run.picture == none) {
        write_text(text.substr(0, run.length), out_);
      } else {
        write_picture(document_.pictures[run.picture]);
      }
      text.remove_prefix(run.length);
    }
    const bool shows_end_format =
        paragraph.run_count > 0 && document_.runs_of(paragraph).back().format == paragraph.end_format;
    if (!shows_end_format) out_ += format_words_[paragraph.end_format];
    const bool is_open = document_.open_end && &paragraph == &document_.paragraphs.back();
    out_ += is_open ? "\r\n" : "\\par\r\n";
  }

  // Some readers go by the size in pixels (of a metafile in hundredths of a millimetre), others by twips.
  void write_picture(const Picture& picture) {
    const bool is_metafile = picture.kind == PictureKind::wmf || picture.kind == PictureKind::emf;
    const auto own = [is_metafile](std::int64_t twips) {
      return is_metafile ? (twips * 2540 + 720) / 1440 : (twips + 7) / 15;
    };
    out_ += "{\\pict";
    out_ += word_of(picture_words, picture.kind);
    if (picture.width > 0) {
      out_ += numbered("\\picw", own(picture.width)) + numbered("\\picwgoal", picture.width);
    }
    if (picture.height > 0) {
      out_ += numbered("\\pich", own(picture.height)) + numbered("\\pichgoal", picture.height);
    }
    if (picture.scale_x != 100) out_ += numbered("\\picscalex", picture.scale_x);
    if (picture.scale_y != 100) out_ += numbered("\\picscaley", picture.scale_y);
    out_ += "\r\n";
    write_hex(picture.bytes, out_);
    out_ += '}';
  }

  const Document& document_;
  std::string out_;
  std::vector<Rgb> colors_;
  std::map<Rgb, std::size_t> color_numbers_;
  std::vector<std::string> format_words_;
  std::vector<std::string> paragraph_words_;
};

}  // namespace

std::string write(const Document& document) { return Writer{document}.write(); }

}  // namespace tarnmill::rtf
