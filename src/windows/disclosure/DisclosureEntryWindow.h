#pragma once

#include <memory>

#include "disclosure/DisclosureEntry.h"
#include "windows/frame/FieldBinding.h"
#include "windows/frame/Form.h"

namespace Ui {
class DisclosureEntryWindow;
}

namespace corvane {

class ContextLine;
class EntryList;

/// The entry window of the disclosure workflow: balance, rate, term or dates, withdrawals and the
/// disclosed APY of an account, of a stepped period or of a tier.
class DisclosureEntryWindow : public Form {
  Q_OBJECT

 public:
  explicit DisclosureEntryWindow(WindowRegistry& registry);
  ~DisclosureEntryWindow() override;

  void Form_Load() override;
  void Form_Activate() override;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void BuildPlace();
  void BindFields();
  void BindButtons();
  void cmdSetProperties_Click();
  void txtTerm_LostFocus(const QString& next);
  void txtTierPerNum_LostFocus(const QString& next);
  void Date_Change();
  void ImgCalendar_Click(int index);
  /// Next and Calculate are one attempt; which of them shows says what follows it.
  void Attempt();
  void cmdBack_Click();

  void ShowCaptions();
  void ShowGroups();
  void EnableCalendars();
  /// Whose account and which tier it is, and which entries were made.
  void ShowPlace();
  void ShowTier();
  /// Presses Back as often as it takes.
  void GoBackTo(int entry);
  void InternalError();

  std::unique_ptr<Ui::DisclosureEntryWindow> ui_;
  ContextLine* account_ = nullptr;
  ContextLine* tier_ = nullptr;
  EntryList* entries_ = nullptr;
  DisclosureEntry entry_;  ///< kept by the check when it is completed or left
  std::unique_ptr<FieldBinding<DisclosureEntry>> binding_;
  std::vector<QWidget*> termDates_;  ///< the two dates and their calendars
  bool termEdited_ = false;
};

}  // namespace corvane
