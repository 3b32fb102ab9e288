#pragma once

#include <map>
#include <string>

#include <QObject>

class QKeyEvent;
class QLineEdit;

namespace corvane {

class Form;

/// How a numeric field treats what is typed into it (see NumericEntry.h).
struct NumericRule {
  bool repairMinus = false;
  int decimals = -1;      ///< most decimals allowed, -1 for no limit
  const char* kind = "";  ///< chooses the word that the message of the limit begins with
  bool enterMovesOn = false;
  bool digitsOnly = false;
};

/// The numeric fields of a form: which keys they take, what a change of their text is repaired to,
/// and what may be pasted.
class NumericFields : public QObject {
 public:
  explicit NumericFields(Form& form);

  /// Makes a field numeric: as wide as what it may hold, its text at the right.
  void Bind(QLineEdit* field, const NumericRule& rule);
  /// Keeps commands such as Alt+C from typing into any field, numeric or not; to be called once the
  /// form has its fields.
  void WatchKeys();
  /// Inserts the number that a copied text stands for, or says why not.
  void Paste(QLineEdit* field, const QString& text);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Changed(QLineEdit* field, const NumericRule& rule);
  bool RefusesKey(QLineEdit* field, const QKeyEvent& press);
  bool RefusesNumericKey(QLineEdit* field, const QKeyEvent& press, const NumericRule& rule);

  Form& form_;
  std::map<const QObject*, NumericRule> rules_;
};

}  // namespace corvane
