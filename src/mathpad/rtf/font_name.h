#pragma once

#include "engine/text.h"

namespace tarnmill::rtf {

/// A font's name as a font table can hold it: without control characters, without semicolons, which end a
/// name there, and without blanks around it. Empty when nothing is left.
[[nodiscard]] Text font_name(TextView text);

}  // namespace tarnmill::rtf
