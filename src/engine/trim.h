#pragma once

#include "engine/text.h"

namespace tarnmill {

/// The part of a text between the given characters at its ends; empty when it has no others.
[[nodiscard]] TextView trimmed(TextView text, TextView characters = u" ");

}  // namespace tarnmill
