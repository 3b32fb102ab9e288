#include "support/IniFile.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

namespace corvane {
namespace {

class IniFile : public testing::Test {
 protected:
  void SetUp() override { std::filesystem::remove_all(file); }
  void TearDown() override { std::filesystem::remove_all(file); }

  void Hold(const std::string& content) const { std::ofstream(file, std::ios::binary) << content; }
  std::string Content() const {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }
  std::string Read() const { return ReadIniValue("Options", "Startup Intro", "No", file); }
  bool Write(const char* value) const {
    return WriteIniValue("Options", "Startup Intro", value, file);
  }

  // Tests run at the same time, each in a process of its own.
  const std::filesystem::path file =
      std::filesystem::path(testing::TempDir()) /
      (std::string("corvane_") + testing::UnitTest::GetInstance()->current_test_info()->name() +
       ".ini");
};

TEST_F(IniFile, WhatIsRead) {
  const std::string line = "Startup Intro=";
  const std::pair<std::string, std::string> cases[] = {
      {"[Options]\r\n" + line + "Yes\r\n", "Yes"},
      {"[Options]\n" + line + "Yes", "Yes"},
      {"[OPTIONS]\r\nstartup intro=yes\r\n", "yes"},
      {"  [ Options ] \r\n\t Startup Intro \t=  Yes  \r\n", "Yes"},
      {"[Options]\r\n" + line + "\"Yes\"\r\n", "Yes"},
      {"[Options]\r\n" + line + "' Yes '\r\n", " Yes "},
      {"[Options]\r\n" + line + "\"Yes\r\n", "\"Yes"},
      {"[Options]\r\n" + line + "\r\n", "No"},
      {"[Options]\r\n" + line + "\"\"\r\n", "No"},
      {"[Options]\r\n;" + line + "Yes\r\n", "No"},
      {"[Options]\r\nStartup Intro\r\n", "No"},
      {"[Options]\r\nStartup=Yes\r\n[Other]\r\n" + line + "Yes\r\n", "No"},
      {line + "Yes\r\n", "No"},
      {"", "No"},
      {"[Options]\r\n" + line + std::string(300, 'y') + "\r\n", std::string(254, 'y')},
  };
  for (const auto& [content, expected] : cases) {
    Hold(content);
    EXPECT_EQ(Read(), expected) << content;
  }
}

TEST_F(IniFile, WritingKeepsAllOtherLines) {
  const std::pair<const char*, const char*> cases[] = {
      {"", "[Options]\r\nStartup Intro=Yes\r\n"},
      {"[Options]\r\nStartup Intro=No\r\n", "[Options]\r\nStartup Intro=Yes\r\n"},
      {"[Options]\nA=1", "[Options]\r\nA=1\r\nStartup Intro=Yes\r\n"},
      {"; note\r\n[X]\r\nStartup Intro=3\r\n",
       "; note\r\n[X]\r\nStartup Intro=3\r\n"
       "[Options]\r\nStartup Intro=Yes\r\n"},
      {"[options]\r\n# note\r\nstray\r\nSTARTUP INTRO=No\r\n\r\n[X]\r\nB=2\r\n",
       "[options]\r\n# note\r\nstray\r\nStartup Intro=Yes\r\n\r\n[X]\r\nB=2\r\n"},
      {"[Options]\r\nA=1\r\n\r\n[X]\r\nB=2\r\n",
       "[Options]\r\nA=1\r\nStartup Intro=Yes\r\n\r\n[X]\r\nB=2\r\n"},
  };
  for (const auto& [before, after] : cases) {
    Hold(before);
    EXPECT_TRUE(Write("Yes")) << before;
    EXPECT_EQ(Content(), after) << before;
    EXPECT_EQ(Read(), "Yes") << before;
  }
}

TEST_F(IniFile, AMissingFileIsMadeAndAnImpossibleOneRefused) {
  EXPECT_EQ(Read(), "No");
  EXPECT_TRUE(Write("Yes"));
  EXPECT_EQ(Content(), "[Options]\r\nStartup Intro=Yes\r\n");
  std::filesystem::remove(file);
  std::filesystem::create_directory(file);
  EXPECT_FALSE(Write("Yes")) << "a folder stands in its place";
  EXPECT_EQ(Read(), "No");
  EXPECT_FALSE(WriteIniValue("Options", "K", "Yes", file / "none" / "x.ini"));
}

}  // namespace
}  // namespace corvane
