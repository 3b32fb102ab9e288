#pragma once

#include <span>

#include <QtWidgets>

#include "account/Field.h"
#include "support/Dates.h"
#include "windows/frame/Form.h"

namespace corvane {

/// A text field and the member of the core's entry that is named like it.
template <class Entry>
struct FieldName {
  const char* control;
  StatementField Entry::*field;
};

/// An option (selected) or a group or button (enabled) and its member.
template <class Entry>
struct FlagName {
  const char* control;
  bool Entry::*flag;
};

/// Carries the state of a window's controls into the core's entry and back. While it writes, the
/// window's change handlers stay away: the core has already drawn every consequence.
template <class Entry>
class FieldBinding {
 public:
  FieldBinding(QWidget& window, std::span<const FieldName<Entry>> fields,
               std::span<const FlagName<Entry>> options, std::span<const FlagName<Entry>> groups)
      : window_(window), fields_(fields), options_(options), groups_(groups) {}

  bool IsWriting() const { return writing_; }

  Entry Read() const {
    Entry entry;
    for (const auto& name : fields_) {
      const auto* edit = Control<QLineEdit>(name.control);
      entry.*name.field = {.text = FieldText(edit), .enabled = edit->isEnabledTo(&window_)};
    }
    for (const auto& name : options_) {
      entry.*name.flag = Control<QRadioButton>(name.control)->isChecked();
    }
    for (const auto& name : groups_) {
      entry.*name.flag = Control<QWidget>(name.control)->isEnabledTo(&window_);
    }
    return entry;
  }

  void Write(const Entry& entry) {
    writing_ = true;
    for (const auto& name : groups_) Control<QWidget>(name.control)->setEnabled(entry.*name.flag);
    for (const auto& name : options_) WriteOption(name.control, entry.*name.flag);
    for (const auto& name : fields_) WriteField(name.control, entry.*name.field);
    writing_ = false;
  }

 private:
  template <class AControl>
  AControl* Control(const char* name) const {
    return window_.findChild<AControl*>(name);
  }

  void WriteOption(const char* name, bool selected) {
    auto* option = Control<QRadioButton>(name);
    if (selected) {
      option->setChecked(true);
    } else if (option->isChecked()) {
      ClearOption(option);
    }
  }

  void WriteField(const char* name, const StatementField& field) {
    auto* edit = Control<QLineEdit>(name);
    edit->setEnabled(field.enabled);
    if (FieldText(edit) == field.text) return;
    if (field.text == kEmptyDateMask) {
      edit->clear();
    } else {
      SetFieldText(edit, field.text);
    }
  }

  QWidget& window_;
  std::span<const FieldName<Entry>> fields_;
  std::span<const FlagName<Entry>> options_;
  std::span<const FlagName<Entry>> groups_;
  bool writing_ = false;
};

}  // namespace corvane
