#include "desktop/help/help_file.h"

#include <chm_lib.h>

#include <QtEndian>
#include <cstdint>

namespace tarnmill::desktop {

namespace {

/// No page or picture is larger; a file that says otherwise is damaged.
constexpr std::uint64_t largest_object = 16U << 20U;

/// The system object begins with its version.
constexpr qsizetype head_length = 4;

std::uint16_t short_at(const QByteArray& bytes, qsizetype at) {
  return qFromLittleEndian<std::uint16_t>(bytes.constData() + at);
}

/// The text that ends at a zero.
QString text_of(const QByteArray& bytes) { return QString::fromUtf8(bytes.constData()); }

}  // namespace

void HelpFile::Close::operator()(chmFile* file) const { chm_close(file); }

HelpFile::HelpFile(chmFile* file) : file_{file} {}

std::unique_ptr<HelpFile> HelpFile::open(const std::filesystem::path& path) {
  chmFile* file = chm_open(path.c_str());
  if (file == nullptr) return nullptr;
  std::unique_ptr<HelpFile> help{new HelpFile{file}};
  help->read_system();
  if (const auto list = help->read(help->contents_page_)) {
    help->contents_ = read_help_contents(QString::fromUtf8(*list));
  }
  return help;
}

void HelpFile::read_system() {
  constexpr std::uint16_t contents_code = 0;
  constexpr std::uint16_t default_page_code = 2;
  constexpr std::uint16_t title_code = 3;
  const QByteArray system = read(QStringLiteral("#SYSTEM")).value_or(QByteArray{});
  for (qsizetype at = head_length; at + 4 <= system.size();) {
    const std::uint16_t code = short_at(system, at);
    const std::uint16_t length = short_at(system, at + 2);
    const QByteArray value = system.mid(at + 4, length);
    if (code == contents_code) contents_page_ = text_of(value);
    if (code == default_page_code) default_page_ = text_of(value);
    if (code == title_code) title_ = text_of(value);
    at += 4 + length;
  }
}

std::optional<QByteArray> HelpFile::read(const QString& name) const {
  const QByteArray path = "/" + name.toUtf8();
  chmUnitInfo unit{};
  if (name.isEmpty() || path.size() > CHM_MAX_PATHLEN ||
      chm_resolve_object(file_.get(), path.constData(), &unit) != CHM_RESOLVE_SUCCESS ||
      unit.length > largest_object) {
    return std::nullopt;
  }
  QByteArray bytes(static_cast<qsizetype>(unit.length), '\0');
  const auto read = chm_retrieve_object(file_.get(), &unit, reinterpret_cast<unsigned char*>(bytes.data()),
                                        0,  // NOLINT: bytes either way
                                        static_cast<LONGINT64>(unit.length));
  if (read != bytes.size()) return std::nullopt;
  return bytes;
}

}  // namespace tarnmill::desktop
