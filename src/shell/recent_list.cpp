#include "shell/recent_list.h"

#include "forms/desk.h"
#include "forms/menu_item.h"
#include "forms/workbench.h"
#include "shell/registry.h"

namespace tarnmill {

RecentList::RecentList(Workbench& bench, const Place& place) : bench_{bench}, place_{place} {}

void RecentList::load() {
  for (int i = 1; i <= slots; ++i) {
    const Variant stored = GetRegistrySetting(bench_.desk().settings(), u"Software", u"Tarnmill",
                                              place_.section, value_name(i), u"");
    const Text entry = stored.to_text(bench_.desk().regional());
    if (!entry.empty()) item(i).Caption = entry;
  }
}

void RecentList::show() {
  if (!item(1).Caption->empty()) show_separator();
  for (int i = 1; i <= slots && !item(i).Caption->empty(); ++i) item(i).Visible = true;
}

void RecentList::add(TextView entry) {
  make_room(slots);
  put(1, Text{entry});
  show();
}

void RecentList::add_once(TextView entry) {
  const int found = slot_of(entry);
  if (found == 1) {
    show();
    return;
  }
  if (found == 0) {
    make_room(slots);
  } else {
    make_room(found);
    for (int i = 1; i <= found; ++i) item(i).Visible = true;
    show_separator();
  }
  put(1, Text{entry});
  show();
}

MenuItem& RecentList::item(int slot) const {
  return dynamic_cast<MenuItem&>(*bench_.window(place_.window).find_control(place_.menu, slot));
}

Text RecentList::value_name(int slot) const {
  return Text{place_.prefix} + NumberToText(slot, bench_.desk().regional());
}

/// The slot of the first caption equal to `entry`, or 0.
int RecentList::slot_of(TextView entry) const {
  for (int i = 1; i <= slots; ++i) {
    if (item(i).Caption.get() == entry) return i;
  }
  return 0;
}

void RecentList::put(int slot, const Text& entry) {
  item(slot).Caption = entry;
  SaveRegistrySetting(bench_.desk().settings(), u"Software", u"Tarnmill", place_.section, value_name(slot),
                      entry);
}

/// Moves the entries down by one, up to `last`, whose entry is lost.
void RecentList::make_room(int last) {
  for (int i = last; i > 1; --i) put(i, item(i - 1).Caption);
}

void RecentList::show_separator() {
  if (place_.separator.empty()) return;
  bench_.window(place_.window).find_control(place_.separator)->Visible = true;
}

}  // namespace tarnmill
