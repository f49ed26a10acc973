#pragma once

namespace tarnmill::desktop {

/// What a key is for, which settles how it looks.
enum class KeyRole {
  digit,
  function,
  tool,       ///< a graph tool: a function key with an icon
  operation,  ///< + - X / and the other operators of two numbers
  accent,     ///< the one main key of an instrument
  clear,
  mode,
  dialog,   ///< a key of a bench
  primary,  ///< the one main key of a bench
  bar,      ///< a flat key of a title bar, or a caption of a menu bar drawn there
  close,    ///< the bar's key that closes, red under the mouse
  bar_tool  ///< a flat key of a tool bar on bone
};

/// The small light of a key that stays on.
enum class KeyLamp { none, off, on };

}  // namespace tarnmill::desktop
