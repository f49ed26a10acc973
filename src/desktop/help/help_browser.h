#pragma once

#include <QTextBrowser>

namespace tarnmill::desktop {

class HelpFile;

/// Shows pages of a help file, which must outlive it. Links lead to other pages of the same file; what
/// lies elsewhere is neither followed nor fetched.
class HelpBrowser : public QTextBrowser {
  Q_OBJECT

 public:
  explicit HelpBrowser(const HelpFile& file, QWidget* parent = nullptr);

  /// Shows the page of this name.
  void show_page(const QString& page);
  /// The name of the page shown, without a place in it.
  [[nodiscard]] QString page() const;

  /// Selects the next or the last occurrence of `words` in the page, around its end; letters count alike in
  /// both cases. False when there is none.
  bool find_words(const QString& words, bool backward);

 signals:
  /// The page of this name is shown now.
  void page_changed(const QString& page);

 protected:
  QVariant loadResource(int type, const QUrl& name) override;

 private:
  void follow(const QUrl& link);

  const HelpFile& file_;
};

}  // namespace tarnmill::desktop
