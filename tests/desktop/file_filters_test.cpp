#include "desktop/file_filters.h"

#include <gtest/gtest.h>

namespace tarnmill::desktop {
namespace {

TEST(FileFilters, PutThePatternsBehindTheCaption) {
  EXPECT_EQ(name_filters(u"Bitmap|*.bmp"), QStringList{"Bitmap (*.bmp)"});
  EXPECT_EQ(name_filters(u"Pictures|*.bmp;*.gif;*.jpg|Text|*.txt"),
            (QStringList{"Pictures (*.bmp *.gif *.jpg)", "Text (*.txt)"}));
}

TEST(FileFilters, ACaptionThatNamesItsPatternsNamesThemOnce) {
  EXPECT_EQ(name_filters(u"Rich Text (*.rtf)|*.rtf"), QStringList{"Rich Text (*.rtf)"});
}

TEST(FileFilters, EveryFileIsEveryFile) {
  EXPECT_EQ(name_filters(u"All Files|*.*"), QStringList{"All Files (*)"});
}

TEST(FileFilters, ACaptionWithoutPatternIsNoFilter) {
  EXPECT_TRUE(name_filters(u"").isEmpty());
  EXPECT_TRUE(name_filters(u"Bitmap").isEmpty());
}

}  // namespace
}  // namespace tarnmill::desktop
