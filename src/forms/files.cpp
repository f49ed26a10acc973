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

[[noreturn]] void cannot_write() { throw Fault{fault_path_access, u"Path/File access error"}; }

/// The system would take the path for what stands before the zero.
bool holds_zero(const fs::path& path) { return path.native().find('\0') != std::string::npos; }

/// Writes the bytes into the file itself; false when they don't all arrive.
bool write_bytes(const fs::path& path, std::string_view bytes, std::ios::openmode mode) {
  std::ofstream file{path, std::ios::binary | mode};
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  return static_cast<bool>(file);
}

/// A name beside the file that nothing has yet.
fs::path unused_name_beside(const fs::path& path) {
  std::error_code unreadable;
  fs::path name = path;
  do {
    name += ".new";
  } while (fs::exists(fs::symlink_status(name, unreadable)));
  return name;
}

/// Puts the bytes in place of an ordinary file or where nothing is; false when they can't be.
bool replace_file(const fs::path& path, std::string_view bytes) {
  const fs::path temporary = unused_name_beside(path);
  std::error_code error;
  if (write_bytes(temporary, bytes, std::ios::trunc)) {
    const fs::file_status old = fs::status(path, error);
    if (fs::exists(old)) fs::permissions(temporary, old.permissions(), error);
    fs::rename(temporary, path, error);
    if (!error) return true;
  }
  fs::remove(temporary, error);
  return false;
}

}  // namespace

std::string read_file(const fs::path& path) {
  std::error_code error;
  std::ifstream file{path, std::ios::binary};
  // A device may have no end.
  if (!file || holds_zero(path) || fs::is_directory(path, error) || fs::is_character_file(path, error))
    throw Fault{fault_file_not_found, u"File not found"};
  std::string bytes{std::istreambuf_iterator<char>{file}, {}};
  if (file.bad()) throw Fault{fault_file_not_found, u"File not found"};
  return bytes;
}

void write_file(const fs::path& path, std::string_view bytes) {
  std::error_code error;
  if (holds_zero(path)) cannot_write();
  // A link stays one, and what it leads to is written.
  const fs::path end = fs::is_symlink(path, error) ? fs::weakly_canonical(path, error) : path;
  const fs::path target = error ? path : end;
  const fs::file_status present = fs::status(target, error);
  const bool ordinary = !fs::exists(present) || fs::is_regular_file(present);
  const bool written = ordinary ? replace_file(target, bytes) : write_bytes(target, bytes, std::ios::out);
  if (!written) cannot_write();
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
  if (!write_bytes(path, to_utf8(text), std::ios::app)) cannot_write();
}

}  // namespace tarnmill
