#include "account/Refusal.h"

namespace corvane {

Refusal RefusalOf(Failure failure) {
  if (failure == Failure::WithdrawalPeriodsDisagree) {
    return {"Withdrawal periods do not agree with compound periods."};
  }
  return {"The entries give a result that cannot be computed. Please correct them."};
}

Refusal LeapDayNotice() {
  return {"Count 2/29 will be changed to Yes, No is not allowed for 366 days.", "", kKeyEntryError,
          MessageIcon::None};
}

}  // namespace corvane
