#include "forms/files.h"

#include <array>
#include <fstream>
#include <iterator>
#include <system_error>

#include "engine/fault.h"

namespace tarnmill {

namespace {

namespace fs = std::filesystem;

/// Code page 1252 where it differs from Latin-1; the five undefined codes stand for themselves.
constexpr std::array<char16_t, 32> code_page_1252{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

Text from_code_page_1252(std::string_view bytes) {
  Text text;
  text.reserve(bytes.size());
  for (const char each : bytes) {
    const auto code = static_cast<unsigned char>(each);
    text += code >= 0x80 && code < 0xA0 ? code_page_1252[code - 0x80U] : static_cast<char16_t>(code);
  }
  return text;
}

[[noreturn]] void cannot_write(const fs::path& temporary) {
  std::error_code ignored;
  fs::remove(temporary, ignored);
  throw Fault{fault_path_access, u"Path/File access error"};
}

}  // namespace

std::string read_file(const fs::path& path) {
  std::error_code error;
  std::ifstream file{path, std::ios::binary};
  if (!file || fs::is_directory(path, error)) throw Fault{fault_file_not_found, u"File not found"};
  std::string bytes{std::istreambuf_iterator<char>{file}, {}};
  if (file.bad()) throw Fault{fault_file_not_found, u"File not found"};
  return bytes;
}

void write_file(const fs::path& path, std::string_view bytes) {
  fs::path temporary = path;
  temporary += ".new";
  {
    std::ofstream file{temporary, std::ios::binary | std::ios::trunc};
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file) cannot_write(temporary);
  }
  std::error_code error;
  fs::rename(temporary, path, error);
  if (error) cannot_write(temporary);
}

Text read_text_file(const fs::path& path) {
  std::string bytes = read_file(path);
  constexpr std::string_view mark = "\xEF\xBB\xBF";
  if (bytes.starts_with(mark)) bytes.erase(0, mark.size());
  Text text = from_utf8(bytes);
  const bool damaged = text.find(u'\xFFFD') != Text::npos && bytes.find("\xEF\xBF\xBD") == std::string::npos;
  return damaged ? from_code_page_1252(bytes) : text;
}

void write_text_file(const fs::path& path, TextView text) { write_file(path, to_utf8(text)); }

void append_text_file(const fs::path& path, TextView text) {
  std::ofstream file{path, std::ios::binary | std::ios::app};
  const std::string bytes = to_utf8(text);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (!file) throw Fault{fault_path_access, u"Path/File access error"};
}

}  // namespace tarnmill
