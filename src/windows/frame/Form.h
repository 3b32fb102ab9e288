#pragma once

#include <climits>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include <QMainWindow>

#include "account/NumericEntry.h"
#include "account/Refusal.h"
#include "windows/frame/Captions.h"
#include "windows/frame/FieldText.h"
#include "windows/frame/FileDrop.h"
#include "windows/frame/FormFocus.h"
#include "windows/frame/FormKeys.h"
#include "windows/frame/NumericFields.h"

class QAbstractButton;
class QAction;
class QLineEdit;
class QPushButton;

namespace corvane {

class ContextLine;
class HintLine;
class Routes;
class WindowRegistry;
struct Session;

/// The window that all others are built on. It gives a form its life (load once, activation by
/// navigation, unload), its wiring, its help and its lines of text. What holds for all forms but is
/// a subject of its own stands in a part that the form owns: the focus (FormFocus), numeric fields
/// (NumericFields), keys (FormKeys.h), names for screen readers (Captions).
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
  /// a button or menu item, and a refusal until its field changes; then what to do next shows
  /// again.
  void ShowHint(const std::string& text);

  /// Puts the focus on a field and selects its text.
  void FocusField(QWidget* field);
  /// Puts the focus on the next control, as Tab does.
  void MoveOn() { focusNextPrevChild(true); }

  /// Says in the line at the foot of the window what to do next.
  void ShowNextStep(const std::string& text);

  /// Puts a line above the body of the window, below those that were put there before. To be called
  /// once the form loads, when it is known which part of it scrolls.
  ContextLine* AddContextLine(const char* name);

 signals:
  void Unloaded();

 protected:
  using Handler = std::function<void()>;

  Session& session();
  Routes& routes();
  WindowRegistry& windows() { return windows_; }

  /// The wiring of a form's handlers, which do not act when the form is not in front. A button and
  /// a menu item take the focus before they act, and do not act when the field that loses it holds
  /// on to it.
  void OnClick(QAbstractButton* button, Handler handler);
  /// What Enter presses while no other button has the focus: the first that can be pressed.
  void EnterPresses(const std::vector<QPushButton*>& buttons) { enter_.Choose(buttons); }
  void OnMenu(QAction* item, Handler handler);
  void OnDrop(FileDrop::Handler handler);
  void OnLostFocus(QWidget* field, FormFocus::LostHandler handler);

  /// Gives the elements of field arrays back the names that they have in the form's file, such as
  /// "txt_bne(3)": the generated code turns their parentheses into underscores.
  void NameArrayElements();

  void BindNumeric(QLineEdit* field, const NumericRule& rule);
  /// The fields of these names, with the minus repair.
  void BindDecimals(std::span<const DecimalLimit> limits);
  /// Takes what is pasted into a numeric field, or says why not.
  virtual void PasteInto(QLineEdit* field, const QString& text);
  /// Selects the first characters of the text, or all of it, when the field gets the focus.
  void SelectTextOnFocus(QLineEdit* field, int characters = INT_MAX);
  /// Rewrites the field "######0.00" when it loses the focus.
  void RewriteOnLeaving(QLineEdit* field);

  /// Asks, when the field is left, what its text looks like a slip for; not twice the same.
  void AskOnLeaving(QLineEdit* field, std::function<std::optional<std::string>()> notice);

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
  void keyPressEvent(QKeyEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  /// Whether a button, a menu item or dropped files may act; what happened before is over then.
  bool BeginsToAct();

  WindowRegistry& windows_;
  Role role_;
  EnterButton enter_{*this};
  AccessKeys accessKeys_{*this};
  NumericFields numeric_{*this};
  FormFocus focus_;
  std::optional<Captions> captions_;  ///< once the form has its controls
  HintLine& hint_;
  int contextLines_ = 0;
};

}  // namespace corvane
