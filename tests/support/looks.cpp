#include "support/looks.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

constexpr QSize patches(60, 80);

QImage Patches(const QImage& screen) {
    return screen.scaled(patches, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_RGB32);
}

}  // namespace

int LargestDifference(const QImage& screen, const QImage& other) {
    const QImage first = Patches(screen);
    const QImage second = Patches(other);
    int largest = 0;
    for (qsizetype i = 0; i < first.sizeInBytes(); ++i) {
        largest = std::max(largest, std::abs(first.constBits()[i] - second.constBits()[i]));
    }
    return largest;
}

void ExpectLooksAsRecorded(const QImage& screen, const std::string& name) {
    const QString file = QString(LOOKS) + QString::fromStdString(name) + ".png";
    if (qEnvironmentVariableIsSet("QUADREL_RECORD_LOOKS")) {
        Patches(screen).save(file);
    }
    const QImage recorded(file);
    ASSERT_FALSE(recorded.isNull()) << name;
    EXPECT_LT(LargestDifference(screen, recorded), 40) << name;
}
