#include "disclosure/DisclosureTable.h"

namespace corvane {
namespace {

TEST(DisclosureNotes, GiveTheOtherFigureWhereItDiffers) {
  DisclosurePerson person;
  RunChecks("disclosure/Notes.txt", ValuesOf(person));
}

TEST(DisclosureNotes, AreSentencesThatSayWhereTheVerdictWouldTurn) {
  Note note{NoteKind::CompoundingByPeriods, {*FigureApart(5.13, 5.0598, 5.06, 0.01)}, 182};
  EXPECT_EQ(NoteText(note),
            "Interest compounds every 182 days and is computed with daily compounding. The APY "
            "when it compounds every 182 days: 5.06% beside 5.13%. This would be OK.");
  note = {NoteKind::YearOfMethodB,
          {*FigureApart(5.41, 5.39, 5.45, 0.01), *FigureApart(5.41, 5.39, 5.4, 0.01)}};
  note.figures[0].place = "Tier 1";
  note.figures[1].place = "Tier 2, low end";
  note.figures[1].number = 2;
  EXPECT_TRUE(NoteText(note).ends_with(
      "year: Tier 1: 5.39% beside 5.41%. This would be an APY VIOLATION. Tier 2, low end: 5.39% "
      "beside 5.41%."));
  const Notes notes = {note, {NoteKind::PeriodsRemain, {}, 1, 3}};
  EXPECT_TRUE(NotesOfLine(notes, 1).ends_with(
      "year: Tier 1: 5.39% beside 5.41%. This would be an APY VIOLATION. Periods computed: 1 of 3. "
      "The APY is not yet that of the whole term."));
  EXPECT_TRUE(NotesOfLine(notes, 2).ends_with("year: Tier 2, low end: 5.39% beside 5.41%."));
  EXPECT_EQ(NotesOfLine(notes, 3), "");
  EXPECT_FALSE(FigureApart(5.4, 5.4049, 5.4, 0.01));
}

}  // namespace
}  // namespace corvane
