#include "desktop/binder/caption_follower.h"

#include <QAbstractButton>

#include "desktop/qt_text.h"
#include "desktop/skin/key.h"
#include "forms/control.h"

namespace tarnmill::desktop {

namespace {

bool has_own_face(const QWidget& widget) {
  const auto* key = qobject_cast<const Key*>(&widget);
  return key != nullptr &&
         (!key->icon_name().isEmpty() || !key->superscript().isEmpty() || !key->chip().isEmpty());
}

}  // namespace

void show_caption(QWidget& widget, const QString& caption) {
  auto* button = qobject_cast<QAbstractButton*>(&widget);
  if (button != nullptr && !has_own_face(widget)) button->setText(caption);
}

CaptionFollower::CaptionFollower(Control& label, QWidget& key, QObject& parent)
    : QObject{&parent}, label_{&label}, key_{key} {
  show_label();
  label_->observe(this, [this](const PropertyBase& property) {
    if (property.name() == "Caption") show_label();
  });
}

CaptionFollower::~CaptionFollower() { release(); }

void CaptionFollower::release() {
  if (label_ == nullptr) return;
  label_->stop_observing(this);
  label_ = nullptr;
}

void CaptionFollower::show_label() {
  const PropertyBase* caption = label_->find_property("Caption");
  if (caption == nullptr) return;
  const QString text = to_qt(caption->read().to_text(label_->regional()));
  if (!text.isEmpty()) show_caption(key_, text);
}

}  // namespace tarnmill::desktop
