#pragma once

#include <string_view>

#include "mathpad/rtf/document.h"
#include "mathpad/rtf/encoding.h"

namespace tarnmill::rtf {

/// Whether bytes begin as an RTF file does.
[[nodiscard]] bool is_rtf(std::string_view bytes);

/// Reads RTF, with no faults: what is not known is passed over, and of a damaged file the document holds what
/// stood before the damage. Nothing in it is fetched or run. Time and memory grow with the length of the
/// bytes and with nothing that they claim.
///
/// Text of headers, footers, notes and comments and hidden text is left out; tables become lines with tabs;
/// of fields and objects the result is kept that was stored with them. East Asian text is as good as the
/// decoder given.
[[nodiscard]] Document read(std::string_view bytes, PairDecoder pairs = replace_pairs);

}  // namespace tarnmill::rtf
