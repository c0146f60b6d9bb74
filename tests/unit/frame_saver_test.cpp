// SPDX-FileCopyrightText: 2026 The Tovarel authors
// SPDX-License-Identifier: MIT
#include "platform/image/tile_store.h"
#include "record/save/frame_saver.h"
#include "tests/support/fake_window_server.h"
#include "tests/support/files.h"

#include <QTest>
#include <QtEndian>

#include <libdeflate.h>
#include <sys/stat.h>

#include <random>

namespace {

/// A picture in which every pixel has another colour, and another opacity when it has alpha.
Image patterned(QSize size, bool alpha, int seed = 0) {
    QImage pixels(size, alpha ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            pixels.setPixel(x, y, qRgba(x * 7 + seed, y * 5, x + y, alpha ? (x * 11) % 256 : 255));
    return Image::fromQImage(pixels);
}

struct Decompressor
    : std::unique_ptr<libdeflate_decompressor, decltype(&libdeflate_free_decompressor)> {
    Decompressor() : unique_ptr(libdeflate_alloc_decompressor(), libdeflate_free_decompressor) {}
};

/// All that a strict reader looks at: every chunk's checksum, and the compressed data, which is of
/// `length` bytes when unpacked, with its own.
void expectSound(const QByteArray &file, std::size_t length) {
    QByteArray data;
    QByteArray names;
    for (qsizetype at = 8; at < file.size();) {
        const auto size = qFromBigEndian<quint32>(file.data() + at);
        const QByteArray checked = file.mid(at + 4, size + 4);
        at += 12 + size;
        EXPECT_EQ(qFromBigEndian<quint32>(file.data() + at - 4),
                  libdeflate_crc32(0, checked.data(), static_cast<std::size_t>(checked.size())));
        names = checked.left(4);
        if (names == "IDAT")
            data += checked.mid(4);
    }
    EXPECT_EQ(names, "IEND");
    std::vector<char> unpacked(length);
    const Decompressor reader;
    std::size_t read = 0;
    EXPECT_EQ(libdeflate_zlib_decompress_ex(reader.get(), data.data(),
                                            static_cast<std::size_t>(data.size()), unpacked.data(),
                                            length, &read, nullptr),
              LIBDEFLATE_SUCCESS);
    EXPECT_EQ(read, static_cast<std::size_t>(data.size()));
}

} // namespace

TEST(DeflatePieces, ofEveryKindFollowOneAnotherInOneStream) {
    std::mt19937 random(1);
    const auto piece = [&](std::size_t length, unsigned values) {
        std::vector<std::uint8_t> data(length);
        for (std::uint8_t &byte : data)
            byte = static_cast<std::uint8_t>(random() % values);
        return data;
    };
    DeflatePieces pieces;
    std::vector<std::uint8_t> stream;
    std::vector<std::uint8_t> whole;
    // Nothing, blocks that are stored, with the fixed codes, and with codes of every length; one
    // block and many.
    for (const std::size_t length : {0u, 1u, 60u, 300u, 5'000u, 200'000u})
        for (const unsigned values : {1u, 2u, 9u, 40u, 250u, 256u}) {
            const std::vector<std::uint8_t> data = piece(length, values);
            pieces.append(data, stream);
            whole.insert(whole.end(), data.begin(), data.end());
        }
    stream.insert(stream.end(), std::begin(endOfPieces), std::end(endOfPieces));
    std::vector<std::uint8_t> unpacked(whole.size());
    const Decompressor reader;
    std::size_t read = 0;
    ASSERT_EQ(libdeflate_deflate_decompress_ex(reader.get(), stream.data(), stream.size(),
                                               unpacked.data(), unpacked.size(), &read, nullptr),
              LIBDEFLATE_SUCCESS);
    EXPECT_EQ(read, stream.size());
    EXPECT_TRUE(unpacked == whole);
}

class SavedFrames : public testing::Test {
protected:
    /// Saves and waits; the reports as they came.
    std::vector<std::uint64_t> saveAll(const std::vector<Image> &frames) {
        std::vector<std::uint64_t> reports;
        saver = std::make_unique<FrameSaver>(frames, folder.path(),
                                             [&](std::uint64_t done) { reports.push_back(done); });
        EXPECT_TRUE(QTest::qWaitFor([&] { return reports.size() >= frames.size(); }, 10'000));
        return reports;
    }
    QString path(int number) const {
        return folder.filePath(QStringLiteral("frame%1.png").arg(number, 8, 10, QLatin1Char('0')));
    }
    QImage frame(int number) const { return QImage(path(number), "png"); }
    ino_t inode(int number) const {
        struct stat status = {};
        EXPECT_EQ(stat(QFile::encodeName(path(number)).constData(), &status), 0);
        return status.st_ino;
    }

    QTemporaryDir folder;
    std::unique_ptr<FrameSaver> saver;
};

TEST_F(SavedFrames, areSoundAndHoldTheVeryPixelsWhateverCameBeforeThem) {
    for (const bool alpha : {false, true}) {
        // Rows change here and there, in a picture whose last band is a short one.
        TileStore store;
        std::vector<Image> frames;
        QImage pixels = patterned({91, 53}, alpha).toQImage();
        for (int i = 0; i < 30; ++i) {
            pixels.setPixel(i, (i * 37) % 53, qRgb(i, 255, 255 - i));
            frames.push_back(store.keep(Image::fromQImage(pixels.copy()),
                                        frames.empty() ? Image() : frames.back()));
            // Only the byte that is no part of an opaque picture.
            if (!alpha)
                reinterpret_cast<uchar *>(pixels.scanLine(i % 53))[4 * i + 3] ^= 0xff;
        }
        std::vector<std::uint64_t> inOrder(frames.size());
        std::iota(inOrder.begin(), inOrder.end(), 1);
        EXPECT_EQ(saveAll(frames), inOrder);
        EXPECT_EQ(saver->missing(), 0u);
        const auto format = alpha ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
        for (int i = 0; i < 30; ++i) {
            EXPECT_EQ(frame(i).hasAlphaChannel(), alpha);
            EXPECT_EQ(frame(i).convertToFormat(format),
                      frames[static_cast<std::size_t>(i)].toQImage())
                << "frame " << i;
            expectSound(contentOf(path(i)), 53u * (1 + 91 * (alpha ? 4 : 3)));
        }
    }
}

TEST_F(SavedFrames, allHaveTheSizeAndTheFormatOfTheFirst) {
    saveAll({patterned({40, 30}, false), patterned({20, 50}, false),
             plainImage({40, 30}, qRgba(200, 100, 0, 255), QImage::Format_ARGB32),
             plainImage({50, 30}, qRgba(0, 0, 0, 0), QImage::Format_ARGB32)});
    EXPECT_EQ(saver->missing(), 0u);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(frame(i).size(), QSize(40, 30)) << i;
        EXPECT_FALSE(frame(i).hasAlphaChannel()) << i;
    }
    const QImage narrow = frame(1);
    EXPECT_EQ(narrow.pixel(19, 29), patterned({20, 50}, false).toQImage().pixel(19, 29));
    EXPECT_EQ(narrow.pixel(20, 0), qRgb(0, 0, 0));
    EXPECT_EQ(frame(2).pixel(5, 5), qRgb(200, 100, 0));
    EXPECT_EQ(frame(3).pixel(39, 29), qRgb(0, 0, 0));
}

TEST_F(SavedFrames, keepTheAlphaOfTheFirst) {
    const Image half = patterned({60, 10}, true);
    saveAll({half, patterned({60, 10}, false), patterned({30, 5}, false)});
    EXPECT_EQ(frame(0).format(), QImage::Format_ARGB32);
    EXPECT_EQ(frame(0).convertToFormat(QImage::Format_ARGB32_Premultiplied), half.toQImage());
    EXPECT_EQ(frame(1).format(), QImage::Format_ARGB32);
    EXPECT_EQ(frame(1).pixel(59, 9), patterned({60, 10}, false).toQImage().pixel(59, 9));
    EXPECT_EQ(frame(2).format(), QImage::Format_ARGB32);
    EXPECT_EQ(frame(2).pixel(59, 9), qRgba(0, 0, 0, 255));
}

TEST_F(SavedFrames, shareAFileWhereNothingChanged) {
    TileStore store;
    const Image still = store.keep(patterned({30, 30}, false), {});
    const Image equal = store.keep(patterned({30, 30}, false), still);
    const Image other = store.keep(patterned({30, 30}, false, 1), still);
    saveAll({still, still, equal, other, still, still});
    EXPECT_EQ(inode(0), inode(1));
    EXPECT_EQ(inode(0), inode(2));
    EXPECT_NE(inode(0), inode(3));
    EXPECT_EQ(inode(4), inode(5));
    for (const int number : {0, 2, 4})
        EXPECT_EQ(frame(number).convertToFormat(QImage::Format_RGB32), still.toQImage());
    EXPECT_EQ(frame(3).convertToFormat(QImage::Format_RGB32), other.toQImage());
    // A name that is taken refuses the link: the file is replaced by a fresh one.
    saveAll({equal, equal});
    EXPECT_EQ(frame(1).convertToFormat(QImage::Format_RGB32), equal.toQImage());
}

TEST_F(SavedFrames, stopBeingWrittenWhenTheSaverGoes) {
    std::vector<Image> frames;
    for (int i = 0; i < 200; ++i)
        frames.push_back(patterned({200, 200}, false, i));
    int reports = 0;
    std::make_unique<FrameSaver>(frames, folder.path(), [&](std::uint64_t) { ++reports; }).reset();
    QCoreApplication::processEvents();
    EXPECT_EQ(reports, 0);
}
