#pragma once

#include <QString>

#include "engine/text.h"

namespace tarnmill::desktop {

/// The program's text as the toolkit holds it, code unit by code unit.
[[nodiscard]] inline QString to_qt(TextView text) {
  return QString(reinterpret_cast<const QChar*>(text.data()),  // NOLINT: the same code units
                 static_cast<qsizetype>(text.size()));
}

/// The toolkit's text as the program holds it.
[[nodiscard]] inline Text from_qt(const QString& text) { return text.toStdU16String(); }

/// The same for text of several lines, whose breaks the toolkit holds as a single line feed.
[[nodiscard]] QString lines_to_qt(TextView text);
/// Line breaks come back as CR LF.
[[nodiscard]] Text lines_from_qt(const QString& text);

/// A name, which is plain ASCII.
[[nodiscard]] inline QString to_qt(std::string_view name) {
  return QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size()));
}

}  // namespace tarnmill::desktop
