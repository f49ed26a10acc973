#include "forms/files.h"

#include <gtest/gtest.h>

#include <fstream>

#include "engine/fault.h"
#include "support/test_program.h"

namespace tarnmill {
namespace {

namespace fs = std::filesystem;

class FilesTest : public ::testing::Test {
 protected:
  TestProgram program;
  fs::path path = program.folder() / "notes.txt";

  static int fault_of(const std::function<void()>& step) {
    try {
      step();
    } catch (const Fault& fault) {
      return fault.number();
    }
    return 0;
  }
};

TEST_F(FilesTest, TextComesBackAsItWasWritten) {
  const Text text = u"a\r\n\u03C0 \u221A";
  write_text_file(path, text);
  EXPECT_EQ(read_text_file(path), text);
}

TEST_F(FilesTest, AppendingMakesAMissingFile) {
  append_text_file(path, u"a");
  append_text_file(path, u"b");
  EXPECT_EQ(read_text_file(path), u"ab");
}

TEST_F(FilesTest, AMissingFileIsAFault) {
  EXPECT_EQ(fault_of([this] { EXPECT_EQ(read_text_file(path), u""); }), 53);
  EXPECT_EQ(fault_of([this] { EXPECT_EQ(read_text_file(program.folder()), u""); }), 53);
}

TEST_F(FilesTest, AFileThatCannotBeWrittenIsAFaultAndLeavesNothingBehind) {
  const fs::path nowhere = program.folder() / "absent" / "notes.txt";
  EXPECT_EQ(fault_of([&] { write_text_file(nowhere, u"a"); }), 75);
  EXPECT_EQ(fault_of([&] { append_text_file(nowhere, u"a"); }), 75);
  EXPECT_FALSE(fs::exists(nowhere.parent_path()));
}

TEST_F(FilesTest, AFailedWriteLeavesTheOldFileWhole) {
  fs::create_directory(path);
  std::ofstream{path / "old"} << "kept";
  EXPECT_EQ(fault_of([this] { write_text_file(path, u"new"); }), 75);
  EXPECT_EQ(read_text_file(path / "old"), u"kept");
  EXPECT_FALSE(fs::exists(path.string() + ".new"));
}

TEST_F(FilesTest, AFileOfTheTemporaryNameIsLeftAlone) {
  const fs::path neighbour = path.string() + ".new";
  write_text_file(neighbour, u"mine");
  write_text_file(path, u"new");
  EXPECT_EQ(read_text_file(path), u"new");
  EXPECT_EQ(read_text_file(neighbour), u"mine");
}

TEST_F(FilesTest, ALinkStaysOneAndItsFileIsWritten) {
  const fs::path link = program.folder() / "link.txt";
  write_text_file(path, u"old");
  fs::create_symlink(path, link);
  write_text_file(link, u"new");
  EXPECT_TRUE(fs::is_symlink(link));
  EXPECT_EQ(read_text_file(path), u"new");
}

TEST_F(FilesTest, TheRightsOfTheOldFileStay) {
  write_text_file(path, u"old");
  fs::permissions(path, fs::perms::owner_read | fs::perms::owner_write);
  write_text_file(path, u"new");
  EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(FilesTest, APathWithAZeroIsRefused) {
  write_text_file(path, u"old");
  const fs::path odd{path.string() + std::string{"\0rest", 5}};
  EXPECT_EQ(fault_of([&] { write_text_file(odd, u"new"); }), 75);
  EXPECT_EQ(fault_of([&] { static_cast<void>(read_text_file(odd)); }), 53);
  EXPECT_EQ(read_text_file(path), u"old");
}

TEST_F(FilesTest, ADeviceIsNotReadToItsEnd) {
  EXPECT_EQ(fault_of([] { static_cast<void>(read_file("/dev/zero")); }), 53);
}

TEST_F(FilesTest, AFullDiskIsAFault) {
  const fs::path full = program.folder() / "full.txt";
  fs::create_symlink("/dev/full", full);
  EXPECT_EQ(fault_of([&] { write_text_file(full, u"a"); }), 75);
  EXPECT_EQ(fault_of([&] { append_text_file(full, u"a"); }), 75);
  EXPECT_TRUE(fs::is_character_file("/dev/full"));
}

TEST_F(FilesTest, ATextThatIsNotUtf8IsReadAsCodePage1252) {
  std::ofstream{path, std::ios::binary} << "\x80 \xE9";
  EXPECT_EQ(read_text_file(path), u"\u20AC \u00E9");
}

TEST_F(FilesTest, AByteOrderMarkIsNotPartOfTheText) {
  std::ofstream{path, std::ios::binary} << "\xEF\xBB\xBFx";
  EXPECT_EQ(read_text_file(path), u"x");
}

}  // namespace
}  // namespace tarnmill
