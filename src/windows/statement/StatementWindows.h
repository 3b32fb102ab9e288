#pragma once

namespace corvane {

class WindowRegistry;

/// Closes the windows that hold one account's entries: interest report, daily balances, results,
/// period and tier table.
void DiscardAccountWindows(WindowRegistry& windows);

/// New Account of every statement window: readies the record and closes the account's windows.
void NewStatementAccount(WindowRegistry& windows);

/// New Account of the windows behind the setup: leads back to it with its options as on a fresh
/// window and the institution kept.
void ShowNewStatementAccount(WindowRegistry& windows);

/// Main Menu of every statement window: shows the main menu, closes all statement windows, and
/// clears the identification and the days.
void LeaveStatements(WindowRegistry& windows);

}  // namespace corvane
