#include "calculator/memory_indicator.h"

namespace tarnmill {

namespace {

constexpr Color yellow = 65535;
constexpr Color blue = 12582912;

}  // namespace

MemoryIndicator::MemoryIndicator(Button& store_key, Label& sign, Label& stored, Timer& timer)
    : store_key_{store_key}, sign_{sign}, stored_{stored}, timer_{timer} {
  store_key_.Picture.start_as(u"memory-empty");
  sign_.Visible.start_as(false);
  sign_.ForeColor.start_as(blue);
  // Clearing fires this as well, so whoever clears hides the sign afterwards.
  stored_.Change.handle([this] { indicate(true); });
  sign_.Change.handle([this] { timer_.Interval = 1000; });
  sign_.MouseMove.handle([this](int, int, float, float) { sign_.ToolTipText = stored_.Caption; });
  timer_.Tick.handle([this] { sign_.ForeColor = sign_.ForeColor == yellow ? blue : yellow; });
}

void MemoryIndicator::start_blinking() {
  timer_.Interval = 900;
  timer_.Enabled = true;
}

void MemoryIndicator::show_before_store() { indicate(!stored_.Caption->empty()); }

void MemoryIndicator::clear() {
  timer_.Enabled = false;
  stored_.Caption = u"";
  indicate(false);
}

void MemoryIndicator::indicate(bool used) {
  store_key_.Picture = used ? u"memory-used" : u"memory-empty";
  sign_.Visible = used;
}

}  // namespace tarnmill
