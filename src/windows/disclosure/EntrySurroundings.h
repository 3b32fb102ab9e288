#pragma once

#include "disclosure/DisclosureEntry.h"

class QAbstractButton;

namespace corvane {

class ContextLine;
class EntryList;
class Form;
struct Session;

/// What the entry window says around its fields: whose account it is, the tier, the entries so far,
/// and what to do next. All of it follows from the check and from what is typed.
class EntrySurroundings {
 public:
  /// Once the window loads. A choice of an earlier entry presses Back as often as it takes.
  EntrySurroundings(Form& window, const Session& session, QAbstractButton& back);
  EntrySurroundings(const EntrySurroundings&) = delete;
  EntrySurroundings& operator=(const EntrySurroundings&) = delete;

  /// The check has come to another entry.
  void ShowCheck() const;
  /// The entry has changed.
  void ShowTyped(const DisclosureEntry& entry) const;
  /// The window has another size.
  void Place() const;

 private:
  void GoBackTo(int entry, QAbstractButton& back) const;

  Form& window_;
  const Session& session_;
  ContextLine* account_;
  ContextLine* tier_;
  EntryList* entries_;
};

}  // namespace corvane
