#include "desktop/pair_decoder.h"

#include <QByteArray>
#include <QStringDecoder>
#include <algorithm>

#include "desktop/qt_text.h"
#include "mathpad/rtf/encoding.h"

namespace tarnmill::desktop {

Text decode_pairs(std::int32_t page, std::string_view bytes) {
  const QByteArray name = "windows-" + QByteArray::number(page);
  QStringDecoder decoder{name.constData(), QStringDecoder::Flag::Stateless};
  if (!decoder.isValid()) return rtf::replace_pairs(page, bytes);
  // Behind a zero no character is incomplete, and one cut short is told.
  const QByteArray ended = QByteArray{bytes.data(), static_cast<qsizetype>(bytes.size())} + '\0';
  Text text = from_qt(decoder(ended));
  if (text.ends_with(u'\0')) text.pop_back();
  // The tables of some pages put the old sign of substitution.
  std::ranges::replace(text, u'\u001A', u'\uFFFD');
  return text;
}

}  // namespace tarnmill::desktop
