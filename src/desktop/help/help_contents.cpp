#include <QRegularExpression>
#include <QTextDocumentFragment>

#include "desktop/help/help_file.h"

namespace tarnmill::desktop {

std::vector<HelpEntry> read_help_contents(const QString& site_map) {
  static const QRegularExpression mark{
      R"--(<(?<list>/?ul)\b|<param\s+name="(?<name>name|local)"\s+value="(?<value>[^"]*)"|(?<end></object>))--",
      QRegularExpression::CaseInsensitiveOption};
  std::vector<HelpEntry> entries;
  HelpEntry entry{.name = {}, .page = {}, .depth = 0};
  for (auto at = mark.globalMatch(site_map); at.hasNext();) {
    const QRegularExpressionMatch found = at.next();
    const QString list = found.captured("list");
    const QString value = QTextDocumentFragment::fromHtml(found.captured("value")).toPlainText();
    if (!list.isEmpty()) {
      entry.depth += list.startsWith('/') ? -1 : 1;
    } else if (!found.captured("end").isEmpty()) {
      if (!entry.name.isEmpty()) entries.push_back(entry);
      entry.name.clear();
      entry.page.clear();
    } else if (found.captured("name").toLower() == "name") {
      entry.name = value;
    } else {
      entry.page = value;
    }
  }
  return entries;
}

}  // namespace tarnmill::desktop
