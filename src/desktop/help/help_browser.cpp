#include "desktop/help/help_browser.h"

#include <QUrl>

#include "desktop/help/help_file.h"

namespace tarnmill::desktop {

namespace {

const QString scheme = QStringLiteral("help");

}  // namespace

HelpBrowser::HelpBrowser(const HelpFile& file, QWidget* parent) : QTextBrowser{parent}, file_{file} {
  setOpenLinks(false);
  document()->setDocumentMargin(16);
  connect(this, &QTextBrowser::anchorClicked, this, &HelpBrowser::follow);
  // The source itself still names the page before.
  connect(this, &QTextBrowser::sourceChanged, this,
          [this](const QUrl& source) { emit page_changed(source.path().mid(1)); });
}

void HelpBrowser::show_page(const QString& page) {
  QUrl url;
  url.setScheme(scheme);
  url.setPath("/" + page.section('#', 0, 0));
  url.setFragment(page.section('#', 1));
  follow(url);
}

QString HelpBrowser::page() const { return source().path().mid(1); }

void HelpBrowser::follow(const QUrl& link) {
  const QUrl url = source().resolved(link);
  if (url.scheme() != scheme || !file_.read(url.path().mid(1))) return;
  setSource(url, QTextDocument::HtmlResource);
}

QVariant HelpBrowser::loadResource(int /*type*/, const QUrl& name) {
  const QUrl url = source().resolved(name);
  if (url.scheme() != scheme) return {};
  const auto bytes = file_.read(url.path().mid(1));
  return bytes ? QVariant{*bytes} : QVariant{};
}

bool HelpBrowser::find_words(const QString& words, bool backward) {
  if (words.isEmpty()) return false;
  const auto flags = backward ? QTextDocument::FindBackward : QTextDocument::FindFlags{};
  if (find(words, flags)) return true;
  const QTextCursor before = textCursor();
  moveCursor(backward ? QTextCursor::End : QTextCursor::Start);
  if (find(words, flags)) return true;
  setTextCursor(before);
  return false;
}

}  // namespace tarnmill::desktop
