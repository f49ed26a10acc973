#include "fingerprint.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>

namespace tarnmill {
namespace {

using LineDrawn = PictureBox::LineDrawn;

constexpr const char* file_name = TARNMILL_TEST_DATA "/data/curves.txt";
constexpr const char* heading =
    "# What each curve of the catalogue is known by again. fingerprint.h tells what stands here and how the "
    "file is made anew.\n";

/// FNV-1a, in 16 hexadecimal digits.
class Checksum {
 public:
  void add(std::string_view bytes) {
    for (const char byte : bytes) {
      value_ ^= static_cast<unsigned char>(byte);
      value_ *= 0x100000001B3U;
    }
    value_ ^= 0xFFU;  // parts one entry from the next
    value_ *= 0x100000001B3U;
  }

  [[nodiscard]] std::string text() const {
    std::array<char, 17> digits{};
    std::snprintf(digits.data(), digits.size(), "%016llx", static_cast<unsigned long long>(value_));
    return digits.data();
  }

 private:
  std::uint64_t value_ = 0xCBF29CE484222325U;
};

std::string six_digits(float coordinate) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%.6g", static_cast<double>(coordinate));
  return text.data();
}

std::string place(float x, float y) { return six_digits(x) + "," + six_digits(y); }

std::string texts_of(const Curve& curve) {
  Checksum sum;
  for (const TextView text : {curve.caption, curve.y, curve.x}) sum.add(to_utf8(text));
  sum.add(curve.menu_item);
  if (curve.exponent) {
    const ExponentTexts& exponent = *curve.exponent;
    for (const TextView text : {exponent.y2, exponent.y3, exponent.numerator, exponent.flag}) {
      sum.add(to_utf8(text));
    }
  }
  return sum.text();
}

std::string sum_of(const std::vector<LineDrawn>& lines) {
  Checksum sum;
  for (const LineDrawn& line : lines) {
    sum.add(place(line.x1, line.y1) + " " + place(line.x2, line.y2) + " " + std::to_string(line.color));
  }
  return sum.text();
}

bool is_last_of_grid(const LineDrawn& line) {
  return line.x1 == 0 && line.y1 == 200 && line.x2 == 400 && line.y2 == 200 && line.color == 0;
}

}  // namespace

std::string fingerprint(const Curve& curve, const std::vector<LineDrawn>& lines) {
  std::string known = std::string{curve.procedure} + " " + to_utf8(curve.zoom) + " " + texts_of(curve) + " " +
                      std::to_string(lines.size());
  if (lines.empty()) return known;
  known += " " + place(lines.front().x1, lines.front().y1) + " " + place(lines.back().x2, lines.back().y2);
  return known + " " + sum_of(lines);
}

std::vector<LineDrawn> curve_of(const std::vector<LineDrawn>& lines) {
  const auto axis = std::find_if(lines.begin(), lines.end(), is_last_of_grid);
  return axis == lines.end() ? std::vector<LineDrawn>{} : std::vector<LineDrawn>(axis + 1, lines.end());
}

Fingerprints read_fingerprints() {
  Fingerprints found;
  std::ifstream file{file_name};
  for (std::string line; std::getline(file, line);) {
    if (!line.starts_with('#')) found.push_back(line);
  }
  return found;
}

void write_fingerprints(const Fingerprints& fingerprints) {
  std::ofstream file{file_name};
  file << heading;
  for (const std::string& each : fingerprints) file << each << '\n';
}

bool updates_fingerprints() { return std::getenv("TARNMILL_UPDATE_FINGERPRINTS") != nullptr; }

}  // namespace tarnmill
