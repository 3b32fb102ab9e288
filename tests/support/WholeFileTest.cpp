#include "support/WholeFile.h"

#include <gtest/gtest.h>

#include <csignal>

#if __has_include(<sys/resource.h>)
#include <sys/resource.h>
#endif

#include "TemporaryFolder.h"
#include "support/Paths.h"

namespace corvane {
namespace {

/// A file with letters outside ASCII in its name, alone in its folder.
class WholeFile : public testing::Test {
 protected:
  WholeFile() { EXPECT_FALSE(WriteWholeFile(file_, "previous")); }

  /// A refused write names the file and a reason, and leaves everything as it was.
  void ExpectRefused(const std::optional<FileError>& error, const std::filesystem::path& file) {
    ASSERT_TRUE(error.has_value()) << file;
    EXPECT_EQ(error->path, file);
    EXPECT_TRUE(error->reason != "" && error->reason != "Success") << file;
    EXPECT_EQ(std::get<std::string>(ReadWholeFile(file_)), "previous");
    const std::filesystem::directory_iterator files(folder_.Path());
    EXPECT_EQ(std::distance(begin(files), end(files)), 1) << "no file is left beside";
  }

  const TemporaryFolder folder_;
  const std::filesystem::path file_ = folder_.Path() / PathOf("r\xC3\xA9sum\xC3\xA9.html");
};

TEST_F(WholeFile, WhatCannotBeReadOrWrittenStaysAsItWas) {
  const auto missing = folder_.Path() / "missing" / "file";
  for (const auto& file : {folder_.Path(), missing}) {
    ExpectRefused(std::get<FileError>(ReadWholeFile(file)), file);
    ExpectRefused(WriteWholeFile(file, "new"), file);
  }
}

TEST_F(WholeFile, TheNewFileTakesThePlaceTheModeAndTheLinkOfTheOld) {
  namespace fs = std::filesystem;
  const auto beside = folder_.Path() / PathOf("r\xC3\xA9sum\xC3\xA9.html.new");
  const auto link = folder_.Path() / "link";
  WriteWholeFile(beside, "another file");
  fs::create_symlink(file_.filename(), link);
  fs::permissions(file_, fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_FALSE(WriteWholeFile(link, "new"));
  EXPECT_TRUE(fs::is_symlink(link));
  EXPECT_EQ(std::get<std::string>(ReadWholeFile(file_)), "new");
  EXPECT_EQ(fs::status(file_).permissions(), fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_EQ(std::get<std::string>(ReadWholeFile(beside)), "another file");
  fs::permissions(file_, fs::perms::owner_read);
  EXPECT_TRUE(WriteWholeFile(link, "newer").has_value()) << "write-protected";
  EXPECT_EQ(std::get<std::string>(ReadWholeFile(file_)), "new");
}

TEST_F(WholeFile, NothingIsLeftBesideAFileThatCannotTakeItsPlace) {
  const auto late = folder_.Path() / "late";
  PiecewiseFile whole(late);
  whole.Write("new");
  std::filesystem::create_directory(late);
  const auto error = whole.Finish();
  EXPECT_TRUE(std::filesystem::remove(late)) << "the folder that came in between";
  ExpectRefused(error, late);
}

#if __has_include(<sys/resource.h>)
TEST_F(WholeFile, AWriteThatBreaksOffLeavesThePreviousFile) {
  rlimit previous{};
  getrlimit(RLIMIT_FSIZE, &previous);
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  rlimit small = previous;
  small.rlim_cur = 1000;
  setrlimit(RLIMIT_FSIZE, &small);
  const auto error = WriteWholeFile(file_, std::string(100000, 'x'));
  setrlimit(RLIMIT_FSIZE, &previous);
  std::signal(SIGXFSZ, handler);
  ExpectRefused(error, file_);
}
#endif

}  // namespace
}  // namespace corvane
