#include "desktop/binder/bar_bindings.h"

#include <QAbstractButton>

#include "desktop/qt_text.h"
#include "desktop/skin/key.h"

namespace tarnmill::desktop {

namespace {

void show_tool(const ToolButton& tool, QAbstractButton& button) {
  button.setChecked(tool.Value != 0);
  if (auto* key = qobject_cast<Key*>(&button)) key->setChosen(tool.Value != 0);
  button.setEnabled(tool.Enabled);
  button.setToolTip(to_qt(tool.ToolTipText.get()));
  button.setAccessibleName(to_qt(tool.ToolTipText.get()).trimmed());
}

}  // namespace

ToolbarBinding::~ToolbarBinding() { let_go(); }

void ToolbarBinding::start() {
  PlainBinding::start();
  for (QAbstractButton* each : widget().findChildren<QAbstractButton*>()) {
    ToolButton* tool = bar_.find(each->property("tool").toString().toStdString());
    if (tool != nullptr) bind(*tool, *each);
  }
}

void ToolbarBinding::bind(ToolButton& tool, QAbstractButton& button) {
  // The program alone says whether it is down, so a click must not turn it itself.
  button.setCheckable(tool.kind() != ToolKind::plain);
  // A click leaves the focus where it is; keys come here by Tab.
  button.setFocusPolicy(Qt::TabFocus);
  watch(button);
  show_tool(tool, button);
  tool.observe(this, [&tool, &button](const PropertyBase&) { show_tool(tool, button); });
  connect(&button, &QAbstractButton::clicked, this, [this, &tool, &button] {
    enter([&tool] { tool.press(); });
    if (control() != nullptr) show_tool(tool, button);
  });
}

void ToolbarBinding::release() {
  let_go();
  PlainBinding::release();
}

void ToolbarBinding::let_go() {
  if (control() == nullptr) return;
  for (int i = 1; i <= bar_.size(); ++i) bar_.Buttons(i).stop_observing(this);
}

StatusBarBinding::~StatusBarBinding() { let_go(); }

void StatusBarBinding::start() {
  PlainBinding::start();
  for (QLabel* each : widget().findChildren<QLabel*>()) {
    StatusPanel* panel = bar_.find(each->property("panel").toInt());
    if (panel == nullptr) continue;
    each->setTextFormat(Qt::PlainText);
    const auto show = [panel, each] { each->setText(to_qt(panel->Text.get())); };
    show();
    panel->observe(this, [show](const PropertyBase&) { show(); });
  }
}

void StatusBarBinding::release() {
  let_go();
  PlainBinding::release();
}

void StatusBarBinding::let_go() {
  if (control() == nullptr) return;
  for (int i = 1; i <= bar_.size(); ++i) bar_.Panels(i).stop_observing(this);
}

}  // namespace tarnmill::desktop
