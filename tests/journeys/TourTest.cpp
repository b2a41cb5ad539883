#include "tests/journeys/Processes.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

namespace {

// In seconds. It plays every screen, half a minute where others share the processor; within the limit of a
// test.
constexpr int LongestTour = 90;

// The tour as it is delivered, on a society of its own.
class TourTest : public ::testing::Test {
protected:
    // Plays the tour into a folder and returns its exit code.
    static int Play(const QStringList& arguments)
    {
        const auto tour = Processes::Start("vetrolan-tour", arguments);
        EXPECT_TRUE(Processes::WaitForEnd(*tour, LongestTour));
        EXPECT_EQ(tour->exitStatus(), QProcess::NormalExit) << tour->readAllStandardError().toStdString();
        return tour->exitCode();
    }

    QStringList Summary() const
    {
        QFile file(m_folder.filePath("summary.txt"));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    }

    QStringList Pictures() const
    {
        return QDir(m_folder.path()).entryList({"*.png"}, QDir::Files, QDir::Name);
    }

    const QTemporaryDir m_folder;
};

}

TEST_F(TourTest, ItFindsEverythingRight)
{
    EXPECT_EQ(Play({m_folder.path()}), 0);
    const QStringList summary = Summary();
    ASSERT_FALSE(summary.isEmpty());
    EXPECT_EQ(summary.last().toStdString(), "everything is right");
    EXPECT_TRUE(summary.filter("WRONG").isEmpty()) << summary.filter("WRONG").join(u'\n').toStdString();
}

TEST_F(TourTest, ItSavesAPictureOfEachStepInOrder)
{
    ASSERT_EQ(Play({m_folder.path()}), 0);
    const QStringList pictures = Pictures();
    EXPECT_GT(pictures.size(), 20);
    QStringList told;
    for (const QString& line : Summary().filter("picture  "))
        told.append(line.section(u' ', -1));
    EXPECT_EQ(pictures, told);
    for (const QString& picture : pictures) {
        const QImage image(m_folder.filePath(picture));
        EXPECT_GE(image.width(), 400) << picture.toStdString();
        EXPECT_GE(image.height(), 300) << picture.toStdString();
    }
}

TEST_F(TourTest, WithoutAFolderItSaysHowItIsCalledAndFails)
{
    EXPECT_EQ(Play({}), 2);
}
