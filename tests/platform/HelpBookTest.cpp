#include "platform/HelpBook.h"

#include <fstream>
#include <functional>
#include <set>

#include <gtest/gtest.h>
#include <QRegularExpression>

#include "TemporaryFolder.h"
#include "platform/ProgramFolder.h"
#include "support/WholeFile.h"

namespace corvane {
namespace {

std::string OpeningTells(const std::filesystem::path& file) {
  const auto book = HelpBook::Open(file);
  const auto* message = std::get_if<QString>(&book);
  return message ? message->section('\n', 0, 0).toStdString() : "";
}

class HelpBookTest : public ::testing::Test {
 protected:
  std::string Text(const QString& topic) const { return book_.File(topic)->toStdString(); }

  bool Has(const QString& page, const QString& link) const {
    const QString topic = link.startsWith('#') ? page : link.section('#', 0, 0);
    if (!book_.File(topic)) return false;
    const QRegularExpression anchor("(id|name)=\"" + link.section('#', 1) + "\"");
    return !link.contains('#') || QString::fromStdString(Text(topic)).contains(anchor);
  }

  void Collect(const std::vector<HelpEntry>& entries, std::set<QString>& reached) {
    for (const HelpEntry& entry : entries) {
      EXPECT_NE(entry.title, "");
      EXPECT_TRUE(entry.topic.isEmpty() || Has({}, entry.topic)) << entry.topic.toStdString();
      reached.insert(entry.topic.section('#', 0, 0));
      Collect(entry.entries, reached);
    }
  }

  HelpBook book_ = std::get<HelpBook>(HelpBook::Open(HelpFile()));
};

TEST_F(HelpBookTest, EveryContextNumberHasItsTopicAndAnUnknownOneTheMainMenu) {
  const std::pair<int, const char*> contexts[] = {
      {1, "main-menu.htm"},       {2, "disclosure-setup.htm"}, {3, "disclosure-entry.htm"},
      {4, "tier-table.htm"},      {5, "disclaimer.htm"},       {6, "about.htm"},
      {7, "calendar.htm"},        {8, "statement-setup.htm"},  {9, "statement-period.htm"},
      {10, "daily-balances.htm"}, {11, "interest-report.htm"}, {12, "check-file.htm"},
      {15, "results.htm"},        {99, "main-menu.htm"}};
  for (const auto& [context, topic] : contexts) {
    EXPECT_EQ(book_.TopicOf(context), topic);
    EXPECT_TRUE(book_.File(topic)) << topic;
  }
}

TEST_F(HelpBookTest, TheContentsReachEveryTopicAndEveryLinkAndPictureLeadsSomewhere) {
  std::set<QString> reached;
  Collect(book_.Contents(), reached);
  const QRegularExpression address("(?:href|src)=\"([^\"]*)\"");
  for (const QString& topic : book_.Topics()) {
    EXPECT_TRUE(reached.contains(topic)) << topic.toStdString() << " is not in the contents";
    EXPECT_NE(book_.TitleOf(topic), "") << topic.toStdString();
    auto links = address.globalMatch(QString::fromStdString(Text(topic)));
    while (links.hasNext()) {
      const QString link = links.next().captured(1);
      EXPECT_TRUE(Has(topic, link)) << topic.toStdString() << " leads to " << link.toStdString();
    }
  }
}

TEST_F(HelpBookTest, FindsTheTopicsThatHaveAllWordsThoseOfTheTitleFirst) {
  const auto found = book_.Find(" DAILY  balances ");
  ASSERT_GT(found.size(), 1U);
  EXPECT_EQ(found.front(), "daily-balances.htm");
  EXPECT_TRUE(book_.Find("balance qwertz").empty());
  EXPECT_TRUE(book_.Find("href").empty()) << "markup is no text";
  EXPECT_TRUE(book_.Find(" ").empty());
}

TEST(HelpFile, IsOpenedOnlyAsItWasBuilt) {
  const TemporaryFolder folder;
  const std::string whole = std::get<std::string>(ReadWholeFile(HelpFile()));
  const auto file = folder.Path() / "CorvaneWin.chm";
  const auto write = [&file](const std::string& content) {
    std::ofstream(file, std::ios::binary) << content;
  };
  std::string oneBitOff = whole;
  oneBitOff[whole.size() / 2] ^= 1;
  const struct {
    std::function<void()> make;
    std::string told;
  } cases[] = {
      {[&] { write(whole); }, ""},
      {[&] { write(oneBitOff); }, "The help file is damaged, or it belongs to another version"},
      {[&] { write("ITSF"); }, "The help file is damaged"},
      {[&] { std::filesystem::resize_file(file, 1ULL << 36U); }, "The help file is damaged"},
      {[&] { std::filesystem::remove(file); }, "The help file is missing: " + file.string()},
      {[&] { std::filesystem::create_directory(file); }, "The help file is missing"}};
  for (const auto& c : cases) {
    c.make();
    const std::string told = OpeningTells(file);
    EXPECT_EQ(told.substr(0, c.told.size()), c.told);
    EXPECT_EQ(told.empty(), c.told.empty()) << told;
  }
}

}  // namespace
}  // namespace corvane
