#pragma once

#include <functional>
#include <memory>
#include <typeindex>
#include <vector>

#include "windows/frame/Form.h"
#include "windows/frame/PressGuard.h"
#include "windows/frame/Routes.h"
#include "windows/frame/Session.h"

namespace corvane {

/// The program's windows: makes a form on first use, hands it out, brings it to the front, closes
/// it, and ends the program. A form that closes is deleted as soon as its handlers have returned;
/// forms that are open when the program ends are deleted with the registry.
class WindowRegistry {
 public:
  explicit WindowRegistry(Session& session);
  ~WindowRegistry();

  WindowRegistry(const WindowRegistry&) = delete;
  WindowRegistry& operator=(const WindowRegistry&) = delete;

  Session& session() { return session_; }
  Routes& routes() { return routes_; }

  /// The form, or null when it was never made or is closed.
  template <class AForm>
  AForm* Find() const {
    return static_cast<AForm*>(FindForm(typeid(AForm)));
  }

  /// The form, made and loaded (but not shown) on first use.
  template <class AForm>
  AForm& Get() {
    if (auto* form = Find<AForm>()) return *form;
    auto* form = new AForm(*this);
    Add(typeid(AForm), form);
    return *form;
  }

  /// Brings the form to the front and activates it. Once the program has ended it stays hidden.
  template <class AForm>
  AForm& Show() {
    AForm& form = Get<AForm>();
    BringToFront(form);
    return form;
  }

  /// Closes the form as part of moving on; does nothing when it is not loaded.
  template <class AForm>
  void Discard() {
    if (auto* form = Find<AForm>()) Close(*form);
  }

  /// The main window that is shown; null before the first one.
  const Form* MainWindow() const;
  /// Whether the form is shown and no modal window stands above it.
  bool IsInFront(const Form& form) const;
  /// Closes a window without ending the program.
  void Close(Form& form);
  /// Closes every main window but this one, or hides it where it stays.
  void CloseOtherMainWindows(const Form& kept);
  /// The person closed the window by its frame: ends the program, or closes a secondary window.
  void CloseByFrame(Form& form);
  /// Shows an already made form above all others and returns when it has closed or the program has
  /// ended.
  void RunModal(Form& form);
  /// The one orderly way out: clears the identification, hides all windows newest first, ends. From
  /// then on no window opens or closes, and no form is deleted before the registry is: a handler
  /// that waited for another window comes back to a form that is still there.
  void EndProgram();
  /// Ends the process at once, leaving windows as they are.
  void EndProcess();
  bool HasEnded() const { return ended_; }

 private:
  struct Entry {
    std::type_index type;
    Form* form;
    int loop;  ///< the loop of events in which it was made, 1 being the program's own
  };

  Form* FindForm(std::type_index type) const;
  void Add(std::type_index type, Form* form);
  /// Takes the form from the screen; it takes no input any more.
  void Unload(Form& form);
  /// Main windows follow each other as the pages of one window: same place, same size.
  void PlaceBeforeShowing(Form& form);
  void BringToFront(Form& form);
  /// Those of whose handlers none can be waiting: they all run in the loop of events in which the
  /// form was made, or in one that this one waits for.
  void DeleteClosed();

  Session& session_;
  Routes routes_{*this};
  PressGuard presses_;
  std::vector<Entry> open_;         ///< oldest first
  std::vector<Entry> closed_;       ///< that still have to be deleted
  std::vector<const Form*> modal_;  ///< whose loops run, the innermost last
  bool ended_ = false;
};

}  // namespace corvane
