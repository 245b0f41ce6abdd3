#include "ui/help_window.h"

#include <QFile>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSplitter>
#include <QTextBrowser>
#include <QTextDocument>
#include <QUrl>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/app_icon.h"

namespace brenko::ui {

HelpWindow::HelpWindow(QWidget* parent)
    : QWidget(parent, Qt::Window),
      contents_(new QListWidget),
      browser_(new QTextBrowser),
      search_(new QLineEdit) {
  setObjectName(QStringLiteral("HelpWindow"));
  setWindowTitle(QStringLiteral("Brenko Calculator Help"));
  setWindowIcon(AppIcon());
  contents_->setObjectName(QStringLiteral("lstContents"));
  browser_->setObjectName(QStringLiteral("txtManual"));
  browser_->setOpenExternalLinks(true);
  search_->setObjectName(QStringLiteral("txtSearch"));
  search_->setPlaceholderText(QStringLiteral("Search the manual"));
  search_->setClearButtonEnabled(true);
  auto* next = new QPushButton(QStringLiteral("Find &Next"));
  next->setObjectName(QStringLiteral("cmdFindNext"));
  auto* previous = new QPushButton(QStringLiteral("Find &Previous"));
  previous->setObjectName(QStringLiteral("cmdFindPrevious"));

  auto* searchRow = new QHBoxLayout;
  auto* searchLabel = new QLabel(QStringLiteral("&Search:"));
  searchLabel->setBuddy(search_);
  searchRow->addWidget(searchLabel);
  searchRow->addWidget(search_, 1);
  searchRow->addWidget(previous);
  searchRow->addWidget(next);

  auto* splitter = new QSplitter;
  splitter->addWidget(contents_);
  splitter->addWidget(browser_);
  splitter->setStretchFactor(1, 3);
  splitter->setSizes({200, 600});

  auto* layout = new QVBoxLayout(this);
  layout->addLayout(searchRow);
  layout->addWidget(splitter, 1);
  resize(860, 620);

  connect(search_, &QLineEdit::returnPressed, this, [this] { Find(false); });
  connect(next, &QPushButton::clicked, this, [this] { Find(false); });
  connect(previous, &QPushButton::clicked, this, [this] { Find(true); });
  connect(contents_, &QListWidget::itemActivated, this,
          [this](QListWidgetItem* item) { GoTo(item); });
  connect(contents_, &QListWidget::itemClicked, this,
          [this](QListWidgetItem* item) { GoTo(item); });
}

QStringList HelpWindow::Candidates(const QString& helpFile) {
  QStringList places;
  if (helpFile.endsWith(QStringLiteral(".html"), Qt::CaseInsensitive)) {
    places << helpFile;
  }
  // Compiled into the program, so Help works wherever it is installed.
  places << kCompiledManual;
  return places;
}

void HelpWindow::Open(const QString& helpFile) {
  for (const QString& place : Candidates(helpFile)) {
    if (QFileInfo::exists(place)) {
      if (place != source_) Load(place);
      break;
    }
  }
  show();
  raise();
  activateWindow();
}

void HelpWindow::Load(const QString& path) {
  source_ = path;
  browser_->setSource(path.startsWith(QLatin1Char(':'))
                          ? QUrl(QStringLiteral("qrc") + path)
                          : QUrl::fromLocalFile(path));
  FillContents();
  browser_->scrollToAnchor(QString());
}

void HelpWindow::FillContents() {
  contents_->clear();
  // Every chapter heading becomes a contents entry; a heading without an
  // anchor is found by its text.
  static const QRegularExpression heading(
      QStringLiteral("<h2([^>]*)>(.*?)</h2>"),
      QRegularExpression::CaseInsensitiveOption |
          QRegularExpression::DotMatchesEverythingOption);
  static const QRegularExpression idAttribute(
      QStringLiteral("id\\s*=\\s*\"([^\"]*)\""),
      QRegularExpression::CaseInsensitiveOption);
  static const QRegularExpression tags(QStringLiteral("<[^>]*>"));
  // Read the page as written: the rich-text document does not keep the
  // headings' ids where they can be listed.
  QString page;
  if (QFile file(source_); file.open(QIODevice::ReadOnly)) {
    page = QString::fromUtf8(file.readAll());
  }
  auto it = heading.globalMatch(page);
  while (it.hasNext()) {
    const QRegularExpressionMatch match = it.next();
    QString text = match.captured(2);
    text.remove(tags);
    QTextDocument plain;
    plain.setHtml(text);
    auto* item = new QListWidgetItem(plain.toPlainText().simplified());
    const QRegularExpressionMatch id = idAttribute.match(match.captured(1));
    item->setData(Qt::UserRole, id.hasMatch() ? id.captured(1) : QString());
    contents_->addItem(item);
  }
  // The contents list as wide as its longest chapter title, so that no
  // title is cut; the page takes the rest.
  if (auto* splitter = qobject_cast<QSplitter*>(contents_->parentWidget())) {
    const int wanted = contents_->sizeHintForColumn(0) +
                       2 * contents_->frameWidth() +
                       contents_->verticalScrollBar()->sizeHint().width() + 8;
    const int total = std::max(splitter->width(), width() - 20);
    splitter->setSizes({wanted, std::max(300, total - wanted)});
  }
}

void HelpWindow::GoTo(QListWidgetItem* item) {
  const QString anchor = item->data(Qt::UserRole).toString();
  if (!anchor.isEmpty()) {
    browser_->scrollToAnchor(anchor);
    return;
  }
  // No anchor: find the heading's text from the top of the page.
  QTextCursor cursor = browser_->textCursor();
  cursor.movePosition(QTextCursor::Start);
  browser_->setTextCursor(cursor);
  browser_->find(item->text());
}

void HelpWindow::Find(bool backwards) {
  const QString text = search_->text();
  if (text.isEmpty()) return;
  QTextDocument::FindFlags flags;
  if (backwards) flags |= QTextDocument::FindBackward;
  if (browser_->find(text, flags)) return;
  // Wrap around once, as a reader expects.
  QTextCursor cursor = browser_->textCursor();
  cursor.movePosition(backwards ? QTextCursor::End : QTextCursor::Start);
  browser_->setTextCursor(cursor);
  browser_->find(text, flags);
}

}  // namespace brenko::ui
