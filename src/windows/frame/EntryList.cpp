#include "windows/frame/EntryList.h"

#include <QtWidgets>

namespace corvane {

namespace {

/// The headings, and the widest text that a column has to show whole.
constexpr std::pair<const char*, const char*> kColumns[] = {{"No.", "10 high"},
                                                            {"Rate %", "10.0000"},
                                                            {"Balance", "1,000,000.00"},
                                                            {"Disclosed", "10.00"},
                                                            {"Computed", "10.00"}};

}  // namespace

EntryList::EntryList(QWidget* parent)
    : QDockWidget(parent), heading_(new QLabel(this)), list_(new QTreeWidget) {
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
  for (const auto& [heading, widest] : kColumns) headings << heading;
  list_->setHeaderLabels(headings);
  list_->installEventFilter(this);
  connect(list_, &QTreeWidget::itemClicked, this, [this](auto* item) { Choose(item); });
  setWidget(list_);
  SetWidthByFont();
}

void EntryList::SetWidthByFont() {
  const QFontMetrics metrics = list_->fontMetrics();
  const int margin = 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, list_) + 3);
  int width = 2 * list_->frameWidth() + style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  list_->header()->setSectionsMovable(false);
  list_->header()->setSectionResizeMode(QHeaderView::Fixed);
  list_->header()->setStretchLastSection(true);
  for (int column = 0; const auto& [heading, widest] : kColumns) {
    const int text = qMax(metrics.horizontalAdvance(widest), metrics.horizontalAdvance(heading));
    list_->header()->resizeSection(column++, text + 2 * margin);
    width += text + 2 * margin;
  }
  list_->setFixedWidth(width);
}

void EntryList::ShowEntries(const std::string& heading, std::span<const EntryLine> entries,
                            int current) {
  heading_->setText(QString::fromStdString(heading));
  list_->clear();
  for (const EntryLine& entry : entries) AddEntry(entry, current);
}

void EntryList::AddEntry(const EntryLine& entry, int current) {
  auto* item = new QTreeWidgetItem(list_);
  int column = 0;
  for (const std::string* text :
       {&entry.name, &entry.rate, &entry.balance, &entry.disclosed, &entry.computed}) {
    item->setText(column, QString::fromStdString(*text));
    if (column > 0) item->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    ++column;
  }
  item->setData(0, Qt::UserRole, entry.number);
  // An entry behind the current one is reached by Next, which checks what is in between.
  item->setDisabled(entry.number > current);
  if (entry.number == current) list_->setCurrentItem(item);
}

void EntryList::Choose(const QTreeWidgetItem* item) {
  if (item && !item->isDisabled()) emit GoBackTo(item->data(0, Qt::UserRole).toInt());
}

bool EntryList::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
      Choose(list_->currentItem());
      return true;
    }
  }
  return QDockWidget::eventFilter(watched, event);
}

}  // namespace corvane
