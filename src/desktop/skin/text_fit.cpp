#include "desktop/skin/text_fit.h"

#include <QFontMetricsF>
#include <algorithm>

namespace tarnmill::desktop {

int fitting_size(const QString& text, const QFont& font, const QList<int>& sizes, double width) {
  const auto fits = [&](int size) {
    QFont tried = font;
    tried.setPixelSize(size);
    return QFontMetricsF(tried).horizontalAdvance(text) <= width;
  };
  const auto found = std::find_if(sizes.begin(), sizes.end(), fits);
  return found == sizes.end() ? sizes.back() : *found;
}

}  // namespace tarnmill::desktop
