#include "shell/about.h"

#include <cstddef>

#include "forms/workbench.h"

namespace tarnmill {

namespace {

constexpr const char16_t* about_text =
    u"Tarnmill\r\n"
    u"\r\n"
    u"A mathematics workbench.\r\n"
    u"\r\n"
    u"Scientific and complex calculators, an evaluator, a grapher with 111 curves, calculus tools, "
    u"value tables and MathPad.\r\n"
    u"\r\n"
    u"Designed and written by the Tarnmill team.";

constexpr double heading_points = 15;
constexpr double body_points = 9.75;

std::vector<Text> split(const Text& text, TextView at) {
  std::vector<Text> parts;
  std::size_t start = 0;
  for (auto end = text.find(at); end != Text::npos; end = text.find(at, start)) {
    parts.push_back(text.substr(start, end - start));
    start = end + at.size();
  }
  parts.push_back(text.substr(start));
  return parts;
}

}  // namespace

frmAbout::frmAbout(Workbench& bench) : Window{bench, class_name} {
  Caption.start_as(u"About Tarnmill");
  Width.start_as(5400);
  Height.start_as(4200);
  lblText.Caption.start_as(about_text);
  picScroll.ToolTipText.start_as(u"About Tarnmill");
  picScroll.FontName.start_as(u"Inter");
  picScroll.ForeColor.start_as(rgb(19, 31, 23));
  Load.handle([this] { Timer1.Interval = 1000; });
  Activate.handle(this, &frmAbout::Form_Activate);
  Unloading.handle([this] { tmrScroll.Enabled = false; });
  Click.handle([this] { Unload(); });
  picScroll.DblClick.handle([this] { Unload(); });
  Timer1.Tick.handle(this, &frmAbout::Timer1_Timer);
  tmrScroll.Tick.handle(this, &frmAbout::scroll);
}

void frmAbout::Timer1_Timer() {
  if (!Visible) {
    Show();
    return;
  }
  Timer1.Enabled = false;
  Unload();
}

void frmAbout::Form_Activate() {
  lines_ = lines();
  height_ = measure();
  if (lblText.Caption->empty()) {
    tmrScroll.Enabled = false;
    MsgBox(u"Error scrolling text", MessageIcon::exclamation);
    return;
  }
  top_ = picScroll.ScaleHeight();
  tmrScroll.Enabled = true;
}

void frmAbout::scroll() {
  picScroll.Cls();
  float y = top_;
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    use_font_of(i == 0);
    picScroll.CurrentX = (picScroll.ScaleWidth() - picScroll.TextWidth(lines_[i])) / 2;
    picScroll.CurrentY = y;
    picScroll.Print(lines_[i]);
    y += line_height(i == 0);
  }
  top_ -= 1;
  if (top_ + height_ < 0) top_ = picScroll.ScaleHeight();
}

void frmAbout::use_font_of(bool heading) {
  picScroll.FontSize = heading ? heading_points : body_points;
  picScroll.FontBold = heading;
}

float frmAbout::line_height(bool heading) {
  use_font_of(heading);
  return picScroll.TextHeight(u"M");
}

/// The text cut into lines that fit, between words.
std::vector<Text> frmAbout::lines() {
  constexpr float margin = 20;
  const float room = picScroll.ScaleWidth() - 2 * margin;
  std::vector<Text> fitting;
  for (const Text& paragraph : split(lblText.Caption, u"\r\n")) {
    use_font_of(fitting.empty());
    Text line;
    for (const Text& word : split(paragraph, u" ")) {
      const Text longer = line.empty() ? word : line + u" " + word;
      if (!line.empty() && picScroll.TextWidth(longer) > room) {
        fitting.push_back(line);
        line = word;
      } else {
        line = longer;
      }
    }
    fitting.push_back(line);
  }
  return fitting;
}

float frmAbout::measure() {
  return line_height(true) + static_cast<float>(lines_.size() - 1) * line_height(false);
}

}  // namespace tarnmill
