#include "windows/frame/NumericFields.h"

#include <QtWidgets>

#include "account/NumericEntry.h"
#include "windows/frame/FieldText.h"
#include "windows/frame/Form.h"
#include "windows/frame/PageLayout.h"

namespace corvane {

namespace {

bool TypesCharacter(const QKeyEvent& press) {
  return !press.text().isEmpty() && press.text().front().isPrint();
}

TypedInto PlaceIn(const QLineEdit* field) {
  const bool selected = field->hasSelectedText();
  return {field->text().toStdU16String(),
          selected ? field->selectionStart() : field->cursorPosition(),
          static_cast<int>(field->selectedText().size())};
}

/// The most characters of a field, by its rule.
int LengthOf(const NumericRule& rule) {
  if (rule.decimals < 0) return FieldLength::kCount;
  const std::string_view kind = rule.kind;
  return kind == "bal" || kind == "userint" ? FieldLength::kMoney : FieldLength::kRate;
}

}  // namespace

NumericFields::NumericFields(Form& form) : form_(form) {}

void NumericFields::Bind(QLineEdit* field, const NumericRule& rule) {
  rules_[field] = rule;
  FitToDigits(*field, LengthOf(rule));
  field->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  // What an input method composes would not pass the key filter.
  field->setAttribute(Qt::WA_InputMethodEnabled, false);
  connect(field, &QLineEdit::textChanged, this, [this, field, rule] { Changed(field, rule); });
}

void NumericFields::WatchKeys() {
  for (auto* field : form_.findChildren<QLineEdit*>()) field->installEventFilter(this);
}

void NumericFields::Changed(QLineEdit* field, const NumericRule& rule) {
  const std::u16string typed = field->text().toStdU16String();
  const std::u16string repaired = rule.repairMinus ? FixMinusSign(typed) : typed;
  const LimitedText limited = rule.decimals < 0 ? LimitedText{repaired, {}}
                                                : LimitDecimals(repaired, rule.decimals, rule.kind);
  if (limited.text != typed) field->setText(QString::fromStdU16String(limited.text));
  if (limited.message) form_.Tell(*limited.message);
}

void NumericFields::Paste(QLineEdit* field, const QString& text) {
  const NumericRule& rule = rules_.at(field);
  const auto number = PastedNumber(PlaceIn(field), text.toStdString(), rule.kind);
  const bool hasSigns = number && number->find_first_of("-.") != number->npos;
  if (!number || (rule.digitsOnly && hasSigns)) return form_.ShowHint(kNumberNotPasted);
  field->insert(QString::fromStdString(*number));
}

bool NumericFields::RefusesNumericKey(QLineEdit* field, const QKeyEvent& press,
                                      const NumericRule& rule) {
  if (IsEnter(press)) {
    if (rule.enterMovesOn && !press.isAutoRepeat()) form_.MoveOn();
    return rule.enterMovesOn;
  }
  if (!TypesCharacter(press)) return false;
  const QString text = press.text();
  if (rule.digitsOnly) return text < "0" || text > "9";
  return !FilterNumericKey(text.toUcs4().front(), PlaceIn(field));
}

bool NumericFields::RefusesKey(QLineEdit* field, const QKeyEvent& press) {
  const bool alt = press.modifiers() & (Qt::AltModifier | Qt::MetaModifier);
  const bool control = press.modifiers() & Qt::ControlModifier;
  // A command types nothing, which a field knows of Ctrl alone. Both together are AltGr.
  if (alt != control) return alt && TypesCharacter(press);
  const auto rule = rules_.find(field);
  return rule != rules_.end() && RefusesNumericKey(field, press, rule->second);
}

bool NumericFields::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  return RefusesKey(qobject_cast<QLineEdit*>(watched), *static_cast<QKeyEvent*>(event));
}

}  // namespace corvane
