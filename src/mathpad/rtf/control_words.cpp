#include <algorithm>
#include <array>

#include "mathpad/rtf/reader_machine.h"

namespace tarnmill::rtf {
namespace {

template <class Enumeration>
constexpr std::int32_t number_of(Enumeration value) {
  return static_cast<std::int32_t>(value);
}

}  // namespace

/// The control words that mean something here, by what they are about.
struct Reader::Vocabulary {
  static constexpr std::int32_t skipped = number_of(Destination::skipped);
  static constexpr std::int32_t frame = number_of(Destination::frame);
  static constexpr std::int32_t body = number_of(Destination::body);
  static constexpr auto words = std::to_array<ControlWord>({
      // Tables and code pages of the file.
      {"fonttbl", &Reader::enter, number_of(Destination::font_table)},
      {"colortbl", &Reader::enter, number_of(Destination::color_table)},
      {"ansi", &Reader::set_page, 1252},
      {"mac", &Reader::set_page, 10000},
      {"pc", &Reader::set_page, 437},
      {"pca", &Reader::set_page, 850},
      {"ansicpg", &Reader::set_page, 1252, true},
      {"uc", &Reader::set_fallback_length, 1, true},
      {"deff", &Reader::set_default_font, 0, true},
      {"deftab", &Reader::set_default_tab, 720, true},
      {"fcharset", &Reader::set_font_charset, 0, true},
      {"cpg", &Reader::set_font_page, 1252, true},
      {"red", &Reader::set_color_part<&Rgb::red>, 0, true},
      {"green", &Reader::set_color_part<&Rgb::green>, 0, true},
      {"blue", &Reader::set_color_part<&Rgb::blue>, 0, true},

      // Groups with text that is no part of the document's.
      {"annotation", &Reader::enter, skipped},
      {"atnauthor", &Reader::enter, skipped},
      {"atnid", &Reader::enter, skipped},
      {"colorschememapping", &Reader::enter, skipped},
      {"filetbl", &Reader::enter, skipped},
      {"footer", &Reader::enter, skipped},
      {"footerf", &Reader::enter, skipped},
      {"footerl", &Reader::enter, skipped},
      {"footerr", &Reader::enter, skipped},
      {"footnote", &Reader::enter, skipped},
      {"ftncn", &Reader::enter, skipped},
      {"ftnsep", &Reader::enter, skipped},
      {"ftnsepc", &Reader::enter, skipped},
      {"generator", &Reader::enter, skipped},
      {"header", &Reader::enter, skipped},
      {"headerf", &Reader::enter, skipped},
      {"headerl", &Reader::enter, skipped},
      {"headerr", &Reader::enter, skipped},
      {"info", &Reader::enter, skipped},
      {"listoverridetable", &Reader::enter, skipped},
      {"listtable", &Reader::enter, skipped},
      {"nonshppict", &Reader::enter, skipped},
      {"objclass", &Reader::enter, skipped},
      {"objdata", &Reader::enter, skipped},
      {"objname", &Reader::enter, skipped},
      {"pntxta", &Reader::enter, skipped},
      {"pntxtb", &Reader::enter, skipped},
      {"private", &Reader::enter, skipped},
      {"revtbl", &Reader::enter, skipped},
      {"rxe", &Reader::enter, skipped},
      {"shprslt", &Reader::enter, skipped},
      {"stylesheet", &Reader::enter, skipped},
      {"tc", &Reader::enter, skipped},
      {"template", &Reader::enter, skipped},
      {"themedata", &Reader::enter, skipped},
      {"txe", &Reader::enter, skipped},
      {"xe", &Reader::enter, skipped},

      // Groups in which text or pictures of the document stand.
      {"fldinst", &Reader::enter, number_of(Destination::field_instruction)},
      {"fldrslt", &Reader::enter, number_of(Destination::field_result)},
      {"object", &Reader::enter, frame},
      {"result", &Reader::enter, body},
      {"shp", &Reader::enter, frame},
      {"shpinst", &Reader::enter, frame},
      {"shppict", &Reader::enter, body},
      {"shptxt", &Reader::enter, body},
      {"listtext", &Reader::enter, body},
      {"pntext", &Reader::enter, body},

      // Pictures.
      {"pict", &Reader::enter, number_of(Destination::picture)},
      {"pngblip", &Reader::set_picture_kind, number_of(PictureKind::png)},
      {"jpegblip", &Reader::set_picture_kind, number_of(PictureKind::jpeg)},
      {"dibitmap", &Reader::set_picture_kind, number_of(PictureKind::dib)},
      {"wmetafile", &Reader::set_picture_kind, number_of(PictureKind::wmf)},
      {"emfblip", &Reader::set_picture_kind, number_of(PictureKind::emf)},
      {"picw", &Reader::set_picture_size<&PictureReader::Sizes::own_width>, 0, true},
      {"pich", &Reader::set_picture_size<&PictureReader::Sizes::own_height>, 0, true},
      {"picwgoal", &Reader::set_picture_size<&PictureReader::Sizes::goal_width>, 0, true},
      {"pichgoal", &Reader::set_picture_size<&PictureReader::Sizes::goal_height>, 0, true},
      {"picscalex", &Reader::set_picture_size<&PictureReader::Sizes::scale_x>, 100, true},
      {"picscaley", &Reader::set_picture_size<&PictureReader::Sizes::scale_y>, 100, true},

      // Characters' format.
      {"plain", &Reader::reset_characters},
      {"f", &Reader::set_font, 0, true},
      {"fs", &Reader::set_size, 24, true},
      {"cf", &Reader::set_color, 0, true},
      {"b", &Reader::turn<&CharacterState::bold>, 1, true},
      {"i", &Reader::turn<&CharacterState::italic>, 1, true},
      {"v", &Reader::turn<&CharacterState::hidden>, 1, true},
      {"strike", &Reader::turn<&CharacterState::strike>, 1, true},
      {"striked", &Reader::turn<&CharacterState::strike>, 1, true},
      {"ul", &Reader::turn<&CharacterState::underline>, 1, true},
      {"uld", &Reader::turn<&CharacterState::underline>, 1, true},
      {"uldash", &Reader::turn<&CharacterState::underline>, 1, true},
      {"uldashd", &Reader::turn<&CharacterState::underline>, 1, true},
      {"uldashdd", &Reader::turn<&CharacterState::underline>, 1, true},
      {"uldb", &Reader::turn<&CharacterState::underline>, 1, true},
      {"ulhwave", &Reader::turn<&CharacterState::underline>, 1, true},
      {"ulldash", &Reader::turn<&CharacterState::underline>, 1, true},
      {"ulth", &Reader::turn<&CharacterState::underline>, 1, true},
      {"ulthd", &Reader::turn<&CharacterState::underline>, 1, true},
      {"ulthdash", &Reader::turn<&CharacterState::underline>, 1, true},
      {"ulthdashd", &Reader::turn<&CharacterState::underline>, 1, true},
      {"ulthdashdd", &Reader::turn<&CharacterState::underline>, 1, true},
      {"ulthldash", &Reader::turn<&CharacterState::underline>, 1, true},
      {"ululdbwave", &Reader::turn<&CharacterState::underline>, 1, true},
      {"ulw", &Reader::turn<&CharacterState::underline>, 1, true},
      {"ulwave", &Reader::turn<&CharacterState::underline>, 1, true},
      {"ulnone", &Reader::turn<&CharacterState::underline>, 0},
      {"up", &Reader::raise, 6, true},
      {"dn", &Reader::lower, 6, true},
      {"super", &Reader::set_script, number_of(Script::superscript)},
      {"sub", &Reader::set_script, number_of(Script::subscript)},
      {"nosupersub", &Reader::set_script, number_of(Script::level)},

      // Paragraphs' format.
      {"pard", &Reader::reset_paragraph},
      {"ql", &Reader::align, number_of(Alignment::left)},
      {"qr", &Reader::align, number_of(Alignment::right)},
      {"qc", &Reader::align, number_of(Alignment::center)},
      {"qj", &Reader::align, number_of(Alignment::justified)},
      {"li", &Reader::set_indent<&ParagraphFormat::left_indent>, 0, true},
      {"ri", &Reader::set_indent<&ParagraphFormat::right_indent>, 0, true},
      {"fi", &Reader::set_indent<&ParagraphFormat::first_indent>, 0, true},
      {"tx", &Reader::add_tab, 0, true},
      {"tqr", &Reader::set_tab_kind, number_of(TabKind::right)},
      {"tqc", &Reader::set_tab_kind, number_of(TabKind::center)},
      {"tqdec", &Reader::set_tab_kind, number_of(TabKind::decimal)},

      // Breaks. Cells of tables are set apart by tabs, rows are paragraphs.
      {"par", &Reader::end_paragraph},
      {"\n", &Reader::end_paragraph},
      {"\r", &Reader::end_paragraph},
      {"row", &Reader::end_paragraph},
      {"page", &Reader::end_filled_paragraph},
      {"column", &Reader::end_filled_paragraph},
      {"sect", &Reader::end_filled_paragraph},
      {"line", &Reader::put_character, line_break},
      {"softline", &Reader::put_character, line_break},
      {"tab", &Reader::put_character, u'\t'},
      {"cell", &Reader::put_character, u'\t'},
      {"nestcell", &Reader::put_character, u'\t'},

      // Characters.
      {"u", &Reader::put_unicode, 0xFFFD, true},
      {"\\", &Reader::put_character, u'\\'},
      {"{", &Reader::put_character, u'{'},
      {"}", &Reader::put_character, u'}'},
      {"~", &Reader::put_character, 0x00A0},
      {"-", &Reader::put_character, 0x00AD},
      {"_", &Reader::put_character, 0x2011},
      {"bullet", &Reader::put_character, 0x2022},
      {"emdash", &Reader::put_character, 0x2014},
      {"endash", &Reader::put_character, 0x2013},
      {"emspace", &Reader::put_character, 0x2003},
      {"enspace", &Reader::put_character, 0x2002},
      {"qmspace", &Reader::put_character, 0x2005},
      {"lquote", &Reader::put_character, 0x2018},
      {"rquote", &Reader::put_character, 0x2019},
      {"ldblquote", &Reader::put_character, 0x201C},
      {"rdblquote", &Reader::put_character, 0x201D},
      {"ltrmark", &Reader::put_character, 0x200E},
      {"rtlmark", &Reader::put_character, 0x200F},
      {"zwbo", &Reader::put_character, 0x200B},
      {"zwnbo", &Reader::put_character, 0x2060},
      {"zwnj", &Reader::put_character, 0x200C},
      {"zwj", &Reader::put_character, 0x200D},
  });

  static constexpr auto sorted() {
    auto table = words;
    std::ranges::sort(table, {}, &ControlWord::word);
    return table;
  }
};

const Reader::ControlWord* Reader::find_word(std::string_view word) {
  static constexpr auto sorted = Vocabulary::sorted();
  const auto* found = std::ranges::lower_bound(sorted, word, {}, &ControlWord::word);
  return found != sorted.end() && found->word == word ? found : nullptr;
}

}  // namespace tarnmill::rtf
