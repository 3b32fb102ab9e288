#include "windows/frame/EntryList.h"

#include <QtWidgets>

namespace corvane {

namespace {

/// A column: its heading and the widest text that it has to show whole, in two lines both, which
/// keeps the fields' part of the window wide.
struct Column {
  const char* heading;
  const char* widest;
};
constexpr Column kColumns[] = {{"Entry\nRate %", "10.0000"},
                               {"Balance\nAPY/computed", "1,000,000.00"}};

/// How many lines of the list show below the fields, where the screen has room for them.
constexpr int kLinesBelow = 5;

QString Line(const std::string& text) {
  return QString::fromStdString(text);
}

QString Percent(const std::string& number) {
  return number.empty() ? QString() : Line(number) + " %";
}

QString Apys(const EntryLine& entry) {
  return Line(entry.disclosed) + (entry.computed.empty() ? "" : " / " + Line(entry.computed));
}

/// What a screen reader says of an entry, and its tool tip.
QString Sentence(const EntryLine& entry) {
  QString text = "Entry " + Line(entry.name) + ": rate " + Percent(entry.rate) + ", balance " +
                 Line(entry.balance) + ", disclosed APY " + Percent(entry.disclosed);
  if (!entry.computed.empty()) text += ", computed APY " + Percent(entry.computed);
  return text;
}

int EntryOf(const QTreeWidgetItem& item) {
  return item.data(0, Qt::UserRole).toInt();
}

}  // namespace

EntryList::EntryList(QWidget* parent)
    : QDockWidget(parent),
      heading_(new QLabel(this)),
      place_(new QWidget(this)),
      list_(new QTreeWidget(place_)) {
  setObjectName("dckEntries");
  setFeatures(NoDockWidgetFeatures);
  heading_->setObjectName("lblEntries");
  heading_->setMargin(style()->pixelMetric(QStyle::PM_LayoutLeftMargin) / 2);
  setTitleBarWidget(heading_);
  list_->setObjectName("lstEntries");
  list_->setAccessibleName("Entries so far");
  list_->setRootIsDecorated(false);
  list_->setUniformRowHeights(true);
  // The focus moves when an entry is chosen, as with buttons (see Form::OnClick).
  list_->setFocusPolicy(Qt::TabFocus);
  list_->setTabKeyNavigation(false);
  list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  QStringList headings;
  for (const Column& column : kColumns) headings << column.heading;
  list_->setHeaderLabels(headings);
  list_->installEventFilter(this);
  // Going back fills the list anew, which must not happen while it handles the click.
  connect(list_, &QTreeWidget::itemClicked, this, [this](const QTreeWidgetItem* item) {
    QTimer::singleShot(0, this, [this, entry = EntryOf(*item)] { emit GoBackTo(entry); });
  });
  auto* layout = new QVBoxLayout(place_);
  layout->setContentsMargins({});
  layout->addWidget(list_);
  setWidget(place_);
  SetColumnsByFont();
}

void EntryList::SetColumnsByFont() {
  list_->header()->setSectionResizeMode(QHeaderView::Fixed);
  list_->header()->setStretchLastSection(false);
  const QFontMetrics metrics = list_->fontMetrics();
  // What the style leaves free at both sides of a heading and of an item.
  const int margin =
      2 * qMax(style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, list_),
               style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, list_) + 1);
  widthBeside_ = 2 * list_->frameWidth() + style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  for (int place = 0; const Column& column : kColumns) {
    const int text =
        qMax(metrics.size(0, column.heading).width(), metrics.horizontalAdvance(column.widest));
    list_->header()->resizeSection(place++, text + margin);
    widthBeside_ += text + margin;
  }
}

void EntryList::PlaceIn(QMainWindow& window) {
  const bool beside = window.centralWidget()->sizeHint().width() + widthBeside_ <= window.width();
  const auto area = beside ? Qt::RightDockWidgetArea : Qt::BottomDockWidgetArea;
  if (window.dockWidgetArea(this) == area) return;
  if (beside) {
    SetColumnsByFont();
  } else {
    // There is room for the largest balance.
    list_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  }
  const int heightBelow = kLinesBelow * list_->fontMetrics().lineSpacing();
  place_->setMinimumSize(beside ? QSize(widthBeside_, 0) : QSize(0, heightBelow / 3));
  place_->setMaximumSize(beside ? QSize(widthBeside_, QWIDGETSIZE_MAX)
                                : QSize(QWIDGETSIZE_MAX, heightBelow));
  window.addDockWidget(area, this);
  ShowOrCloseUp();
}

void EntryList::ShowEntries(const std::string& heading, std::span<const EntryLine> entries,
                            int current) {
  heading_->setText(QString::fromStdString(heading));
  list_->clear();
  for (const EntryLine& entry : entries) AddEntry(entry, current);
  ShowOrCloseUp();
}

void EntryList::ShowOrCloseUp() {
  const bool isEmpty = list_->topLevelItemCount() == 0;
  const auto* window = qobject_cast<QMainWindow*>(parentWidget());
  const bool beside = window->dockWidgetArea(this) == Qt::RightDockWidgetArea;
  list_->setVisible(!isEmpty);
  setVisible(!heading_->text().isEmpty() && (beside || !isEmpty));
}

void EntryList::AddEntry(const EntryLine& entry, int current) {
  auto* item = new QTreeWidgetItem(list_);
  item->setText(0, Line(entry.name + '\n' + entry.rate));
  item->setText(1, Line(entry.balance) + '\n' + Apys(entry));
  item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
  for (int column : {0, 1}) item->setToolTip(column, Sentence(entry));
  item->setData(0, Qt::AccessibleTextRole, Sentence(entry));
  item->setData(0, Qt::UserRole, entry.number);
  // An entry behind the current one is reached by Next, which checks what is in between.
  item->setDisabled(entry.number > current);
  if (entry.number == current) list_->setCurrentItem(item);
}

bool EntryList::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
      if (const auto* item = list_->currentItem()) emit GoBackTo(EntryOf(*item));
      return true;
    }
  }
  return QDockWidget::eventFilter(watched, event);
}

}  // namespace corvane
