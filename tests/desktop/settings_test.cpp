#include <gtest/gtest.h>

#include <fstream>
#include <limits>

#include "desktop/settings_file.h"
#include "script/temporary_folder.h"

namespace tarnmill::desktop {
namespace {

using Value = SettingsStore::Value;
constexpr TextView colors = u"Software\\Tarnmill\\Boje";
constexpr TextView recent = u"Software\\Tarnmill\\Recent Functions";

class Settings : public ::testing::Test {
 protected:
  [[nodiscard]] std::filesystem::path file() const { return folder.path() / "settings.conf"; }
  void put(std::string_view bytes) const { std::ofstream{file(), std::ios::binary} << bytes; }

  TemporaryFolder folder;
};

TEST_F(Settings, WhatWasNeverWrittenIsAbsent) {
  SettingsFile settings{file()};
  EXPECT_EQ(settings.read(colors, u"Grid"), std::nullopt);
  EXPECT_EQ(settings.read(u"", u""), std::nullopt);
}

TEST_F(Settings, ANumberComesBackAsANumber) {
  for (const std::int32_t number : {0, 9747613, -2147483638, std::numeric_limits<std::int32_t>::max()}) {
    SettingsFile{file()}.write(colors, u"Grid", number);
    EXPECT_EQ(SettingsFile{file()}.read(colors, u"Grid"), Value{number});
  }
}

TEST_F(Settings, TextComesBackUnitByUnit) {
  const Text texts[] = {u"",        u"9747613",  u" blanks  ",     u"a,b;c=d",   u"\"quoted\"", u"@at",
                        u"%25 [x]", u"K^(1/3)",  u"x\\y/z",        u"čćžšđ π ∞", u"\U0001D465", u"a\r\nb\tc",
                        u"text:",   u"number:5", Text{u"a\0b", 3}, Text{0xD835}, Text{0xFFFD},  u"ÿ"};
  for (const Text& text : texts) {
    SettingsFile{file()}.write(recent, u"Recent1", text);
    EXPECT_EQ(SettingsFile{file()}.read(recent, u"Recent1"), Value{text}) << to_utf8(text);
  }
}

TEST_F(Settings, KeysAndNamesAreKeptApart) {
  SettingsFile settings{file()};
  settings.write(recent, u"Recent1", Text{u"one"});
  settings.write(recent, u"RecentX1", Text{u"two"});
  settings.write(u"Software\\Tarnmill\\MathPad", u"Recent1", Text{u"three"});
  settings.write(u"Software\\Tarnmill", u"Recent1", Text{u"four"});
  EXPECT_EQ(settings.read(recent, u"Recent1"), Value{u"one"});
  EXPECT_EQ(settings.read(recent, u"RecentX1"), Value{u"two"});
  EXPECT_EQ(settings.read(u"Software\\Tarnmill\\MathPad", u"Recent1"), Value{u"three"});
  EXPECT_EQ(settings.read(u"Software\\Tarnmill", u"Recent1"), Value{u"four"});
}

TEST_F(Settings, AFlushBringsThemToTheDisk) {
  SettingsFile settings{file()};
  settings.write(colors, u"Grid", Text{u"5"});
  settings.flush();
  EXPECT_GT(std::filesystem::file_size(file()), 0U);
}

TEST_F(Settings, ACorruptFileReadsAsAbsent) {
  const std::string_view broken[] = {"[Software", "\xFF\xFE\x00\x01garbage",
                                     "[Software\\Tarnmill\\Boje]\nGrid=5\n",
                                     "[Software]\nTarnmill\\Boje\\Grid=@Variant(\\0\\0\\0\\xff)\n",
                                     "[Software]\nTarnmill\\Boje\\Grid=number:five\n"};
  for (const std::string_view bytes : broken) {
    put(bytes);
    SettingsFile settings{file()};
    EXPECT_EQ(settings.read(colors, u"Grid"), std::nullopt) << bytes;
  }
}

TEST_F(Settings, ACorruptFileTakesNewValues) {
  put("[[[ no settings at all \xC3\x28\n===\n");
  SettingsFile{file()}.write(colors, u"Grid", Text{u"5"});
  EXPECT_EQ(SettingsFile{file()}.read(colors, u"Grid"), Value{u"5"});
}

TEST_F(Settings, WhatCannotBeWrittenIsLostInSilence) {
  std::filesystem::create_directory(file());
  {
    SettingsFile settings{file()};
    settings.write(colors, u"Grid", Text{u"5"});
    settings.flush();
  }
  EXPECT_TRUE(std::filesystem::is_directory(file()));
  SettingsFile nowhere{folder.path() / "no" / "file" / "taken"};
  put("");
  EXPECT_EQ(nowhere.read(colors, u"Grid"), std::nullopt);
}

}  // namespace
}  // namespace tarnmill::desktop
