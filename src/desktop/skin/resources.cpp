#include "desktop/skin/resources.h"

#include <QtCore/qglobal.h>

// The macro declares a function, which must lie outside every namespace.
static void load_skin() { Q_INIT_RESOURCE(skin); }

namespace tarnmill::desktop {

void load_resources() { load_skin(); }

}  // namespace tarnmill::desktop
