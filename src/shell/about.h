#pragma once

#include <string_view>
#include <vector>

#include "forms/label.h"
#include "forms/picture_box.h"
#include "forms/timer.h"
#include "forms/window.h"

namespace tarnmill {

/// The about box: its text scrolls upwards over the picture box, again and again, from each activation until
/// the window goes.
class frmAbout final : public Window {
 public:
  static constexpr std::string_view class_name = "frmAbout";
  explicit frmAbout(Workbench& bench);

  PictureBox picScroll{*this, "picScroll", 310, 230, display};
  /// What is told, its first line as a heading.
  Label lblText{*this, "lblText", parked};
  /// Makes the window visible, and a tick later unloads it; nobody starts it when the box is shown.
  Timer Timer1{*this, "Timer1", false};
  /// One step of the scrolling.
  Timer tmrScroll{*this, "tmrScroll", false, step_milliseconds};

 private:
  static constexpr Color display = rgb(157, 188, 148);
  /// A step is due when more than 40 milliseconds have passed.
  static constexpr int step_milliseconds = 41;

  void Form_Activate();
  void Timer1_Timer();
  void scroll();
  void use_font_of(bool heading);
  [[nodiscard]] std::vector<Text> lines();
  [[nodiscard]] float line_height(bool heading);
  [[nodiscard]] float measure();

  std::vector<Text> lines_;
  float top_ = 0;
  float height_ = 0;
};

}  // namespace tarnmill
