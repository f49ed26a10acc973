#pragma once

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>
#include <memory>

#include "desktop/binder/view_store.h"
#include "desktop/pulse.h"
#include "desktop/qt_desk.h"
#include "desktop/skin/key.h"
#include "desktop/surface_view.h"
#include "forms/sample_window.h"
#include "forms/workbench.h"
#include "script/temporary_folder.h"

namespace tarnmill::desktop {

template <class W>
W* add_widget(QWidget& form, const char* name, const QRect& place) {
  auto* widget = new W{&form};
  widget->setObjectName(name);
  widget->setGeometry(place);
  return widget;
}

/// The form of SampleWindow: one widget of each kind, and some decoration.
inline std::unique_ptr<QWidget> sample_form(std::string_view /*window*/) {
  auto form = std::make_unique<QWidget>();
  form->resize(300, 300);
  add_widget<QWidget>(*form, "deco_ground", {0, 200, 300, 100});
  add_widget<QLineEdit>(*form, "txt", {10, 10, 100, 20});
  add_widget<QLabel>(*form, "lbl", {10, 40, 100, 20});
  add_widget<Key>(*form, "cmd", {10, 70, 60, 30});
  add_widget<QCheckBox>(*form, "check", {10, 110, 60, 20});
  add_widget<QComboBox>(*form, "combo", {10, 140, 90, 20});
  add_widget<Key>(*form, "Keys_1", {120, 10, 40, 30});
  add_widget<Key>(*form, "Keys_2", {170, 10, 40, 30});
  add_widget<Key>(*form, "Keys_3", {220, 10, 40, 30})->setProperty("face", "lbl");
  add_widget<Key>(*form, "option_0", {120, 50, 40, 30});
  add_widget<Key>(*form, "option_1", {170, 50, 40, 30});
  add_widget<Key>(*form, "key", {220, 50, 40, 30});
  add_widget<SurfaceView>(*form, "surface", {120, 100, 40, 30});
  return form;
}

/// A desk whose windows all have the form of SampleWindow and stand on the screen.
class SampleDesk final : public QtDesk {
 public:
  explicit SampleDesk(const std::filesystem::path& folder) : QtDesk{folder, Views::on_demand} {
    stop_real_time();
  }

  void window_loaded(Window& window) override {
    pulse.attach(window.bench());
    store.follow(window);
  }
  void window_unloaded(Window& window) override { store.forget(window); }
  void window_activated(Window& window) override { store.bring_forward(window); }
  void focus_moved(Control* control) override { store.give_focus(control); }
  void start_move(Window& window) override { store.start_move(window); }
  void run_modal(Window& window) override { store.run_modal(window); }
  void do_events() override { QApplication::processEvents(); }
  MessageResult message(const MessageBox& box) override {
    messages.push_back(box);
    return MessageResult::ok;
  }
  void quit() override { ++quits; }

  Pulse pulse;
  ViewStore store{pulse, true, sample_form};
  std::vector<MessageBox> messages;
  int quits = 0;
};

/// SampleWindow on the screen, as a person sees it.
class SampleView : public ::testing::Test {
 protected:
  SampleView() {
    bench.add_window("SampleWindow", [](Workbench& w) { return std::make_unique<SampleWindow>(w); });
    bench.enter([this] { sample().Show(); });
    EXPECT_TRUE(QTest::qWaitForWindowActive(&form()));
    sample().notes.clear();
  }

  SampleWindow& sample() { return bench.window<SampleWindow>(); }
  std::vector<std::string>& notes() { return sample().notes; }
  QWidget& form() { return *desk.store.find(sample()); }
  template <class W = Key>
  W& widget(const char* name) {
    return *form().findChild<W*>(name);
  }

  TemporaryFolder folder;
  SampleDesk desk{folder.path()};
  Workbench bench{desk};
};

using Notes = std::vector<std::string>;

}  // namespace tarnmill::desktop
