#pragma once

#include <functional>

#include <QLineEdit>
#include <QRadioButton>
#include <QScopedValueRollback>

#include "account/Field.h"
#include "windows/frame/FieldText.h"

namespace corvane {

/// Unselects an option, so that none of its group may be selected.
inline void ClearOption(QRadioButton* option) {
  option->setAutoExclusive(false);
  option->setChecked(false);
  option->setAutoExclusive(true);
}

/// Binds the text fields and options of a window to values, by the name tables of their type: what
/// is typed goes into the values at once, and an option does to them what its choice does. While
/// the values are shown, the window's change handlers stay away: the core has drawn every
/// consequence already.
template <class Values>
class FieldBinding {
 public:
  /// `onShown` is called after every showing, for what the window draws from the values besides;
  /// `onChanged` after every change by the person, for what follows from it in the values.
  FieldBinding(QWidget& window, Values& values, std::function<void()> onShown,
               std::function<void()> onChanged = nullptr)
      : window_(window),
        values_(values),
        onShown_(std::move(onShown)),
        onChanged_(std::move(onChanged)) {
    for (const auto& name : Values::Fields()) BindField(name);
    for (const auto& name : Values::Options()) BindOption(name);
  }

  bool IsShowing() const { return showing_; }

  /// Puts the values into the controls.
  void Show() {
    {
      const QScopedValueRollback showing(showing_, true);
      for (const auto& name : Values::Options()) ShowOption(name);
      for (const auto& name : Values::Fields()) ShowField(name);
    }
    onShown_();
  }

 private:
  template <class Control>
  Control* Find(const char* name) const {
    return window_.findChild<Control*>(name);
  }

  void BindField(const FieldName<Values>& name) {
    auto* edit = Find<QLineEdit>(name.control);
    QObject::connect(edit, &QLineEdit::textChanged, &window_, [this, edit, field = name.field] {
      if (showing_) return;
      (values_.*field).text = TextOf(edit);
      (values_.*field).workedOut = false;
      Changed();
    });
  }

  void BindOption(const OptionName<Values>& name) {
    auto* option = Find<QRadioButton>(name.control);
    QObject::connect(option, &QRadioButton::toggled, &window_,
                     [this, choose = name.choose](bool chosen) {
                       if (!chosen || showing_) return;
                       choose(values_);
                       Changed();
                     });
  }

  void Changed() {
    if (onChanged_) onChanged_();
    Show();
  }

  void ShowOption(const OptionName<Values>& name) {
    auto* option = Find<QRadioButton>(name.control);
    if (name.isChosen(values_)) {
      option->setChecked(true);
    } else if (option->isChecked()) {
      ClearOption(option);
    }
  }

  void ShowField(const FieldName<Values>& name) {
    auto* edit = Find<QLineEdit>(name.control);
    const Field& field = values_.*name.field;
    edit->setEnabled(field.enabled);
    if (TextOf(edit) != field.text) SetText(edit, field.text);
  }

  QWidget& window_;
  Values& values_;
  std::function<void()> onShown_;
  std::function<void()> onChanged_;
  bool showing_ = false;
};

}  // namespace corvane
