#pragma once

namespace corvane {

struct SessionRecord;

/// Empties the four day tables and ends the detail of an earlier computation; Main Menu does so
/// too.
void ClearDayTables(SessionRecord& session);

/// Readies the record for a new statement account; the ADB method is preselected. The windows of
/// the account before are the caller's to discard.
void ResetStatement(SessionRecord& session);

/// ResetStatement as the workflow starts from the main menu: neither method is preselected.
void StartStatements(SessionRecord& session);

}  // namespace corvane
