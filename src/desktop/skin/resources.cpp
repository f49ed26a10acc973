#include "desktop/skin/resources.h"

#include <QtCore/qglobal.h>

// The macro declares functions, which must lie outside every namespace.
static void load_skin() { Q_INIT_RESOURCE(skin); }

/// The font of symbols, where the build could make it.
static void load_marrow() {
#ifdef TARNMILL_HAS_MARROW
  Q_INIT_RESOURCE(marrow);
#endif
}

namespace tarnmill::desktop {

void load_resources() {
  load_skin();
  load_marrow();
}

}  // namespace tarnmill::desktop
