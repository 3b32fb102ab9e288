#pragma once

#include <memory>

#include "disclosure/DisclosureEntry.h"
#include "windows/frame/Form.h"

class QToolButton;

namespace Ui {
class DisclosureEntryWindow;
}

namespace corvane {

/// The entry window of the disclosure workflow: balance, rate, term or dates, withdrawals and the
/// disclosed APY of an account, of a stepped period or of a tier.
class DisclosureEntryWindow : public Form {
  Q_OBJECT

 public:
  explicit DisclosureEntryWindow(WindowRegistry& windows);
  ~DisclosureEntryWindow() override;

  void Form_Load() override;
  void Form_Activate() override;

  /// Lays the window out for the account in the session record and for the period or tier that
  /// comes next, with what is stored for it.
  void cmdSetProperties_Click();
  /// Makes a period or tier the next one to be entered and shows it.
  void Load_Back_Data(int period);
  /// What the fields hold.
  DisclosureEntry ReadFields() const;

 private:
  void BindFields();
  void BindButtons();
  void txtBal_LostFocus();
  void txtTerm_Change();
  void txtTerm_LostFocus(const QString& next);
  void txtTierPerNum_LostFocus(const QString& next);
  void TermDates_LostFocus(const QString& next);
  void ImgCalendar_Click(int index);
  /// Next and Calculate are one attempt; which of them shows says what follows it.
  void Attempt();
  void ShowResults();
  void cmdBack_Click();
  void cmdAcctInfo_Click();
  void cmdExit_Click();

  void LeaveBackward();
  void ForgetAccount();
  void ShowCaptions();
  void ShowGroups();
  void EnableTermDates();
  void EmptyTermDates();
  void ShowEntry();
  void WriteCountedTerm();
  void WriteFields(const DisclosureEntry& entry);
  QLineEdit* Field(const char* name) const;
  void InternalError();

  std::unique_ptr<Ui::DisclosureEntryWindow> ui_;
  QToolButton* imgCalendar_[2] = {};
};

}  // namespace corvane
