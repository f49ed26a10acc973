#include "desktop/qt_desk.h"

#include <QApplication>
#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QLocale>
#include <QLockFile>
#include <QPrinter>
#include <QStandardPaths>
#include <QThread>
#include <QUrl>
#include <system_error>
#include <utility>

#include "desktop/binder/view_store.h"
#include "desktop/help/help_file.h"
#include "desktop/help/help_window.h"
#include "desktop/pulse.h"
#include "desktop/qt_raster.h"
#include "desktop/qt_rich_text.h"
#include "desktop/qt_text.h"
#include "desktop/settings_file.h"
#include "forms/workbench.h"

namespace tarnmill {

namespace {

constexpr char settings_name[] = "settings.conf";
constexpr char lock_name[] = ".lock";

QString file_name(const std::filesystem::path& path) { return QFile::decodeName(path.c_str()); }

}  // namespace

QtDesk::QtDesk(std::filesystem::path folder, Views views)
    : folder_{std::move(folder)},
      views_{views},
      regional_{QLocale::system().decimalPoint() == "," ? u',' : u'.'},
      pulse_{std::make_unique<desktop::Pulse>()},
      store_{std::make_unique<desktop::ViewStore>(*pulse_, views == Views::eager)} {
  std::error_code not_made;
  std::filesystem::create_directories(folder_, not_made);
  settings_ = std::make_unique<desktop::SettingsFile>(folder_ / settings_name);
  // The program itself decides when it ends.
  if (shows_views()) QGuiApplication::setQuitOnLastWindowClosed(false);
}

QtDesk::~QtDesk() { delete help_.data(); }

std::filesystem::path QtDesk::user_folder() {
  const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
  return std::filesystem::path{QFile::encodeName(data).toStdString()} / "Tarnmill";
}

void QtDesk::attach(Workbench& bench) {
  bench_ = &bench;
  pulse_->attach(bench);
}

void QtDesk::stop_real_time() { pulse_->stop(); }

DateTime QtDesk::now() {
  const QDateTime now = QDateTime::currentDateTime();
  const QDate date = now.date();
  const QTime time = now.time();
  // The toolkit's week begins on Monday with 1.
  const int weekday = date.dayOfWeek() % 7 + 1;
  return {date.year(), date.month(), date.day(), weekday, time.hour(), time.minute(), time.second()};
}

float QtDesk::seconds_since_midnight() {
  return static_cast<float>(QTime::currentTime().msecsSinceStartOfDay() / 1000.0);
}

const Regional& QtDesk::regional() { return regional_; }

std::filesystem::path QtDesk::folder() { return folder_; }

std::filesystem::path QtDesk::data_folder() {
  const QString programs = QCoreApplication::applicationDirPath();
  return std::filesystem::path{QFile::encodeName(programs).toStdString()} / ".." / "share" / "tarnmill";
}

Text QtDesk::program_name() { return u"tarnmill"; }

SettingsStore& QtDesk::settings() { return *settings_; }

std::unique_ptr<Raster> QtDesk::make_raster(int width, int height) {
  return std::make_unique<desktop::QtRaster>(width, height);
}

std::unique_ptr<RichText> QtDesk::make_rich_text() { return std::make_unique<desktop::QtRichText>(); }

void QtDesk::open_address(const Text& address) { QDesktopServices::openUrl(QUrl{desktop::to_qt(address)}); }

bool QtDesk::show_help(const std::filesystem::path& file, std::int32_t /*topic*/) {
  // The pages of this file have no numbers.
  auto opened = desktop::HelpFile::open(file);
  if (!opened) return false;
  delete help_.data();
  help_ = new desktop::HelpWindow{std::move(opened)};
  // A window that holds back the others lets only its own children be used.
  help_->setParent(QApplication::activeModalWidget(), Qt::Window);
  help_->show_default_page();
  if (!shows_views()) return true;
  help_->show();
  help_->activateWindow();
  return true;
}

bool QtDesk::previous_instance() {
  if (!lock_) {
    lock_ = std::make_unique<QLockFile>(file_name(folder_ / lock_name));
    // A program runs for days; only its end frees the folder.
    lock_->setStaleLockTime(0);
  }
  if (lock_->isLocked() || lock_->tryLock()) return false;
  // A folder in which no lock can be made refuses nobody.
  return lock_->error() == QLockFile::LockFailedError;
}

void QtDesk::do_events() { QCoreApplication::processEvents(); }

void QtDesk::set_mouse_pointer(int shape) {
  constexpr int hourglass = 11;
  if (shape == hourglass && QGuiApplication::overrideCursor() == nullptr) {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  } else if (shape != hourglass) {
    QGuiApplication::restoreOverrideCursor();
  }
}

void QtDesk::keep_settings() { settings_->flush(); }

void QtDesk::quit() {
  keep_settings();
  // The process may live on, but no program runs in the folder any more.
  lock_.reset();
  set_mouse_pointer(0);
  // Without a loop that runs there is none to leave, and the next would not begin. Not quit(), which would
  // ask each window whether it may close.
  if (QThread::currentThread()->loopLevel() > 0) QCoreApplication::exit(0);
}

}  // namespace tarnmill
