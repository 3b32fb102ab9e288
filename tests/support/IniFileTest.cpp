#include "support/IniFile.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "TemporaryFolder.h"

namespace corvane {
namespace {

class IniFile : public testing::Test {
 protected:
  void Hold(const std::string& content) const { std::ofstream(file, std::ios::binary) << content; }
  std::string Content() const {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }
  std::string Read() const { return ReadIniValue("Options", "Startup Intro", "No", file); }
  bool Write() const { return WriteIniValue("Options", "Startup Intro", "Yes", file); }

  const TemporaryFolder folder;
  const std::filesystem::path file = folder.Path() / "corvane.ini";
};

TEST_F(IniFile, WhatIsRead) {
  const std::pair<const char*, std::string> cases[] = {
      {"[Options]\r\nStartup Intro=Yes\r\n", "Yes"},
      {"\xEF\xBB\xBF[OPTIONS]\nstartup intro=yes", "yes"},
      {"  [ Options ] \r\n\t Startup Intro \t=  Yes  \r\n", "Yes"},
      {"[Options]\r\nStartup Intro=' Yes '\r\n", " Yes "},
      {"[Options]\r\nStartup Intro=\"Yes\r\n", "\"Yes"},
      {"[Options]\r\nStartup Intro=\"\"\r\n", "No"},
      {"[Options]\n;Startup Intro=Yes\nStartup Intro\nStartup=Yes\n[X]\nStartup Intro=Yes", "No"},
      {"Startup Intro=Yes\r\n", "No"},
  };
  for (const auto& [content, expected] : cases) {
    Hold(content);
    EXPECT_EQ(Read(), expected) << content;
  }
  Hold("[Options]\nStartup Intro=" + std::string(300, 'y'));
  EXPECT_EQ(Read(), std::string(254, 'y'));
}

TEST_F(IniFile, WritingKeepsAllOtherLines) {
  const std::pair<const char*, const char*> cases[] = {
      {"\xEF\xBB\xBF[Options]\nA=1", "\xEF\xBB\xBF[Options]\r\nA=1\r\nStartup Intro=Yes\r\n"},
      {"; note\r\n[X]\r\nStartup Intro=3\r\n",
       "; note\r\n[X]\r\nStartup Intro=3\r\n[Options]\r\nStartup Intro=Yes\r\n"},
      {"[options]\r\n# note\r\nstray\r\nSTARTUP INTRO=No\r\n\r\n[X]\r\nB=2\r\n",
       "[options]\r\n# note\r\nstray\r\nStartup Intro=Yes\r\n\r\n[X]\r\nB=2\r\n"},
      {"[Options]\r\nA=1\r\n\r\n[X]\r\nB=2\r\n",
       "[Options]\r\nA=1\r\nStartup Intro=Yes\r\n\r\n[X]\r\nB=2\r\n"},
  };
  for (const auto& [before, after] : cases) {
    Hold(before);
    EXPECT_TRUE(Write()) << before;
    EXPECT_EQ(Content(), after) << before;
  }
}

TEST_F(IniFile, AMissingFileIsMadeAndAnImpossibleOneRefused) {
  EXPECT_EQ(Read(), "No");
  EXPECT_TRUE(Write());
  EXPECT_EQ(Content(), "[Options]\r\nStartup Intro=Yes\r\n");
  std::filesystem::remove(file);
  std::filesystem::create_directory(file);
  EXPECT_FALSE(Write()) << "a folder stands in its place";
  EXPECT_EQ(Read(), "No");
}

}  // namespace
}  // namespace corvane
