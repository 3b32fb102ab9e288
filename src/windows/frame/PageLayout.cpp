#include "windows/frame/PageLayout.h"

#include <QtWidgets>

#include "platform/WorkArea.h"

namespace corvane {

namespace {

/// What stands above the buttons: as large as what it holds, and scrolled where it cannot be.
class ScrolledBody : public QScrollArea {
 public:
  explicit ScrolledBody(QWidget* parent) : QScrollArea(parent) {
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWidget(new QWidget(this));
    // A frame that is drawn behind the body shows through.
    viewport()->setAutoFillBackground(false);
    widget()->setAutoFillBackground(false);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
      if (widget()->isAncestorOf(now)) ensureWidgetVisible(now);
    });
  }

  QSize sizeHint() const override { return widget()->sizeHint(); }
  QSize minimumSizeHint() const override {
    constexpr int kLines = 4;
    return QSize(1, 1) * kLines * fontMetrics().lineSpacing();
  }
};

void MoveItem(QLayoutItem* item, QBoxLayout& to) {
  if (item->layout()) {
    to.addLayout(item->layout());
  } else if (item->widget()) {
    to.addWidget(item->widget(), 0, item->alignment());
    delete item;
  } else {
    to.addItem(item);
  }
}

/// The buttons of a window, which are the last row of its layout; null where other parts are.
QBoxLayout* ButtonsOf(const QBoxLayout& page) {
  return qobject_cast<QBoxLayout*>(page.itemAt(page.count() - 1)->layout());
}

QBoxLayout* PageOf(const QMainWindow& window) {
  return qobject_cast<QBoxLayout*>(window.centralWidget()->layout());
}

/// Moves the second half of a row that is wider than the screen to a row of its own.
void BreakRow(QBoxLayout& page, QBoxLayout& row, int width) {
  if (row.minimumSize().width() <= width) return;
  auto* second = new QHBoxLayout;
  second->setSpacing(row.spacing());
  page.addLayout(second);
  second->addStretch();
  const int kept = (row.count() + 1) / 2;
  while (row.count() > kept) MoveItem(row.takeAt(kept), *second);
}

void ScaleHeadings(QWidget& window) {
  for (auto* label : window.findChildren<QLabel*>()) {
    const QVariant factor = label->property("headingFactor");
    if (!factor.isValid()) continue;
    QFont font = label->font();
    font.setPointSizeF(window.font().pointSizeF() * factor.toDouble());
    label->setFont(font);
  }
}

/// What nobody can type into does not look as if one could.
void TakeWindowColour(QLineEdit& field) {
  QPalette palette = field.palette();
  palette.setColor(QPalette::Base, palette.color(QPalette::Window));
  field.setPalette(palette);
}

/// A grid's controls of one column alone, with those that are hidden.
QWidgetList ColumnOf(const QGridLayout& grid, int column) {
  QWidgetList controls;
  for (int i = 0; i < grid.count(); ++i) {
    int row, first, rows, columns;
    grid.getItemPosition(i, &row, &first, &rows, &columns);
    QWidget* control = grid.itemAt(i)->widget();
    if (control && first == column && columns == 1) controls += control;
  }
  return controls;
}

int WidthOf(const QWidgetList& column) {
  int width = 0;
  for (const QWidget* control : column) {
    const int hint = qMax(control->sizeHint().width(), control->minimumWidth());
    width = qMax(width, qMin(hint, control->maximumWidth()));
  }
  return width;
}

bool AreLabels(const QWidgetList& column) {
  return std::all_of(column.begin(), column.end(),
                     [](const QWidget* control) { return qobject_cast<const QLabel*>(control); });
}

/// Columns of captions and of the signs behind them, which all grids of a window share.
constexpr int kSharedColumns = 2;

void AlignColumns(QWidget& window) {
  QList<int> shared(kSharedColumns, 0);
  QList<QGridLayout*> grids = window.findChildren<QGridLayout*>();
  grids.removeIf([](const QGridLayout* grid) { return !AreLabels(ColumnOf(*grid, 0)); });
  for (auto* grid : grids) {
    for (int column = 0; column < grid->columnCount(); ++column) {
      const QWidgetList controls = ColumnOf(*grid, column);
      const int width = WidthOf(controls);
      grid->setColumnMinimumWidth(column, width);
      if (column < kSharedColumns && AreLabels(controls)) {
        shared[column] = qMax(shared[column], width);
      }
    }
  }
  for (auto* grid : grids) {
    for (int column = 0; column < kSharedColumns; ++column) {
      const QWidgetList controls = ColumnOf(*grid, column);
      // A grid leaves out the space beside a column that holds nothing.
      const int space = controls.empty() ? grid->horizontalSpacing() : 0;
      if (AreLabels(controls)) grid->setColumnMinimumWidth(column, shared[column] + space);
    }
  }
}

/// Takes away most of what lies between the rows.
void CloseUp(QWidget& body) {
  constexpr int kPart = 8;
  for (auto* layout : body.findChildren<QLayout*>()) {
    const QMargins drawn = layout->contentsMargins();
    layout->setContentsMargins(drawn.left(), drawn.top() / kPart, drawn.right(),
                               drawn.bottom() / kPart);
    if (auto* grid = qobject_cast<QGridLayout*>(layout)) {
      grid->setVerticalSpacing(grid->verticalSpacing() / kPart);
    } else if (qobject_cast<QVBoxLayout*>(layout)) {
      layout->setSpacing(layout->spacing() / kPart);
    }
  }
}

}  // namespace

void FitToDigits(QLineEdit& field, int digits) {
  QStyleOptionFrame option;
  option.initFrom(&field);
  option.lineWidth = field.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &field);
  // One digit more leaves room for the cursor.
  const QSize text(field.fontMetrics().horizontalAdvance('0') * (digits + 1), 0);
  field.setFixedWidth(
      field.style()->sizeFromContents(QStyle::CT_LineEdit, &option, text, &field).width());
}

bool ShowsLongText(const QMainWindow& window) {
  const QBoxLayout* page = PageOf(window);
  for (int i = 0; i < page->count(); ++i) {
    if (page->stretch(i) > 0) return true;
  }
  return false;
}

void LetBodyScroll(QMainWindow& window) {
  QBoxLayout* page = PageOf(window);
  QBoxLayout* buttons = ButtonsOf(*page);
  // Large letters need the room, all the more beside a scroll bar.
  const QMargins drawn = page->contentsMargins();
  page->setContentsMargins(drawn.left() / 2, drawn.top(), drawn.right() / 2, drawn.bottom());
  const int margins = page->contentsMargins().left() + page->contentsMargins().right();
  if (buttons) BreakRow(*page, *buttons, WorkArea(window).width() - margins);
  if (ShowsLongText(window)) return;
  auto* body = new ScrolledBody(window.centralWidget());
  page->insertWidget(0, body);
  auto* inside = new QVBoxLayout(body->widget());
  inside->setContentsMargins({});
  inside->setSpacing(page->spacing());
  const int left = buttons ? page->indexOf(buttons) : page->count();
  for (int item = 1; item < left; ++item) MoveItem(page->takeAt(1), *inside);
  constexpr int kLinesAround = 9;  // menu, context, buttons, hint
  const int around = kLinesAround * window.fontMetrics().lineSpacing();
  if (body->sizeHint().height() + around > WorkArea(window).height()) CloseUp(*body->widget());
}

void LayOutPage(QWidget& window) {
  ScaleHeadings(window);
  for (auto* field : window.findChildren<QLineEdit*>()) {
    if (!field->inputMask().isEmpty()) FitToDigits(*field, FieldLength::kDate);
    if (field->isReadOnly()) TakeWindowColour(*field);
  }
  AlignColumns(window);
}

QSize PageSize(const QWidget& window) {
  constexpr QSize kCharacters(140, 51);
  const QFontMetrics metrics(window.font());
  return {kCharacters.width() * metrics.averageCharWidth(),
          kCharacters.height() * metrics.lineSpacing()};
}

}  // namespace corvane
