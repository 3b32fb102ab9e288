#pragma once

#include <memory>

#include "disclosure/DisclosureEntry.h"
#include "windows/frame/FieldBinding.h"
#include "windows/frame/Form.h"

namespace Ui {
class DisclosureEntryWindow;
}

namespace corvane {

class DateRange;
class EntrySurroundings;

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

  /// What follows from the fields as they are now.
  void ShowTyped();
  void InternalError();

  std::unique_ptr<Ui::DisclosureEntryWindow> ui_;
  DisclosureEntry entry_;  ///< kept by the check when it is completed or left
  std::unique_ptr<FieldBinding<DisclosureEntry>> binding_;
  std::unique_ptr<DateRange> dates_;
  std::unique_ptr<EntrySurroundings> surroundings_;  ///< once the window has loaded
  std::vector<QWidget*> termDates_;                  ///< the two dates and their calendars
  bool termEdited_ = false;
};

}  // namespace corvane
