#pragma once

#include <climits>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include <QMainWindow>
#include <QPointer>

#include "account/Refusal.h"
#include "windows/frame/Captions.h"
#include "windows/frame/FormKeys.h"

class QAbstractButton;
class QAction;
class QKeyEvent;
class QKeySequence;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace corvane {

class ContextLine;
class HintLine;
class Routes;
class WindowRegistry;
struct Session;

/// How a numeric field treats what is typed into it (see NumericEntry.h).
struct NumericRule {
  bool repairMinus = false;
  int decimals = -1;  ///< most decimals allowed, -1 for no limit
  const char* kind = "";
  bool enterMovesOn = false;
  bool digitsOnly = false;
};

/// The window that all others are built on. It gives a form its life (load once, activation by
/// navigation, unload) and its entry rules: a field loses the focus exactly once, when the focus
/// goes to another control of the form or when a button or menu item is about to act, and never
/// because a message box or another window came in front. An access key acts at once, on the
/// control that is captioned with it before a menu that is; F10 opens the first menu. Enter presses
/// the form's button for it, and Escape closes a secondary window as its frame does.
class Form : public QMainWindow {
  Q_OBJECT

 public:
  /// A main window's frame ends the program; a secondary window's frame only closes it.
  enum class Role { Main, Secondary };

  Form(WindowRegistry& windows, Role role);

  Role WindowRole() const { return role_; }

  /// Called once, when the form is made: sees to its keys and runs Form_Load.
  void Load();
  virtual void Form_Load() {}
  /// Runs when the program's own navigation brings the form to the front.
  virtual void Form_Activate() {}
  /// True for a form that chooses its place. Any other main window shows where the one before it
  /// stood, and a secondary one above the middle of the main window.
  virtual bool PlacesItself() const { return false; }
  /// True for a main window that is hidden and not closed when another one opens.
  virtual bool StaysWhenLeft() const { return false; }
  /// Asked before the frame closes the form; false keeps it open.
  virtual bool Form_QueryUnload() { return true; }

  /// Shows the refusal's message, then puts the focus on its field with the text selected.
  void Tell(const Refusal& refusal);

  /// Says in the line at the foot of the window what has happened. It stays until the next press of
  /// a button or menu item; then what to do next shows again.
  void ShowHint(const std::string& text);

  /// Puts the focus on a field and selects its text.
  void FocusField(QWidget* field);

 signals:
  void Unloaded();

 protected:
  using Handler = std::function<void()>;
  /// Takes the object name of the control or menu item that the focus goes to.
  using LostFocusHandler = std::function<void(const QString& next)>;

  Session& session();
  Routes& routes();
  WindowRegistry& windows() { return windows_; }

  /// Says in the line at the foot of the window what to do next.
  void ShowNextStep(const std::string& text);

  /// Puts a line above the body of the window, below those that were put there before. To be called
  /// once the form loads, when it is known which part of it scrolls.
  ContextLine* AddContextLine(const char* name);

  /// The wiring of a form's handlers. A button and a menu item take the focus before they act, and
  /// do not act when the field that loses it holds on to it, nor when the form is not in front.
  void OnClick(QAbstractButton* button, Handler handler);
  /// What Enter presses while no other button has the focus: the first that can be pressed.
  void EnterPresses(const std::vector<QPushButton*>& buttons) { enter_.Choose(buttons); }
  void OnMenu(QAction* item, Handler handler);
  void OnGotFocus(QWidget* field, Handler handler);
  void OnLostFocus(QWidget* field, LostFocusHandler handler);

  /// Gives the elements of field arrays back the names that they have in the form's file, such as
  /// "txt_bne(3)": the generated code turns their parentheses into underscores.
  void NameArrayElements();

  /// Applies the key filter and, on every change, the minus repair and the decimal limit; the field
  /// becomes as wide as what it may hold, its text stands at the right.
  void BindNumeric(QLineEdit* field, const NumericRule& rule);
  /// Takes what is pasted into a numeric field, or says why not.
  virtual void PasteInto(QLineEdit* field, const QString& text);
  /// Selects the first characters of the text, or all of it, when the field gets the focus.
  void SelectTextOnFocus(QLineEdit* field, int characters = INT_MAX);
  /// Rewrites the field "######0.00" when it loses the focus.
  void RewriteOnLeaving(QLineEdit* field);

  /// Lets a masked date field understand separators and copied dates.
  void BindDate(QLineEdit* field);
  /// Asks, when the field is left, what its text looks like a slip for; not twice the same.
  void AskOnLeaving(QLineEdit* field, std::function<std::optional<std::string>()> notice);

  /// Keeps a text as it is typed.
  void BindText(QLineEdit* field, std::string& text);

  /// Called by a LostFocus handler that refuses: the focus returns to the field.
  void HoldFocus(QWidget* field);

  /// Opens the help at a topic, or tells why it cannot be opened.
  void ShowHelpTopic(int context);
  /// Lets F1 and the item Topics, where the form has it, open the help at a topic.
  void BindHelp(int context);
  /// Wires the items that every window's menus share, as far as the form has them: Exit, Topics
  /// with the window's help context, About.
  void BindCommonMenus(int helpContext);

  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  void BindKeys();
  void MoveFocus(QWidget* now);
  void RaiseLostFocus(QWidget* field, const QString& next);
  bool TakeFocus(QAbstractButton* button);
  bool CommitFor(QAction* item);
  void NumericChange(QLineEdit* field, const NumericRule& rule);

  bool PressControl(const QKeySequence& accessKey);
  bool RefusesKey(QLineEdit* field, const QKeyEvent& press);
  bool RefusesNumericKey(QLineEdit* field, const QKeyEvent& press, const NumericRule& rule);

  WindowRegistry& windows_;
  Role role_;
  EnterButton enter_{*this};
  std::optional<Captions> captions_;  ///< once the form has its controls
  HintLine& hint_;
  int contextLines_ = 0;
  QPointer<QWidget> focused_;
  bool focusHeld_ = false;
  std::map<const QWidget*, Handler> gotFocus_;
  std::map<const QWidget*, std::vector<LostFocusHandler>> lostFocus_;
  std::map<const QObject*, NumericRule> numeric_;
};

/// Unselects an option, so that none of its group may be selected.
void ClearOption(QRadioButton* option);

/// Text between the windows and the core, which holds UTF-8.
std::string TextOf(const QLineEdit* field);
void SetText(QLineEdit* field, const std::string& text);

}  // namespace corvane
