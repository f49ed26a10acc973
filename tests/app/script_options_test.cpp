#include "app/script_options.h"

#include <gtest/gtest.h>

namespace tarnmill {
namespace {

using Words = std::vector<std::string>;

TEST(ScriptOptions, WhatStandsBehindTheScriptIsItsOwn) {
  const auto options = read_script_options({"lua", "x.lua", "--windows", "-", "two words"});
  ASSERT_TRUE(options.has_value());
  EXPECT_EQ(options->interpreter, "lua");
  EXPECT_EQ(options->file, "x.lua");
  EXPECT_EQ(options->arguments, (Words{"--windows", "-", "two words"}));
  EXPECT_FALSE(options->windows);
  EXPECT_FALSE(options->folder.has_value());
}

TEST(ScriptOptions, OptionsStandInFront) {
  const auto options = read_script_options({"lua", "--windows", "--folder", "a b", "-"});
  ASSERT_TRUE(options.has_value());
  EXPECT_EQ(options->file, "-");
  EXPECT_TRUE(options->windows);
  EXPECT_EQ(options->folder, "a b");
}

TEST(ScriptOptions, TheLastWordOnTheDisplayCounts) {
  EXPECT_FALSE(read_script_options({"lua", "--windows", "--offscreen", "x"})->windows);
  EXPECT_TRUE(read_script_options({"lua", "--offscreen", "--windows", "x"})->windows);
}

TEST(ScriptOptions, HelpNeedsNoScript) { EXPECT_TRUE(read_script_options({"lua", "--help"})->help); }

TEST(ScriptOptions, AWrongCommandLineIsRefused) {
  for (const Words& words : {Words{}, Words{"lua"}, Words{"lua", "--folder"}, Words{"lua", "--folder", "x"},
                             Words{"lua", "--other", "x.lua"}, Words{"lua", "--windows"}}) {
    EXPECT_FALSE(read_script_options(words).has_value()) << words.size();
  }
}

}  // namespace
}  // namespace tarnmill
