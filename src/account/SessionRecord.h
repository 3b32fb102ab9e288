#pragma once

#include <cstdint>
#include <string>

#include "account/Flag.h"
#include "account/Table.h"
#include "support/Dates.h"

namespace corvane {

/// The one set of named values that all windows share for the length of a run. It starts zeroed
/// and is never stored. Percentages are percent numbers (5.25 is 5.25 %), money is in currency
/// units, tables are indexed from 1 unless they say otherwise.
struct SessionRecord {
  // Account identification: free text that the reports print.
  std::string InstitutionName;
  std::string AccountDescription;
  std::string AccountHolder;
  std::string AccountNumber;

  // Account description, written when a setup window's Continue succeeds.
  Flag AcctRegular;
  Flag AcctStepped;
  Flag AcctTierA;
  Flag AcctTierB;
  std::int16_t AcctTypeCode = 0;      ///< 1 regular, 2 stepped, 3 tiered A, 4 tiered B
  std::int16_t PrevAcctTypeCode = 0;  ///< AcctTypeCode at the last Continue that rebuilt the entry
  Flag CompoundNone;
  Flag CompoundDays;
  Flag CompoundMonths;
  Flag CompoundYears;
  std::int16_t CompoundingDays = 0;  ///< N: days, months or years of one compounding period
  Flag DaysInYear365;
  Flag DaysInYear366;
  double DaysInYear = 0;  ///< 365 or 366 at setup, then the denominator of the daily rate factor
  Flag CountLeapDay;
  Flag ReqWdrwlNotReq;
  Flag ReqWdrwlDays;
  Flag ReqWdrwlMonths;
  std::int16_t StatementPath = 0;  ///< 0 disclosures and advertisements, 1 periodic statements

  // Calculation settings.
  Flag RoundNotTruncate;
  double RoundingDigits = 0;  ///< 15 from the main menu's load on
  double TruncationDigits = 0;

  // Disclosure entry.
  std::int16_t BeginMonth = 0;
  std::int16_t BeginYear = 0;
  double Balance = 0;
  double EnteredBalance = 0;  ///< balance of the entry that is being computed
  double EnteredTerm = 0;     ///< term as entered, in days or compounding periods
  double DisclosedApy = 0;
  double BtwnReqIntWdrwl = 0;  ///< M
  double WdrwlPeriods = 0;     ///< W
  std::string DailyRateFactor;
  std::int16_t TotalTiers = 0;
  std::int16_t TierCountSel = 0;
  Table<double> TierRate{1, 10};
  Table<double> TierNotExceeding{1, 9};
  Table<double> TierAbove{2, 10};
  Table<double> TierSpan{1, 9};
  std::int16_t PeriodNumber = 0;
  std::int16_t PeriodCount = 0;
  std::int16_t TierNumber = 0;
  std::int16_t TierPerNum = 0;
  std::int16_t TierPeriodCounter = 0;
  std::int16_t SavedPeriodNumber = 0;
  std::int16_t SavedTierPeriod = 0;
  std::int16_t EntryNavState = 0;  ///< 0 fresh entry, 1 moving forward, 2 returned by Back
  Flag EntryDataKept;
  Flag TierFormLoaded;
  Flag TierRecalc;
  Flag TermEntryFlag;
  Flag BackFromResults;
  Table<std::int16_t> PerPeriodNo;
  Table<std::int16_t> PerBeginMonth;
  Table<std::int16_t> PerBeginYear;
  Table<double> PerBalance;
  Table<double> PerRate;
  Table<double> PerDiscApy;
  Table<double> PerTerm;
  Table<double> PerWdrwlPeriods;
  Table<double> PerBtwnReqIntWdrwl;
  Table<DateSerial> PerStartDate;  ///< 0 where no valid date was entered
  Table<DateSerial> PerEndDate;
  Table<std::string> PerDailyRateFactor;
  Table<std::string> RptLineNo;
  Table<std::string> RptBalance;
  Table<std::string> RptRate;
  Table<std::string> RptTerm;
  Table<std::string> RptInterest;
  Table<std::string> RptDisclosedApy;
  Table<std::string> RptComputedApy;
  Table<std::string> RptVerdict;

  // Statement entry.
  Flag AdditionalApy;                ///< the additional APY formula applies
  double CompoundingPeriodDays = 0;  ///< days of its compounding period
  Flag UseAdb;
  Flag UseDailyBal;
  double MinAdb = 0;
  double MinDailyBal = 0;
  double StmtDisclosedApy = 0;
  double AdbLedgerBal = 0;
  double AdbCollectedBal = 0;
  double LedgerDays = 0;
  double CollectedDays = 0;
  std::int16_t StatementDays = 0;
  double InterestAmount = 0;
  double ComputedAdb = 0;
  double DailyPeriodicRate = 0;
  DateSerial PeriodStart = 0;
  DateSerial CurrentDay = 0;
  Flag LedgerBasis;
  Flag LedgerCollectedYes;
  Flag LedgerAdbYes;
  Flag BalOption3;
  std::int16_t BalanceBasisCode = 0;
  std::int16_t BalanceMethodCode = 0;
  std::int16_t BalanceMethodSub = 0;
  std::int16_t AdbComputed = 0;
  Flag LedgerDaysEntered;
  Flag CollectedDaysEntered;
  Flag ComputeFlag;
  Flag NewStatementAcct;
  Flag DailyBalReset;
  Flag DailyFlag1;
  Flag DailyFlag2;
  Flag DetailData;              ///< the day tables hold what the last Compute ADB handed back
  Flag DetailLedger;            ///< it was the ledger column's, else the collected column's
  double DetailAdb = 0;         ///< the average that it handed back
  std::int16_t DetailDays = 0;  ///< the days that the average was taken over
  Table<double> LedgerDayBalances;
  Table<double> LedgerDayRates;
  Table<double> CollectedDayBalances;
  Table<double> CollectedDayRates;

  // Results.
  double ComputedApy = 0;
  double ComputedInterest = 0;
  double TierInterestTotal = 0;
  double TermDays = 0;
  double Principal = 0;
  double TermUnits = 0;
  double SummaryInterest = 0;
  double MonthPeriodDays = 0;
  std::string ApyVerdict;
  std::string RateScheduleText;

  // Application shell.
  std::string AppDataFolder;
  Flag UnloadEndsProgram;
};

}  // namespace corvane
