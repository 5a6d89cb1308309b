#include "platform/qt/look/art.h"

#include <gtest/gtest.h>

#include <QtCore/QDir>
#include <QtCore/QResource>

#include "platform/qt/look/svg.h"
#include "support/handheld.h"

namespace {

TEST(Art, RenderedInTheBuildIsWhatItsFileShows) {
    const QStringList files = QDir(":/art").entryList({"menu_*.svg"});
    ASSERT_FALSE(files.isEmpty());
    for (const QString& file : files) {
        for (int side : {16, 32, 48, 64, 80, 96}) {
            EXPECT_TRUE(QResource(":/baked/" + BakedName(file, side)).isValid());
            EXPECT_EQ(RenderArt(qPrintable(file), {side, side}),
                      RenderSvg(":/art/" + file, {side, side}))
                << file.toStdString() << side;
        }
    }
}

}  // namespace
