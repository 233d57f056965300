// Pictures through the window's loader, Qt's readers, and the headless host's bitmap reader
// checked against them on random bitmaps.
#include "platform/bmp_format.h"
#include "platform/qt/qt_host.h"
#include "support/bmp_writer.h"

#include <QImage>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <bit>
#include <fstream>
#include <random>

namespace {

using tavrin::test::BmpPlan;
using tavrin::test::writeBmp;
using Bytes = std::vector<uint8_t>;
const uint32_t kFiveFiveFive[3] = {0x7C00, 0x03E0, 0x001F};

// The top bits of each part of a packed colour that masks of these widths give.
uint32_t partsHeld(const uint32_t masks[3]) {
    uint32_t held = 0;
    for (int k = 0; k < 3; ++k)
        held |= (0xFF00u >> std::popcount(masks[k]) & 0xFF) << (8 * k);
    return held;
}

uint32_t packedOf(QRgb c) {
    return static_cast<uint32_t>(qRed(c) | qGreen(c) << 8 | qBlue(c) << 16);
}

std::string write(const QTemporaryDir& dir, const char* name, const Bytes& bytes) {
    const std::string path = dir.filePath(name).toStdString();
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
    return path;
}

// A PNG, whatever the name says: the file's content decides how it is read.
TEST(PictureLoad, APngComesInWholeThroughTheWindowsLoader) {
    QTemporaryDir dir;
    QImage image(7, 5, QImage::Format_RGB32);
    for (int y = 0; y < 5; ++y)
        for (int x = 0; x < 7; ++x)
            image.setPixel(x, y, qRgb(x * 30, y * 50, (x * y) % 256));
    const QString path = dir.filePath("picture.BMP");
    ASSERT_TRUE(image.save(path, "PNG"));

    platform::qt::QtHost host;
    const platform::PictureHandle picture = host.LoadPicture(path.toStdString());
    ASSERT_TRUE(picture);
    ASSERT_EQ(picture->width, 7);
    ASSERT_EQ(picture->height, 5);
    for (int y = 0; y < 5; ++y)
        for (int x = 0; x < 7; ++x)
            EXPECT_EQ(picture->at(x, y), packedOf(image.pixel(x, y))) << x << "," << y;

    EXPECT_FALSE(host.LoadPicture(dir.filePath("missing.png").toStdString()));
    EXPECT_FALSE(host.LoadPicture(write(dir, "text.png", {'n', 'o', 't', '\n'})));
}

// Random bitmaps of every kind the headless reader takes, through both readers.
TEST(PictureLoad, TheBitmapReaderAgreesWithQtsOnRandomBitmaps) {
    QTemporaryDir dir;
    platform::qt::QtHost host;
    std::mt19937 rng(17);
    auto pick = [&](int n) { return static_cast<int>(rng() % static_cast<unsigned>(n)); };
    const int bitsChoices[] = {1, 4, 8, 16, 24, 32};
    for (int round = 0; round < 300; ++round) {
        BmpPlan s;
        s.width = 1 + pick(20);
        s.height = 1 + pick(12);
        s.bits = bitsChoices[pick(6)];
        s.topDown = pick(2) == 0;
        s.os2 = s.bits != 16 && s.bits != 32 && pick(4) == 0 && !s.topDown;
        s.masks = (s.bits == 16 || s.bits == 32) && pick(2) == 0;
        if (s.masks && s.bits == 16 && pick(2) == 0) {
            s.rgbMasks[0] = 0x7C00, s.rgbMasks[1] = 0x03E0, s.rgbMasks[2] = 0x001F;
        } else if (s.masks && s.bits == 32) {
            s.rgbMasks[0] = 0xFF0000, s.rgbMasks[1] = 0xFF00, s.rgbMasks[2] = 0xFF;
            if (pick(2) == 0) std::swap(s.rgbMasks[0], s.rgbMasks[2]);
        }
        const int colours = s.bits <= 8 ? 1 << s.bits : 0;
        for (int k = 0; k < colours; ++k)
            s.table.push_back(rng() & 0xFFFFFF);
        for (int k = 0; k < s.width * s.height; ++k)
            s.pixels.push_back(s.bits <= 8    ? rng() % static_cast<unsigned>(colours)
                               : s.bits == 16 ? rng() & 0xFFFF
                               : s.bits == 24 ? rng() & 0xFFFFFF
                                              : rng());
        const Bytes file = writeBmp(s);
        const platform::PictureHandle theirs = host.LoadPicture(write(dir, "r.bmp", file));
        ASSERT_TRUE(theirs) << round;
        platform::Raster ours = platform::decodeBmp(file);
        ASSERT_EQ(ours.width, theirs->width) << round;
        ASSERT_EQ(ours.height, theirs->height) << round;
        vb::ZeroedVector<uint32_t> expected = theirs->px;
        if (s.bits == 16) {
            // Parts narrower than a byte: Qt puts them in a byte's top bits (31 of 31 is
            // 248), ours stretches them over the byte (255). The bits the file holds agree.
            const uint32_t held = partsHeld(s.masks ? s.rgbMasks : kFiveFiveFive);
            for (auto* px : {&ours.px, &expected})
                for (uint32_t& c : *px)
                    c &= held;
        }
        EXPECT_EQ(ours.px, expected) << "round " << round << ": " << s.bits << " bits"
                                     << (s.masks ? ", masks" : "") << (s.os2 ? ", OS/2" : "");
    }
}

} // namespace
