#include "shell/registry.h"

#include <gtest/gtest.h>

#include "forms/desk.h"
#include "forms/settings_store.h"
#include "support/test_program.h"

namespace tarnmill {
namespace {

class RegistryTest : public testing::Test {
 protected:
  [[nodiscard]] SettingsStore& store() { return program.desk.settings(); }
  [[nodiscard]] Variant read(TextView name, const Variant& otherwise = u"default") {
    return GetRegistrySetting(store(), u"Software", u"Tarnmill", u"Boje", name, otherwise);
  }
  void save(TextView name, TextView value) {
    EXPECT_TRUE(SaveRegistrySetting(store(), u"Software", u"Tarnmill", u"Boje", name, value));
  }

  TestProgram program;
};

TEST(RegistryPath, LeavesOutEmptyParts) {
  EXPECT_EQ(registry_path(u"Software", u"Tarnmill", u"Boje"), u"Software\\Tarnmill\\Boje");
  EXPECT_EQ(registry_path(u"Software", u"", u"Boje"), u"Software\\Boje");
  EXPECT_EQ(registry_path(u"Software", u"Tarnmill", u""), u"Software\\Tarnmill");
  EXPECT_EQ(registry_path(u"", u"Tarnmill", u"Boje"), u"Tarnmill\\Boje");
  EXPECT_EQ(registry_path(u"", u"", u"Boje"), u"Boje");
  EXPECT_EQ(registry_path(u"", u"", u""), u"");
}

TEST_F(RegistryTest, AnAbsentValueReadsAsTheDefault) {
  EXPECT_EQ(read(u"Ose").to_text({}), u"default");
  const Variant number = read(u"Ose", 9747613);
  EXPECT_TRUE(number.is_number());
  EXPECT_EQ(number.to_number({}), 9747613);
}

TEST_F(RegistryTest, AnEmptyTextReadsAsTheDefault) {
  save(u"Ose", u"");
  EXPECT_EQ(read(u"Ose").to_text({}), u"default");
}

TEST_F(RegistryTest, TextComesBackAsItWas) {
  for (const Text& text : {Text{u"255"}, Text{u"  K^(1/3), \"x\"\\y  "}, Text{u"\u0107\u20AC"}}) {
    save(u"Ose", text);
    const Variant back = read(u"Ose");
    EXPECT_TRUE(back.is_text());
    EXPECT_EQ(back.to_text({}), text);
  }
}

TEST_F(RegistryTest, ANumberComesBackAsANumber) {
  store().write(u"Software\\Tarnmill\\Boje", u"Grid", std::int32_t{-2147483638});
  const Variant back = read(u"Grid");
  EXPECT_TRUE(back.is_number());
  EXPECT_EQ(back.to_number({}), -2147483638);
}

TEST_F(RegistryTest, AnotherHiveHoldsNothing) {
  constexpr std::int64_t local_machine = 0x80000002;
  EXPECT_TRUE(SaveRegistrySetting(store(), u"Software", u"Tarnmill", u"Boje", u"Ose", u"1", local_machine));
  EXPECT_EQ(read(u"Ose").to_text({}), u"default");
  save(u"Ose", u"2");
  EXPECT_EQ(GetRegistrySetting(store(), u"Software", u"Tarnmill", u"Boje", u"Ose", u"none", local_machine)
                .to_text({}),
            u"none");
}

TEST_F(RegistryTest, TheHiveMayComeAsASignedNumber) {
  constexpr std::int64_t signed_hive = -2147483647;
  save(u"Ose", u"2");
  EXPECT_EQ(
      GetRegistrySetting(store(), u"Software", u"Tarnmill", u"Boje", u"Ose", u"", signed_hive).to_text({}),
      u"2");
}

TEST_F(RegistryTest, ValuesOutliveTheProgram) {
  save(u"Ose", u"7");
  program.restart();
  EXPECT_EQ(read(u"Ose").to_text({}), u"7");
}

}  // namespace
}  // namespace tarnmill
