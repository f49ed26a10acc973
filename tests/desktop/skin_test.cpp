#include <gtest/gtest.h>

#include <QFontDatabase>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "desktop/skin/display.h"
#include "desktop/skin/fonts.h"
#include "desktop/skin/icons.h"
#include "desktop/skin/key_look.h"
#include "desktop/skin/palette.h"
#include "desktop/skin/style_sheets.h"
#include "desktop/skin/text_field.h"
#include "desktop/skin/tick_box.h"

namespace tarnmill::desktop {
namespace {

double linear(double channel) {
  return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour) {
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

/// Contrast as the Web Content Accessibility Guidelines 2.1 define it, from 1 to 21.
double contrast(const QColor& first, const QColor& second) {
  const auto [darker, lighter] = std::minmax({luminance(first), luminance(second)});
  return (lighter + 0.05) / (darker + 0.05);
}

constexpr double kReadable = 4.5;

constexpr KeyRole kRoles[] = {KeyRole::digit,   KeyRole::function, KeyRole::tool,  KeyRole::operation,
                              KeyRole::accent,  KeyRole::clear,    KeyRole::mode,  KeyRole::dialog,
                              KeyRole::primary, KeyRole::bar,      KeyRole::close, KeyRole::bar_tool};

TEST(Palette, CaptionsOfRestingKeysAreReadable) {
  for (const KeyRole role : kRoles) {
    for (const bool chosen : {false, true}) {
      const KeyLook look = key_look(role, chosen);
      EXPECT_GE(contrast(look.ink.stroke, look.face), kReadable) << static_cast<int>(role) << chosen;
      EXPECT_GE(contrast(look.ink.stroke, palette::mix(look.face, Qt::white, 0.09)), kReadable);
      EXPECT_GE(contrast(look.ink.stroke, palette::mix(look.face, Qt::black, 0.05)), kReadable);
    }
  }
}

TEST(Palette, TextIsReadableOnItsGround) {
  const struct {
    const char* what;
    QColor text;
    QColor ground;
  } pairs[] = {
      {"number on a display", palette::display_ink, palette::display},
      {"prefix on a display", palette::display_dim, palette::display},
      {"memory sign at rest", palette::memory_blue, palette::display},
      {"caption on the body", palette::cream, palette::body_top},
      {"caption on the bar", palette::cream, palette::bar},
      {"title on the darkest band", palette::cream, QColor(palette::case_red, 0, 0)},
      {"title on the brightest band", palette::cream, QColor(palette::case_red, 0, 255)},
      {"subtitle on the darkest band", palette::lilac, QColor(palette::case_red, 0, 0)},
      {"label on bone", palette::ink, palette::bone},
      {"entry on paper", palette::ink, palette::paper},
      {"chosen row", palette::selected_text, palette::selected},
      {"caption under the closing red", palette::cream, palette::close_hover},
  };
  for (const auto& pair : pairs) {
    EXPECT_GE(contrast(pair.text, pair.ground), kReadable) << pair.what;
  }
}

TEST(Palette, OnlyTheYellowPhaseOfTheMemorySignIsFaint) {
  EXPECT_LT(contrast(palette::memory_yellow, palette::display), kReadable);
}

TEST(Palette, MixingMovesEachChannelByTheShare) {
  EXPECT_EQ(palette::mix(QColor(0, 100, 200), QColor(100, 0, 200), 0.5), QColor(50, 50, 200));
  EXPECT_EQ(palette::mix(palette::bone, Qt::black, 0), palette::bone);
  EXPECT_EQ(palette::mix(palette::bone, Qt::black, 1), QColor(0, 0, 0));
}

TEST(Fonts, TheShippedFamiliesAreLoaded) {
  const QStringList families = register_fonts();
  EXPECT_TRUE(families.contains("Inter"));
  EXPECT_TRUE(families.contains("JetBrains Mono"));
}

TEST(Fonts, EachWeightOfACaptionHasItsOwnFace) {
  register_fonts();
  const QStringList styles = QFontDatabase::styles("Inter");
  for (const char* style : {"Regular", "Medium", "SemiBold", "Bold"}) {
    bool found = false;
    for (const QString& known : styles) {
      found = found || QString(known).remove(' ').compare(style, Qt::CaseInsensitive) == 0;
    }
    EXPECT_TRUE(found) << style;
  }
}

TEST(Fonts, RoundAndSquareBracketsDiffer) {
  register_fonts();
  const auto drawn = [](const QString& text) {
    QImage image(20, 24, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setFont(number_font(16));
    painter.drawText(image.rect(), Qt::AlignCenter, text);
    return image;
  };
  EXPECT_NE(drawn("("), drawn("["));
}

TEST(Fonts, NumbersAreAllOfOneWidth) {
  register_fonts();
  const QFontMetricsF metrics(number_font(20));
  EXPECT_DOUBLE_EQ(metrics.horizontalAdvance('1'), metrics.horizontalAdvance('8'));
  EXPECT_DOUBLE_EQ(metrics.horizontalAdvance('.'), metrics.horizontalAdvance('8'));
}

QImage drawn_icon(const QString& name, const IconInk& colours) {
  QImage image(48, 48, QImage::Format_ARGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  paint_icon(painter, name, {QPointF(0, 0), icon_size(name, 36)}, colours);
  return image;
}

bool has_colour(const QImage& image, const QColor& colour) {
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixelColor(x, y) == colour) {
        return true;
      }
    }
  }
  return false;
}

TEST(Icons, EachDrawsSomethingInTheColoursAskedFor) {
  const IconInk red_and_green{QColor(255, 0, 0), QColor(0, 255, 0)};
  ASSERT_GT(icon_names().size(), 50);
  for (const QString& name : icon_names()) {
    const QImage image = drawn_icon(name, red_and_green);
    EXPECT_TRUE(has_colour(image, red_and_green.stroke) || has_colour(image, red_and_green.accent))
        << name.toStdString();
    EXPECT_FALSE(has_colour(image, palette::ink)) << name.toStdString();
    EXPECT_FALSE(has_colour(image, palette::icon_accent_on_light)) << name.toStdString();
  }
}

TEST(Icons, AnUnknownNameDrawsNothing) {
  EXPECT_TRUE(icon_size("no such icon", 24).isEmpty());
  const QImage image = drawn_icon("no such icon", {Qt::red, Qt::green});
  EXPECT_FALSE(has_colour(image, Qt::red));
}

TEST(Icons, OnlyTheSignIsWiderThanHigh) {
  for (const QString& name : icon_names()) {
    const QSizeF size = icon_size(name, 24);
    EXPECT_EQ(size.height(), 24) << name.toStdString();
    EXPECT_EQ(size.width() > 24, name == "sign") << name.toStdString();
  }
}

TEST(Icons, AThemedIconIsSharpAtTwoPixelsAUnit) {
  const QIcon icon = themed_icon("save", 16, {Qt::black, Qt::red});
  EXPECT_EQ(icon.pixmap(QSize(16, 16), 2.0).size(), QSize(32, 32));
  EXPECT_EQ(icon.pixmap(QSize(16, 16), 1.0).size(), QSize(16, 16));
}

TEST(StyleSheets, EveryColourIsFilledIn) {
  for (const QString& sheet : {instrument_style_sheet(), bench_style_sheet(), application_style_sheet()}) {
    EXPECT_FALSE(sheet.isEmpty());
    EXPECT_FALSE(sheet.contains('@')) << sheet.toStdString();
    EXPECT_FALSE(sheet.contains('%')) << sheet.toStdString();
  }
}

TEST(Display, TakesTheLargestSizeThatFits) {
  register_fonts();
  Display display;
  display.setSizes("34,28,22,18");
  display.resize(310, 46);
  const struct {
    QString text;
    int size;
  } rows[] = {
      {"0.", 34},
      {"7.25741561530799", 28},
      {"7.25741561530799E+306", 22},
      {"-7.25741561530799E+3061", 22},
      {QString(27, '8'), 18},
      {QString(200, '8'), 18},
  };
  for (const auto& row : rows) {
    display.setText(row.text);
    EXPECT_EQ(display.shown_size(), row.size) << row.text.toStdString();
  }
}

TEST(Display, KeepsTheRightEndOfWhatIsTooLong) {
  register_fonts();
  for (const Qt::AlignmentFlag side : {Qt::AlignLeft, Qt::AlignRight}) {
    Display display;
    display.setSizes("30,24,18");
    display.setAlignment(side | Qt::AlignVCenter);
    display.resize(200, 40);
    display.setText(QString(60, '9') + "1234567");
    const QImage nines = display.grab(QRect(140, 0, 60, 40)).toImage();
    display.setText(QString(60, '1') + "1234567");
    EXPECT_EQ(nines, display.grab(QRect(140, 0, 60, 40)).toImage());
    display.setText(QString(60, '9') + "1234568");
    EXPECT_NE(nines, display.grab(QRect(140, 0, 60, 40)).toImage());
  }
}

TEST(Display, PassesOverSizesThatAreNone) {
  Display display;
  display.setSizes("20, x,,-3,12");
  EXPECT_EQ(display.sizes(), "20,12");
  display.setSizes("");
  EXPECT_EQ(display.sizes(), "20,12");
}

TEST(TextField, APrefixMakesRoomAndIsNoPartOfTheText) {
  TextField field;
  EXPECT_EQ(field.textMargins().left(), 0);
  field.setPrefix("Y =");
  EXPECT_GT(field.textMargins().left(), 15);
  EXPECT_EQ(field.text(), "");
  field.setPrefix("");
  EXPECT_EQ(field.textMargins().left(), 0);
}

TEST(TickBox, ShowsItsTickAndItsDisabledState) {
  TickBox box;
  box.setText("Case sensitive");
  box.resize(150, 22);
  const QImage empty = box.grab().toImage();
  box.setChecked(true);
  const QImage ticked = box.grab().toImage();
  EXPECT_NE(empty, ticked);
  box.setEnabled(false);
  EXPECT_NE(ticked, box.grab().toImage());
}

}  // namespace
}  // namespace tarnmill::desktop
