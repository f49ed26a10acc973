#include "desktop/binder/pictures.h"

#include "desktop/skin/key.h"

namespace tarnmill::desktop {

void show_picture(Key& key, const QString& picture) {
  key.setHeld(picture.endsWith("-pressed"));
  // A key that is disabled greys its chip by itself.
  if (picture == "deg" || picture == "deg-disabled") key.setChip("DEG");
  if (picture == "rad" || picture == "rad-disabled") key.setChip("RAD");
  if (picture == "selected" || picture == "unselected") key.setChosen(picture == "selected");
  if (picture == "inv") key.setLamp(KeyLamp::off);
  if (picture == "inv-on") key.setLamp(KeyLamp::on);
}

}  // namespace tarnmill::desktop
