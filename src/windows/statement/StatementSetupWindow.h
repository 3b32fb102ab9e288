#pragma once

#include <functional>
#include <memory>

#include "statement/StatementSetup.h"
#include "windows/frame/Form.h"

namespace Ui {
class StatementSetupWindow;
}

namespace corvane {

template <class Entry>
class FieldBinding;

/// The statement setup: whose account is examined and how it earns interest. It stays loaded,
/// hidden, while the later statement windows are in use.
class StatementSetupWindow : public Form {
  Q_OBJECT

 public:
  explicit StatementSetupWindow(WindowRegistry& windows);
  ~StatementSetupWindow() override;

  void Form_Load() override;
  void Form_Activate() override;

  /// Puts the stored identification into its fields.
  void ShowAccountHeader();
  /// The options that the main menu starts the workflow with.
  void SelectStartOptions();
  /// All options as on a fresh window; the identification stays.
  void ResetOptions();
  /// Takes the days between compoundings into the session record, "0" going into an empty field.
  void TakeCompoundingDays();
  /// What the options and fields hold.
  StatementSetup ReadFields() const;

 private:
  void BindOptions();
  void BindFields();
  void AccountHeader_LostFocus();
  void cmdNext_Click();
  void cmdNewAcct_Click();
  void cmdExit_Click();

  void Change(const std::function<void(StatementSetup&)>& change);
  void WriteFields(const StatementSetup& setup);

  std::unique_ptr<Ui::StatementSetupWindow> ui_;
  std::unique_ptr<FieldBinding<StatementSetup>> fields_;
};

}  // namespace corvane
