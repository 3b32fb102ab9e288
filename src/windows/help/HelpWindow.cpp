#include "windows/help/HelpWindow.h"

#include <QtWidgets>

#include "platform/HelpView.h"
#include "support/ProgramTitle.h"
#include "ui_HelpWindow.h"
#include "windows/frame/WindowRegistry.h"

namespace corvane {

namespace {

constexpr int kTopicRole = Qt::UserRole;
constexpr int kContentsWidth = 290;

/// The browser marks one text, so that of several words it is the longest, which tells most.
QString LongestWord(const QString& text) {
  const QStringList words = text.split(' ');
  return *std::max_element(
      words.begin(), words.end(),
      [](const QString& one, const QString& other) { return one.size() < other.size(); });
}

}  // namespace

HelpWindow::HelpWindow(WindowRegistry& registry)
    : Form(registry, Role::Secondary),
      ui_(std::make_unique<Ui::HelpWindow>()),
      view_(std::make_unique<HelpView>(nullptr)) {
  ui_->setupUi(this);
  ui_->fraFound->hide();
  PlaceView();
  BindButtons();
  BindLists();
  BindKeys();
}

HelpWindow::~HelpWindow() = default;

void HelpWindow::PlaceView() {
  view_->setObjectName("HelpView");
  view_->setAccessibleName("Topic");
  ui_->split->addWidget(view_.get());
  ui_->split->setStretchFactor(1, 1);
  ui_->split->setSizes({kContentsWidth, width() - kContentsWidth});
  connect(view_.get(), &HelpView::Shown, this, &HelpWindow::TopicShown);
}

void HelpWindow::BindButtons() {
  // Nothing is entered here that a button would have to wait for, be another window modal or not.
  connect(ui_->cmdBack, &QPushButton::clicked, this, [this] { view_->GoBack(); });
  connect(ui_->cmdForward, &QPushButton::clicked, this, [this] { view_->GoForward(); });
  connect(ui_->cmdFind, &QPushButton::clicked, this, &HelpWindow::cmdFind_Click);
  connect(ui_->txtFind, &QLineEdit::returnPressed, this, &HelpWindow::cmdFind_Click);
}

void HelpWindow::BindLists() {
  const auto openEntry = [this](const QTreeWidgetItem* item) {
    const QString topic = item->data(0, kTopicRole).toString();
    if (!topic.isEmpty()) view_->ShowTopic(topic);
  };
  connect(ui_->treContents, &QTreeWidget::itemClicked, this, openEntry);
  connect(ui_->treContents, &QTreeWidget::itemActivated, this, openEntry);
  connect(ui_->lstFound, &QListWidget::itemClicked, this, &HelpWindow::OpenFound);
  connect(ui_->lstFound, &QListWidget::itemActivated, this, &HelpWindow::OpenFound);
}

void HelpWindow::BindKeys() {
  new QShortcut(QKeySequence::Back, this, [this] { view_->GoBack(); });
  new QShortcut(QKeySequence::Forward, this, [this] { view_->GoForward(); });
  new QShortcut(QKeySequence::Find, this, [this] { FocusField(ui_->txtFind); });
}

std::optional<Refusal> HelpWindow::Open(const std::filesystem::path& file, int context) {
  if (!book_) {
    auto book = HelpBook::Open(file);
    if (const auto* message = std::get_if<QString>(&book)) {
      return Refusal{.text = message->toStdString(), .title = kProgramTitle};
    }
    Read(std::get<HelpBook>(std::move(book)));
  }
  // The desktop takes only a dialog for a part of another window; this also hides the window.
  setWindowFlags((windowFlags() & ~Qt::WindowType_Mask) |
                 (QGuiApplication::modalWindow() ? Qt::Dialog : Qt::Window));
  view_->ShowTopic(book_->TopicOf(context));
  view_->setFocus();
  return std::nullopt;
}

void HelpWindow::showEvent(QShowEvent* event) {
  windowHandle()->setTransientParent(QGuiApplication::modalWindow());
  Form::showEvent(event);
}

void HelpWindow::Read(HelpBook book) {
  book_ = std::move(book);
  view_->Read(*book_);
  AddContents(book_->Contents(), ui_->treContents->invisibleRootItem());
  ui_->treContents->expandAll();
}

void HelpWindow::AddContents(const std::vector<HelpEntry>& entries, QTreeWidgetItem* above) {
  for (const HelpEntry& entry : entries) {
    auto* item = new QTreeWidgetItem(above, {entry.title});
    item->setData(0, kTopicRole, entry.topic);
    AddContents(entry.entries, item);
  }
}

void HelpWindow::ChooseInContents(const QString& topic) {
  const auto* chosen = ui_->treContents->currentItem();
  // A heading may have the topic of its first entry: where neither was chosen, the entry it is.
  if (chosen && chosen->data(0, kTopicRole) == topic) return;
  QTreeWidgetItem* last = nullptr;
  for (QTreeWidgetItemIterator item(ui_->treContents); *item; ++item) {
    if ((*item)->data(0, kTopicRole) == topic) last = *item;
  }
  ui_->treContents->setCurrentItem(last);
}

void HelpWindow::cmdFind_Click() {
  ui_->lstFound->clear();
  for (const QString& topic : book_->Find(ui_->txtFind->text())) {
    auto* item = new QListWidgetItem(book_->TitleOf(topic), ui_->lstFound);
    item->setData(kTopicRole, topic);
  }
  const int count = ui_->lstFound->count();
  ui_->lblFound->setText(count ? QString("&Topics found: %1").arg(count)
                               : "No topic has all these words.");
  ui_->fraFound->show();
  if (count == 0) return FocusField(ui_->txtFind);
  ui_->lstFound->setCurrentRow(0);
  ui_->lstFound->setFocus();
}

void HelpWindow::OpenFound(const QListWidgetItem* item) {
  view_->ShowTopic(item->data(kTopicRole).toString(), LongestWord(ui_->txtFind->text()));
}

void HelpWindow::TopicShown(const QString& topic) {
  setWindowTitle(book_->TitleOf(topic) + " - " + kProgramTitle + " Help");
  ui_->cmdBack->setEnabled(view_->CanGoBack());
  ui_->cmdForward->setEnabled(view_->CanGoForward());
  ChooseInContents(topic);
}

}  // namespace corvane
