#include "support/looks.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

QImage Patches(const QImage& screen, QSize count) {
    return screen.scaled(count, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_RGB32);
}

int Difference(const QImage& first, const QImage& second) {
    int largest = 0;
    for (qsizetype i = 0; i < std::min(first.sizeInBytes(), second.sizeInBytes()); ++i) {
        largest = std::max(largest, std::abs(first.constBits()[i] - second.constBits()[i]));
    }
    return largest;
}

QImage Recorded(const QImage& picture, const std::string& name) {
    const QString file = QString(LOOKS) + QString::fromStdString(name) + ".png";
    if (qEnvironmentVariableIsSet("QUADREL_RECORD_LOOKS")) {
        picture.save(file);
    }
    const QImage recorded(file);
    EXPECT_FALSE(recorded.isNull()) << "nothing is recorded as " << name;
    return recorded.isNull() ? QImage(1, 1, QImage::Format_RGB32) : recorded;
}

}  // namespace

int LargestDifference(const QImage& screen, const QImage& other) {
    constexpr QSize patches(60, 80);
    return Difference(Patches(screen, patches), Patches(other, patches));
}

void ExpectLooksAsRecorded(const QImage& screen, const std::string& name) {
    const QImage look = Patches(screen, {120, 160});
    EXPECT_LT(Difference(look, Recorded(look, name).convertToFormat(look.format())), 60) << name;
}

void ExpectDrawnAsRecorded(const QImage& picture, const std::string& name) {
    const QImage drawn = picture.convertToFormat(QImage::Format_RGB32);
    EXPECT_EQ(drawn, Recorded(drawn, name).convertToFormat(QImage::Format_RGB32)) << name;
}
