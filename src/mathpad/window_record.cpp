#include "mathpad/window_record.h"

#include <algorithm>

#include "engine/fault.h"
#include "engine/rounding.h"
#include "forms/desk.h"
#include "forms/files.h"
#include "forms/workbench.h"
#include "mathpad/math_pad.h"

namespace tarnmill {

namespace {

void put(std::string& bytes, std::int16_t value) {
  const auto bits = static_cast<std::uint16_t>(value);
  bytes += static_cast<char>(bits & 0xFF);
  bytes += static_cast<char>(bits >> 8);
}

/// Takes a number from the front of the bytes; 0 when there are too few.
std::int16_t take(std::string_view& bytes) {
  if (bytes.size() < 2) {
    bytes = {};
    return 0;
  }
  const unsigned low = static_cast<unsigned char>(bytes[0]);
  const unsigned high = static_cast<unsigned char>(bytes[1]);
  bytes.remove_prefix(2);
  return static_cast<std::int16_t>(static_cast<std::uint16_t>(high << 8 | low));
}

}  // namespace

std::string bytes_of(const WindowRecord& record) {
  constexpr std::size_t longest_name = 0x7FFF;
  const std::string name = to_utf8(record.font_name).substr(0, longest_name);
  std::string bytes;
  for (const std::int16_t each : {record.top, record.left, record.width, record.height, record.state}) {
    put(bytes, each);
  }
  put(bytes, static_cast<std::int16_t>(name.size()));
  bytes += name;
  put(bytes, record.font_size);
  return bytes;
}

WindowRecord read_window_record(std::string_view bytes) {
  WindowRecord record;
  for (std::int16_t* each : {&record.top, &record.left, &record.width, &record.height, &record.state}) {
    *each = take(bytes);
  }
  const auto length = static_cast<std::uint16_t>(take(bytes));
  const std::size_t name = std::min<std::size_t>(length, bytes.size());
  record.font_name = from_utf8(bytes.substr(0, name));
  bytes.remove_prefix(name);
  record.font_size = take(bytes);
  return record;
}

namespace {

std::filesystem::path record_path(Desk& desk) {
  return desk.folder() / to_utf8(desk.program_name() + u".INI");
}

}  // namespace

void MathPad::save_window_record() {
  WindowRecord record;
  resume_next([&] { record.top = ToInteger(Top); }, [&] { record.left = ToInteger(Left); },
              [&] { record.width = ToInteger(Width); }, [&] { record.height = ToInteger(Height); },
              [&] { record.state = WindowState; }, [&] { record.font_name = rt1.FontName; },
              [&] { record.font_size = ToInteger(rt1.FontSize); },
              [&] { write_file(record_path(bench().desk()), bytes_of(record)); });
}

void MathPad::load_window_record() {
  std::string bytes;
  resume_step([&] { bytes = read_file(record_path(bench().desk())); });
  const WindowRecord record = read_window_record(bytes);
  if (record == WindowRecord{}) return;
  resume_next([&] { Top = record.top; }, [&] { Left = record.left; },
              [&] {
                if (record.width > 0) Width = record.width;
              },
              [&] {
                if (record.height > 0) Height = record.height;
              },
              [&] {
                if (record.state >= 0 && record.state <= 2) WindowState = record.state;
              },
              [&] {
                if (!record.font_name.empty()) rt1.FontName = record.font_name;
              },
              [&] {
                if (record.font_size > 0) rt1.FontSize = record.font_size;
              });
}

void MathPad::save_window_record_and_unload() {
  save_window_record();
  Unload();
}

}  // namespace tarnmill
