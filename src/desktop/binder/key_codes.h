#pragma once

#include <Qt>

class QKeyEvent;

namespace tarnmill::desktop {

/// The platform's code of a key, as KeyDown handlers know it; 0 for a key that has none. The signs + - * / .
/// , give the codes of the number block wherever they stand on the keyboard, for a person without that block.
[[nodiscard]] int key_code(const QKeyEvent& event);

/// The toolkit's key for a code, for a handler that put another code in place of the key's own;
/// Qt::Key_unknown where there is none.
[[nodiscard]] Qt::Key key_of(int code);

/// The shift state: 1 shift, 2 control, 4 alt, added up.
[[nodiscard]] int shift_state(Qt::KeyboardModifiers modifiers);

/// A mouse button: 1 left, 2 right, 4 middle.
[[nodiscard]] int button_code(Qt::MouseButton button);
/// All buttons that are down, added up.
[[nodiscard]] int button_state(Qt::MouseButtons buttons);

}  // namespace tarnmill::desktop
