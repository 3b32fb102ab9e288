#include "account/AccountHeader.h"

#include "account/SessionRecord.h"

namespace corvane {

void CaptureUserInfo(SessionRecord& session, HeaderMode mode, const AccountHeader& fields) {
  AccountHeader stored = RestoreUserInfo(session);
  switch (mode) {
    case HeaderMode::DisclosureSetup:
      stored = {fields.institution, fields.description, fields.holder, stored.number};
      break;
    case HeaderMode::StatementSetup:
      stored = fields;
      break;
    case HeaderMode::ClearAll:
      stored = {};
      break;
    case HeaderMode::KeepInstitution:
      stored = {stored.institution, "", "", ""};
      break;
  }
  session.InstitutionName = stored.institution;
  session.AccountDescription = stored.description;
  session.AccountHolder = stored.holder;
  session.AccountNumber = stored.number;
}

AccountHeader RestoreUserInfo(const SessionRecord& session) {
  return {session.InstitutionName, session.AccountDescription, session.AccountHolder,
          session.AccountNumber};
}

}  // namespace corvane
