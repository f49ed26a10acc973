#pragma once

#include <string>

#include "mathpad/rtf/document.h"

namespace tarnmill::rtf {

/// The RTF of a document, in ASCII with CR LF line breaks. Reading it gives an equal document, except that
/// text without a font takes the first one there is.
[[nodiscard]] std::string write(const Document& document);

}  // namespace tarnmill::rtf
