#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "mathpad/rtf/reader.h"
#include "mathpad/rtf/writer.h"

// Any bytes give a document, and once written and read a document stays as it is.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  namespace rtf = tarnmill::rtf;
  const std::string_view bytes{reinterpret_cast<const char*>(data), size};
  const rtf::Document first = rtf::read(bytes);
  const rtf::Document second = rtf::read(rtf::write(first));
  if (second.text != first.text || second.paragraphs.size() != first.paragraphs.size()) std::abort();
  if (rtf::read(rtf::write(second)) != second) std::abort();
  return 0;
}
