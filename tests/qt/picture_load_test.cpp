// Pictures through the window's loader: Qt's readers for every kind of file, and the
// headless host's bitmap reader checked against them on random bitmaps.
#include "editor/frm_main.h"
#include "platform/bmp_format.h"
#include "platform/qt/form_window.h"
#include "platform/qt/qt_host.h"
#include "platform/scripted_host.h"
#include "platform/vb_error.h"
#include "support/bmp_writer.h"

#include <QAction>
#include <QImage>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <bit>
#include <fstream>
#include <random>

namespace {

using tavrin::test::BmpSpec;
using tavrin::test::writeBmp;
using Bytes = std::vector<uint8_t>;

using Pixels = std::vector<uint32_t>;
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

// The command stays out of the user's reach in the window: its item is hidden and disabled.
TEST(PictureLoad, TheImportImageItemIsHiddenAndDisabled) {
    platform::ScriptedHost host;
    tavrin::FrmMain frm{host};
    platform::qt::FormWindow window(frm);
    int found = 0;
    for (QAction* a : window.findChildren<QAction*>()) {
        if (a->text() != "&Import Image") continue;
        ++found;
        EXPECT_FALSE(a->isVisible());
        EXPECT_FALSE(a->isEnabled());
    }
    EXPECT_EQ(found, 1);
}

// Random bitmaps of every kind the headless reader takes, through both readers.
TEST(PictureLoad, TheBitmapReaderAgreesWithQtsOnRandomBitmaps) {
    QTemporaryDir dir;
    platform::qt::QtHost host;
    std::mt19937 rng(17);
    auto pick = [&](int n) { return static_cast<int>(rng() % static_cast<unsigned>(n)); };
    const int bitsChoices[] = {1, 4, 8, 16, 24, 32};
    for (int round = 0; round < 300; ++round) {
        BmpSpec s;
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
        Pixels expected = theirs->px;
        if (s.bits == 16) {
            // Parts narrower than a byte: Qt puts them in a byte's top bits (31 of 31 is
            // 248), ours stretches them over the byte (255). The bits the file holds agree.
            const uint32_t* m = s.masks ? s.rgbMasks : kFiveFiveFive;
            const uint32_t held = partsHeld(m);
            for (auto* px : {&ours.px, &expected})
                for (uint32_t& c : *px)
                    c &= held;
        }
        EXPECT_EQ(ours.px, expected) << "round " << round << ": " << s.bits << " bits"
                                     << (s.masks ? ", masks" : "") << (s.os2 ? ", OS/2" : "");
    }
}

// Random runs, with every escape, through both readers.
TEST(PictureLoad, RunsAgreeWithQts) {
    QTemporaryDir dir;
    platform::qt::QtHost host;
    std::mt19937 rng(18);
    auto pick = [&](int n) { return static_cast<int>(rng() % static_cast<unsigned>(n)); };
    int compared = 0, refused = 0;
    for (int round = 0; round < 400; ++round) {
        BmpSpec s;
        s.width = 1 + pick(20);
        s.height = 1 + pick(12);
        s.bits = pick(2) == 0 ? 4 : 8;
        for (int k = 0; k < (1 << s.bits); ++k)
            s.table.push_back(rng() & 0xFFFFFF);
        s.pixels.assign(static_cast<std::size_t>(s.width * s.height), 0);
        Bytes file = writeBmp(s);
        const std::size_t stride = static_cast<std::size_t>((s.width * s.bits + 31) / 32 * 4);
        file.resize(file.size() - stride * static_cast<std::size_t>(s.height));
        file[30] = s.bits == 8 ? 1 : 2;
        // Runs as writers make them: none past its row's end, jumps inside the picture.
        // Qt leaves the pixels no run reaches undefined: only those reached are compared.
        std::vector<bool> reached(static_cast<std::size_t>(s.width * s.height), false);
        auto reach = [&](int x0, int n, int row) {
            for (int k = 0; k < n; ++k)
                reached[static_cast<std::size_t>((s.height - 1 - row) * s.width + x0 + k)] = true;
        };
        int x = 0, y = 0;
        for (int ops = pick(30); ops > 0 && y < s.height; --ops) {
            const int kind = pick(10), room = s.width - x;
            if (kind < 5 && room > 0) { // a run
                const int n = 1 + pick(std::min(room, 12));
                file.push_back(static_cast<uint8_t>(n));
                file.push_back(static_cast<uint8_t>(rng()));
                reach(x, n, y);
                x += n;
            } else if (kind < 7 && room >= 3) { // values as they stand
                const int n = 3 + pick(std::min(room, 12) - 2);
                file.push_back(0);
                file.push_back(static_cast<uint8_t>(n));
                int bytes = s.bits == 8 ? n : (n + 1) / 2;
                bytes += bytes % 2;
                for (int b = 0; b < bytes; ++b)
                    file.push_back(static_cast<uint8_t>(rng()));
                reach(x, n, y);
                x += n;
            } else if (kind < 9) { // end of row
                file.push_back(0);
                file.push_back(0);
                x = 0;
                ++y;
            } else if (room > 0 && y + 1 < s.height) { // a jump
                const int dx = pick(room), dy = pick(s.height - y);
                file.insert(file.end(), {0, 2, static_cast<uint8_t>(dx), static_cast<uint8_t>(dy)});
                x += dx;
                y += dy;
            }
        }
        file.push_back(0);
        file.push_back(1);
        const platform::PictureHandle theirs = host.LoadPicture(write(dir, "r.bmp", file));
        if (!theirs) {
            ++refused;
            continue;
        }
        ++compared;
        const platform::Raster ours = platform::decodeBmp(file);
        ASSERT_EQ(ours.px.size(), theirs->px.size()) << round;
        for (std::size_t k = 0; k < reached.size(); ++k) {
            if (!reached[k]) continue;
            EXPECT_EQ(ours.px[k], theirs->px[k])
                << "round " << round << ": " << s.bits << " bits, pixel " << k;
        }
    }
    EXPECT_GT(compared, 300) << refused << " refused";
}

} // namespace
