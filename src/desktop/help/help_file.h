#pragma once

#include <QByteArray>
#include <QString>
#include <filesystem>
#include <memory>
#include <optional>
#include <vector>

struct chmFile;

namespace tarnmill::desktop {

/// One line of a help file's list of contents.
struct HelpEntry {
  QString name;
  /// The page that it leads to; empty for a mere heading.
  QString page;
  /// 1 for the outermost lines.
  int depth = 1;
};

/// A compiled help file, open for reading. Nothing in it is trusted: what can't be read is absent.
class HelpFile {
 public:
  /// Null when the file is missing or no help file.
  [[nodiscard]] static std::unique_ptr<HelpFile> open(const std::filesystem::path& path);

  [[nodiscard]] const QString& title() const { return title_; }
  /// The page that the file opens at.
  [[nodiscard]] const QString& default_page() const { return default_page_; }
  [[nodiscard]] const std::vector<HelpEntry>& contents() const { return contents_; }
  /// The bytes of a page or picture within the file.
  [[nodiscard]] std::optional<QByteArray> read(const QString& name) const;

 private:
  struct Close {
    void operator()(chmFile* file) const;
  };

  explicit HelpFile(chmFile* file);
  void read_system();

  std::unique_ptr<chmFile, Close> file_;
  QString title_;
  QString default_page_;
  QString contents_page_;
  std::vector<HelpEntry> contents_;
};

/// The lines of a list of contents as help compilers take them: nested lists of site-map objects.
[[nodiscard]] std::vector<HelpEntry> read_help_contents(const QString& site_map);

}  // namespace tarnmill::desktop
