#include "windows/help/HelpWindow.h"

#include <QAction>
#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBar>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>
#include <QWindow>

#include "platform/system/ProgramNames.h"
#include "windows/binding/ClearButton.h"
#include "windows/binding/Layouts.h"
#include "windows/binding/PictureIcon.h"
#include "windows/binding/Units.h"
#include "windows/help/HelpPageView.h"

namespace trelonit {

namespace {

constexpr int sideWidth = 300;
constexpr int pageRole = Qt::UserRole;

QString OwnTitle() {
  return QString::fromUtf8(applicationTitle) + QStringLiteral(": справка");
}

}  // namespace

HelpWindow::HelpWindow() {
  setObjectName(QStringLiteral("HelpWindow"));
  setWindowTitle(OwnTitle());
  setContextMenuPolicy(Qt::NoContextMenu);
  AddPage();
  AddToolBar();
  AddFindBar();
  AddSides();
  statusBar();
  ResizeWithinScreen(*this, {1140, 760});
  page_->Go(HelpPages::FirstPage());
}

void HelpWindow::AddPage() {
  page_ = new HelpPageView;
  page_->setObjectName(QStringLiteral("Page"));
  page_->setAccessibleName(QStringLiteral("Страница справки"));
  page_->Refused = [this](const QString& text) { statusBar()->showMessage(text); };
  QObject::connect(page_, &QTextBrowser::sourceChanged, this,
                   [this](const QUrl& url) { ShowPlace(url); });
  QObject::connect(page_, &QTextBrowser::highlighted, this, [this](const QUrl& link) {
    statusBar()->showMessage(pages_.TitleOf(HelpPages::PageAt(link)));
  });
}

QAction* HelpWindow::NewAction(const char* name, const char* text, const char* picture,
                               const QList<QKeySequence>& keys) {
  auto* action = new QAction(QString::fromUtf8(text), this);
  action->setObjectName(QLatin1String(name));
  action->setShortcuts(keys);
  if (picture != nullptr) {
    action->setIcon(PictureIcon(QStringLiteral(":/pictures/%1.svg").arg(QLatin1String(picture))));
  }
  if (!keys.isEmpty()) {
    action->setToolTip(QStringLiteral("%1 (%2)").arg(
        action->text(), keys.front().toString(QKeySequence::NativeText)));
  }
  addAction(action);
  return action;
}

void HelpWindow::AddToolBar() {
  auto* bar = new QToolBar(QStringLiteral("Панель инструментов"));
  bar->setMovable(false);
  bar->setIconSize({toolSize, toolSize});
  const auto add = [&](const char* name, const char* text, const char* picture,
                       const QList<QKeySequence>& keys, std::function<void()> act) {
    QAction* action = NewAction(name, text, picture, keys);
    QObject::connect(action, &QAction::triggered, this, std::move(act));
    bar->addAction(action);
    return action;
  };
  QAction* back = add("Back", "Назад", "tool-back", QKeySequence::keyBindings(QKeySequence::Back),
                      [this] { page_->backward(); });
  QAction* forward =
      add("Forward", "Вперед", "tool-forward", QKeySequence::keyBindings(QKeySequence::Forward),
          [this] { page_->forward(); });
  for (QAction* action : {back, forward}) {
    action->setEnabled(false);
  }
  QObject::connect(page_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
  QObject::connect(page_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
  add("Home", "К началу справки", "tool-home", {QKeySequence(Qt::ALT | Qt::Key_Home)},
      [this] { page_->Go(HelpPages::FirstPage()); });
  bar->addSeparator();
  add("ZoomIn", "Крупнее", "tool-zoom-in",
      {QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)},
      [this] { page_->ZoomTo(page_->Zoom() + 1); });
  add("ZoomOut", "Мельче", "tool-zoom-out", {QKeySequence(Qt::CTRL | Qt::Key_Minus)},
      [this] { page_->ZoomTo(page_->Zoom() - 1); });
  bar->addSeparator();
  add("Find", "Найти на странице", "tool-find", {QKeySequence(QKeySequence::Find)},
      [this] { BeginFind(); });
  addToolBar(bar);
  QObject::connect(
      NewAction("ZoomUsual", "Обычный размер", nullptr, {QKeySequence(Qt::CTRL | Qt::Key_0)}),
      &QAction::triggered, this, [this] { page_->ZoomTo(0); });
}

void HelpWindow::AddFindBar() {
  findBar_ = new QToolBar(QStringLiteral("Найти на странице"));
  findBar_->setObjectName(QStringLiteral("FindBar"));
  findBar_->setMovable(false);
  find_ = new QLineEdit;
  find_->setObjectName(QStringLiteral("FindText"));
  find_->setAccessibleName(QStringLiteral("Найти на странице"));
  find_->setPlaceholderText(find_->accessibleName());
  AddClearButton(*find_);
  findBar_->addWidget(find_);
  const auto add = [this](const char* name, const char* text, const QKeySequence& key,
                          std::function<void()> act) {
    QAction* action = NewAction(name, text, nullptr, {key});
    QObject::connect(action, &QAction::triggered, this, std::move(act));
    findBar_->addAction(action);
  };
  add("FindPrevious", "Предыдущее", QKeySequence(Qt::SHIFT | Qt::Key_F3),
      [this] { FindNext(false); });
  add("FindNext", "Следующее", QKeySequence(Qt::Key_F3), [this] { FindNext(true); });
  findResult_ = new QLabel;
  findResult_->setObjectName(QStringLiteral("FindResult"));
  findBar_->addWidget(findResult_);
  QObject::connect(find_, &QLineEdit::textChanged, this, [this] {
    page_->StayAtPlace();
    FindNext(true);
  });
  QObject::connect(find_, &QLineEdit::returnPressed, this, [this] { FindNext(true); });
  addToolBar(Qt::BottomToolBarArea, findBar_);
  findBar_->hide();
}

void HelpWindow::AddSides() {
  sides_ = new Tabs;
  sides_->setObjectName(QStringLiteral("Sides"));
  sides_->tabBar()->setAccessibleName(QStringLiteral("Разделы справки"));
  sides_->addTab(AddContents(), QStringLiteral("Содержание"));
  sides_->addTab(AddIndex(), QStringLiteral("Указатель"));
  sides_->addTab(AddSearch(), QStringLiteral("Поиск"));
  auto* parts = new QSplitter;
  parts->setChildrenCollapsible(false);
  parts->addWidget(sides_);
  parts->addWidget(page_);
  parts->setStretchFactor(1, 1);
  parts->setSizes({sideWidth, width() - sideWidth});
  setCentralWidget(parts);
}

QWidget* HelpWindow::AddContents() {
  contents_ = new QTreeWidget;
  contents_->setObjectName(QStringLiteral("Contents"));
  contents_->setAccessibleName(QStringLiteral("Содержание"));
  contents_->setHeaderHidden(true);
  AddEntries(contents_->invisibleRootItem(), pages_.Contents());
  const auto open = [this](QTreeWidgetItem* entry) {
    if (entry != nullptr) {
      page_->Go(entry->data(0, pageRole).toString());
    }
  };
  QObject::connect(contents_, &QTreeWidget::currentItemChanged, this, open);
  // A click on the present entry goes back to its place.
  QObject::connect(contents_, &QTreeWidget::itemClicked, this, open);
  return contents_;
}

void HelpWindow::AddEntries(QTreeWidgetItem* parent, const std::vector<HelpEntry>& entries) {
  for (const HelpEntry& entry : entries) {
    auto* item = new QTreeWidgetItem(parent, {entry.Title});
    item->setData(0, pageRole, entry.Page);
    AddEntries(item, entry.Children);
  }
}

QWidget* HelpWindow::AddIndex() {
  auto* side = new QWidget;
  auto* column = new QVBoxLayout(side);
  term_ = new QLineEdit;
  term_->setObjectName(QStringLiteral("Term"));
  term_->setAccessibleName(QStringLiteral("Термин"));
  term_->setPlaceholderText(term_->accessibleName());
  AddClearButton(*term_);
  column->addWidget(term_);
  terms_ = new QListWidget;
  terms_->setObjectName(QStringLiteral("Terms"));
  terms_->setAccessibleName(QStringLiteral("Указатель"));
  column->addWidget(terms_);
  const auto open = [this](QListWidgetItem* item) {
    if (item != nullptr) {
      page_->Go(item->data(pageRole).toString());
    }
  };
  QObject::connect(term_, &QLineEdit::textChanged, this,
                   [this](const QString& text) { ShowTerms(text); });
  QObject::connect(term_, &QLineEdit::returnPressed, this, [this, open] { open(terms_->item(0)); });
  QObject::connect(terms_, &QListWidget::itemClicked, this, open);
  QObject::connect(terms_, &QListWidget::itemActivated, this, open);
  ShowTerms({});
  return side;
}

void HelpWindow::ShowTerms(const QString& beginning) {
  terms_->clear();
  for (const HelpTerm& term : pages_.Terms()) {
    if (!beginning.isEmpty() && FindWords(term.Term, {beginning}).empty()) {
      continue;
    }
    for (const QString& page : term.Pages) {
      const QString text = term.Pages.size() == 1
                               ? term.Term
                               : QStringLiteral("%1 (%2)").arg(term.Term, pages_.TitleOf(page));
      auto* item = new QListWidgetItem(text, terms_);
      item->setData(pageRole, page);
    }
  }
}

QWidget* HelpWindow::AddSearch() {
  auto* side = new QWidget;
  auto* column = new QVBoxLayout(side);
  auto* row = new QHBoxLayout;
  column->addLayout(row);
  words_ = new QLineEdit;
  words_->setObjectName(QStringLiteral("Words"));
  words_->setAccessibleName(QStringLiteral("Слова для поиска"));
  words_->setPlaceholderText(words_->accessibleName());
  words_->setToolTip(
      QStringLiteral("Находятся страницы со всеми словами; «слова в кавычках» "
                     "ищутся подряд"));
  AddClearButton(*words_);
  row->addWidget(words_);
  auto* search = new QPushButton(QStringLiteral("Найти"));
  search->setObjectName(QStringLiteral("Search"));
  row->addWidget(search);
  found_ = new QLabel;
  found_->setObjectName(QStringLiteral("Found"));
  column->addWidget(found_);
  hits_ = new QListWidget;
  hits_->setObjectName(QStringLiteral("Hits"));
  hits_->setAccessibleName(QStringLiteral("Найденные страницы"));
  hits_->setWordWrap(true);
  hits_->setAlternatingRowColors(true);
  column->addWidget(hits_);
  const auto open = [this](QListWidgetItem* item) { OpenHit(item->data(pageRole).toString()); };
  QObject::connect(search, &QPushButton::clicked, this, [this] { Search(); });
  QObject::connect(words_, &QLineEdit::returnPressed, this, [this] { Search(); });
  QObject::connect(hits_, &QListWidget::itemClicked, this, open);
  QObject::connect(hits_, &QListWidget::itemActivated, this, open);
  return side;
}

void HelpWindow::Search() {
  const std::vector<HelpHit> hits = pages_.Search(SearchWords(words_->text()));
  hits_->clear();
  for (const HelpHit& hit : hits) {
    auto* item = new QListWidgetItem(
        QStringLiteral("%1 (%2)\n%3").arg(hit.Title, QString::number(hit.Count), hit.Excerpt),
        hits_);
    item->setData(pageRole, hit.Page);
  }
  found_->setText(hits.empty() ? QStringLiteral("Ничего не найдено")
                               : QStringLiteral("Найдено страниц: %1").arg(hits.size()));
}

void HelpWindow::OpenHit(const QString& page) {
  page_->Go(page);
  page_->Mark(SearchWords(words_->text()));
  page_->GoToFirstMark();
}

void HelpWindow::ShowPlace(const QUrl& url) {
  page_->Mark({});
  const QString page = HelpPages::PageAt(url);
  const QString file = page.section(QLatin1Char('#'), 0, 0);
  setWindowTitle(page_->documentTitle() + QStringLiteral(" - ") + OwnTitle());
  QTreeWidgetItem* entry = nullptr;
  for (QTreeWidgetItemIterator item(contents_); *item != nullptr; ++item) {
    const QString listed = (*item)->data(0, pageRole).toString();
    if (listed == page) {
      entry = *item;
      break;
    }
    if (listed == file) {
      entry = *item;
    }
  }
  const QSignalBlocker quiet(contents_);
  contents_->setCurrentItem(entry);
  if (entry != nullptr) {
    contents_->scrollToItem(entry);
  }
}

void HelpWindow::BeginFind() {
  findBar_->show();
  find_->setFocus();
  find_->selectAll();
}

void HelpWindow::EndFind() {
  findBar_->hide();
  page_->Mark({});
  page_->setFocus();
}

void HelpWindow::FindNext(bool forward) {
  findResult_->clear();
  const QString text = find_->text();
  const HelpPageView::Found found = page_->FindNext(text, forward);
  if (text.isEmpty()) {
    return;
  }
  findBar_->show();
  findResult_->setText(found.Places == 0
                           ? QStringLiteral("Не найдено")
                           : QStringLiteral("%1 из %2").arg(found.Place).arg(found.Places));
}

void HelpWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Escape) {
    QMainWindow::keyPressEvent(event);
  } else if (findBar_->isVisible()) {
    EndFind();
  } else {
    close();
  }
}

void HelpWindow::StandOver(const QWidget* modal) {
  winId();
  QWindow* own = windowHandle();
  QWindow* below = modal == nullptr ? nullptr : modal->windowHandle();
  // What was opened while the help was read stands over it. Each over the other would be a circle,
  // in which the toolkit looks for ever.
  for (QWindow* window = below; window != nullptr; window = window->transientParent()) {
    if (window->transientParent() == own) {
      window->setTransientParent(own->transientParent());
    }
  }
  own->setTransientParent(below);
}

void HelpWindow::ShowPage(const QString& page) {
  page_->Go(page);
  // A window that waits for its end lets keys only to what belongs to it.
  StandOver(QApplication::activeModalWidget());
  if (isMinimized()) {
    showNormal();
  } else {
    show();
  }
  raise();
  activateWindow();
  page_->setFocus();
}

void HelpViewer::Open() {
  OpenPlace({});
}

void HelpViewer::OpenPlace(const QString& place) {
  if (window_ == nullptr) {
    window_ = std::make_unique<HelpWindow>();
  }
  window_->ShowPage(window_->Pages().PageOf(place));
}

}  // namespace trelonit
