// Saves that can't be finished: the old file stays whole, and so does the text on the screen.
#include <sys/resource.h>

#include <csignal>

#include "math_pad_fixture.h"

namespace tarnmill {
namespace {

/// Lets no file grow beyond so many bytes, as a disk does that fills up in the middle of a write.
class SmallDisk {
 public:
  explicit SmallDisk(rlim_t bytes) : handler_{std::signal(SIGXFSZ, SIG_IGN)} {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit small{bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
  }
  ~SmallDisk() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }
  SmallDisk(const SmallDisk&) = delete;
  SmallDisk& operator=(const SmallDisk&) = delete;

 private:
  void (*handler_)(int);
  rlimit before_{};
};

class SaveFailure : public MathPadTest {
 protected:
  /// How many files lie in the folder.
  [[nodiscard]] long files() {
    const std::filesystem::directory_iterator folder{program.folder()};
    return std::distance(begin(folder), end(folder));
  }
};

constexpr rlim_t disk_sizes[] = {0, 1, 10, 4096, 40000};

TEST_F(SaveFailure, AWriteCutShortLeavesTheOldFile) {
  for (const char* name : {"a.rtf", "a.txt"}) {
    assign(u"the old text");
    save_as(name);
    const std::string old = bytes(name);
    const Text changed = Text(50000, u'x');
    assign(changed);
    const long before = files();
    for (const rlim_t size : disk_sizes) {
      const SmallDisk disk{size};
      pad().save();
      EXPECT_EQ(bytes(name), old) << name << size;
      EXPECT_EQ(text(), changed);
      EXPECT_EQ(pad().rt1.Tag.get(), u"change");
    }
    EXPECT_EQ(files(), before) << "nothing half written stays";
    pad().save();
    EXPECT_GE(bytes(name).size(), changed.size());
    EXPECT_EQ(pad().rt1.Tag.get(), u"notchange");
  }
}

TEST_F(SaveFailure, ASaveAsCutShortLeavesTheOldFileAndTheName) {
  write("old.txt", u"the old text");
  const Text long_text = Text(5000, u'x');
  assign(long_text);
  program.desk.answer(path("old.txt"));
  program.desk.answer(MessageResult::yes);
  {
    const SmallDisk disk{1000};
    pad().save_as();
  }
  EXPECT_EQ(bytes("old.txt"), "the old text");
  EXPECT_EQ(text(), long_text);
  EXPECT_EQ(pad().Caption.get(), u"MathPad    ");
  EXPECT_EQ(pad().rt1.Tag.get(), u"change");
}

TEST_F(SaveFailure, AFullDiskLeavesTheText) {
  std::filesystem::create_symlink("/dev/full", program.folder() / "full.rtf");
  assign(u"abc");
  program.desk.answer(path("full.rtf"));
  program.desk.answer(MessageResult::yes);
  pad().save_as();
  EXPECT_EQ(text(), u"abc");
  EXPECT_EQ(pad().rt1.Tag.get(), u"change");
  EXPECT_FALSE(program.bench.ended());
}

TEST_F(SaveFailure, TheWindowFileOfAFullDiskIsDoneWithout) {
  pad().save_window_record();
  const std::string old = bytes("tarnmill.INI");
  pad().Left = 900;
  {
    const SmallDisk disk{3};
    pad().save_window_record();
  }
  EXPECT_EQ(bytes("tarnmill.INI"), old);
}

}  // namespace
}  // namespace tarnmill
