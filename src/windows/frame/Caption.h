#pragma once

#include <QLabel>

namespace corvane {

/// A caption whose text was laid out with runs of blanks, such as "Disclosed APY             :". It
/// keeps its text and is drawn without them: the words at the left, a colon that ends them at the
/// right, where the fields begin. What stands behind a long run comes below. A caption that wraps
/// its words does so before a remark in parentheses and at the length of most others.
class Caption : public QLabel {
  Q_OBJECT

 public:
  using QLabel::QLabel;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }
  int heightForWidth(int) const override { return sizeHint().height(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  bool EndsInColon() const;
  int Flags() const;
  QString Words() const;
};

}  // namespace corvane
