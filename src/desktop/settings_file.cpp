#include "desktop/settings_file.h"

#include <QByteArray>
#include <QFile>
#include <QString>

#include "desktop/qt_text.h"

namespace tarnmill::desktop {

namespace {

// What stands before a value in the file and tells its kind.
constexpr QLatin1String text_mark{"text:"};
constexpr QLatin1String number_mark{"number:"};

/// Text as ASCII that any reader of such files leaves alone, lone surrogates included.
QString encoded(TextView text) {
  const std::string bytes = to_utf8(text);
  return QString::fromLatin1(QByteArray::fromStdString(bytes).toPercentEncoding(" !#$&'()*+,/:;<=>?@[]^{|}"));
}

Text decoded(const QString& text) {
  return from_utf8(QByteArray::fromPercentEncoding(text.toLatin1()).toStdString());
}

/// The entry of a value: the parts of the key are groups within groups.
QString entry(TextView key, TextView name) {
  QString path;
  for (const QString& part : to_qt(key).split('\\', Qt::SkipEmptyParts)) {
    path += QString::fromLatin1(part.toUtf8().toPercentEncoding(" ")) + '/';
  }
  return path + QString::fromLatin1(to_qt(name).toUtf8().toPercentEncoding(" "));
}

}  // namespace

SettingsFile::SettingsFile(const std::filesystem::path& path)
    : settings_{QFile::decodeName(path.c_str()), QSettings::IniFormat} {}

std::optional<SettingsStore::Value> SettingsFile::read(TextView key, TextView name) {
  const QString place = entry(key, name);
  if (place.isEmpty()) return std::nullopt;
  const QString stored = settings_.value(place).toString();
  if (stored.startsWith(text_mark)) return decoded(stored.mid(text_mark.size()));
  if (!stored.startsWith(number_mark)) return std::nullopt;
  bool whole = false;
  const std::int32_t number = stored.mid(number_mark.size()).toInt(&whole);
  return whole ? std::optional<Value>{number} : std::nullopt;
}

void SettingsFile::write(TextView key, TextView name, const Value& value) {
  const auto* number = std::get_if<std::int32_t>(&value);
  const QString stored =
      number == nullptr ? text_mark + encoded(std::get<Text>(value)) : number_mark + QString::number(*number);
  const QString place = entry(key, name);
  if (place.isEmpty()) return;
  settings_.setValue(place, stored);
  written_ = true;
}

void SettingsFile::flush() {
  if (!written_) return;
  settings_.sync();
  written_ = false;
}

}  // namespace tarnmill::desktop
