#include "desktop/help/help_window.h"

#include <QBoxLayout>
#include <QLabel>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTreeWidget>
#include <algorithm>
#include <utility>

#include "desktop/help/help_browser.h"
#include "desktop/help/help_file.h"
#include "desktop/skin/key.h"
#include "desktop/skin/text_field.h"

namespace tarnmill::desktop {

namespace {

constexpr int page_role = Qt::UserRole;
constexpr int margin = 16;
constexpr int gap = 8;
constexpr int field_height = 32;
constexpr int contents_width = 240;
constexpr QSize first_size{920, 640};

}  // namespace

HelpWindow::HelpWindow(std::unique_ptr<HelpFile> file)
    : file_{std::move(file)},
      browser_{new HelpBrowser{*file_}},
      contents_{new QTreeWidget},
      words_{new TextField},
      answer_{new QLabel},
      back_{make_key("back", tr("Back"), tr("Back (Alt+Left)"), QKeySequence::Back)},
      forward_{make_key("forward", tr("Forward"), tr("Forward (Alt+Right)"), QKeySequence::Forward)},
      previous_{
          make_key("previous", tr("Previous"), tr("Find Previous (Shift+F3)"), QKeySequence::FindPrevious)},
      next_{make_key("next", tr("Next"), tr("Find Next (F3)"), QKeySequence::FindNext)} {
  setKind(GroundKind::framed_bone);
  setWindowTitle(file_->title());
  resize(first_size);
  lay_out();
  fill_contents();
  connect_parts();
}

HelpWindow::~HelpWindow() = default;

Key* HelpWindow::make_key(const char* name, const QString& caption, const QString& tooltip,
                          const QKeySequence& keys) {
  auto* key = new Key;
  key->setObjectName(QLatin1String{name});
  key->setRole(KeyRole::dialog);
  key->setText(caption);
  key->setToolTip(tooltip);
  key->setAccessibleName(caption);
  key->setFixedSize(88, field_height);
  connect(new QShortcut{keys, this}, &QShortcut::activated, key, &Key::click);
  return key;
}

void HelpWindow::lay_out() {
  browser_->setObjectName("page");
  browser_->setAccessibleName(tr("Help page"));
  contents_->setObjectName("contents");
  contents_->setAccessibleName(tr("Contents"));
  contents_->setHeaderHidden(true);
  contents_->setIndentation(14);
  auto* parts = new QSplitter;
  parts->addWidget(contents_);
  parts->addWidget(browser_);
  parts->setSizes({contents_width, first_size.width() - contents_width});
  parts->setStretchFactor(1, 1);
  parts->setChildrenCollapsible(false);
  auto* whole = new QVBoxLayout{this};
  whole->setContentsMargins(margin, margin, margin, margin);
  whole->setSpacing(gap);
  whole->addLayout(make_bar());
  whole->addWidget(parts, 1);
}

QLayout* HelpWindow::make_bar() {
  words_->setObjectName("words");
  words_->setAccessibleName(tr("Search in this page"));
  words_->setPlaceholderText(tr("Search in this page"));
  words_->setFixedSize(contents_width, field_height);
  answer_->setObjectName("answer");
  auto* bar = new QHBoxLayout;
  bar->setSpacing(gap);
  for (Key* key : {back_, forward_}) bar->addWidget(key);
  bar->addStretch(1);
  bar->addWidget(answer_);
  bar->addWidget(words_);
  for (Key* key : {previous_, next_}) bar->addWidget(key);
  return bar;
}

void HelpWindow::fill_contents() {
  std::vector<QTreeWidgetItem*> above{contents_->invisibleRootItem()};
  for (const HelpEntry& entry : file_->contents()) {
    const auto depth = static_cast<std::size_t>(std::max(entry.depth, 1));
    above.resize(std::min(depth, above.size()));
    auto* item = new QTreeWidgetItem{above.back(), {entry.name}};
    item->setData(0, page_role, entry.page);
    above.push_back(item);
  }
  contents_->expandAll();
}

void HelpWindow::connect_parts() {
  connect(back_, &Key::clicked, browser_, &HelpBrowser::backward);
  connect(forward_, &Key::clicked, browser_, &HelpBrowser::forward);
  connect(browser_, &HelpBrowser::backwardAvailable, back_, &Key::setEnabled);
  connect(browser_, &HelpBrowser::forwardAvailable, forward_, &Key::setEnabled);
  connect(browser_, &HelpBrowser::page_changed, this, &HelpWindow::follow_page);
  connect(previous_, &Key::clicked, this, [this] { search(true); });
  connect(next_, &Key::clicked, this, [this] { search(false); });
  connect(words_, &QLineEdit::returnPressed, this, [this] { search(false); });
  connect(words_, &QLineEdit::textChanged, answer_, &QLabel::clear);
  connect(new QShortcut{QKeySequence::Find, this}, &QShortcut::activated, words_, [this] {
    words_->setFocus();
    words_->selectAll();
  });
  connect(new QShortcut{Qt::Key_Escape, this}, &QShortcut::activated, this, &QWidget::close);
  connect(contents_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
    const QString page = item == nullptr ? QString{} : item->data(0, page_role).toString();
    if (!page.isEmpty() && page != browser_->page()) browser_->show_page(page);
  });
  for (Key* key : {back_, forward_}) key->setEnabled(false);
  browser_->setFocus();
}

void HelpWindow::show_default_page() { browser_->show_page(file_->default_page()); }

void HelpWindow::follow_page(const QString& page) {
  answer_->clear();
  const QSignalBlocker not_chosen{contents_};
  for (QTreeWidgetItemIterator at{contents_}; *at != nullptr; ++at) {
    if ((*at)->data(0, page_role).toString() == page) return contents_->setCurrentItem(*at);
  }
}

void HelpWindow::search(bool backward) {
  const bool found = browser_->find_words(words_->text(), backward);
  answer_->setText(found || words_->text().isEmpty() ? QString{} : tr("Not found."));
}

}  // namespace tarnmill::desktop
