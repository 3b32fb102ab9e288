#include "windows/frame/DateCount.h"

#include <QtWidgets>

namespace corvane {

namespace {

/// The innermost layout that holds the field.
QLayout* RowOf(QWidget* field) {
  const auto layouts = field->window()->findChildren<QLayout*>();
  const auto holds = [field](const QLayout* layout) { return layout->indexOf(field) >= 0; };
  return *std::find_if(layouts.begin(), layouts.end(), holds);
}

/// Puts a widget below a row, in the grid or column that holds it, or in a frame of its own.
void PlaceBelow(QLayout* row, QWidget* widget) {
  auto* outer = qobject_cast<QLayout*>(row->parent());
  if (auto* grid = qobject_cast<QGridLayout*>(outer)) {
    int line = 0, column = 0, lines = 0, columns = 0;
    grid->getItemPosition(grid->indexOf(row), &line, &column, &lines, &columns);
    return grid->addWidget(widget, grid->rowCount(), column, 1, -1);
  }
  if (auto* column = qobject_cast<QBoxLayout*>(outer)) {
    return column->insertWidget(column->indexOf(row) + 1, widget);
  }
  QWidget* frame = row->parentWidget();
  auto* line = new QWidget(frame);
  const QMargins margins = row->contentsMargins();
  row->setContentsMargins({});
  line->setLayout(row);
  auto* column = new QVBoxLayout(frame);
  column->setContentsMargins(margins);
  column->addWidget(line);
  column->addWidget(widget);
}

}  // namespace

DateCount::DateCount(QWidget* field) : QLabel(field->parentWidget()) {
  setObjectName("lblDateCount");
  setTextFormat(Qt::PlainText);
  setMinimumHeight(fontMetrics().height());
  PlaceBelow(RowOf(field), this);
}

void DateCount::Show(const std::string& text) {
  setText(QString::fromStdString(text));
}

}  // namespace corvane
