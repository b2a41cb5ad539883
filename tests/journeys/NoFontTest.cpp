#include "tests/journeys/Processes.h"
#include "tests/journeys/ProgramTest.h"

#include <QDir>
#include <QFile>

namespace {

class NoFontTest : public ProgramTest {
protected:
    // Starts the program where the desktop offers the fonts of these folders alone, and returns what it says.
    QString StartWithFonts(const QByteArray& folders)
    {
        gCn.Close();
        QFile file(m_fonts.filePath("fonts.conf"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write("<?xml version=\"1.0\"?><!DOCTYPE fontconfig SYSTEM \"fonts.dtd\"><fontconfig>" + folders
            + "<cachedir>" + m_fonts.path().toUtf8() + "</cachedir></fontconfig>");
        file.close();
        const auto program =
            Processes::Start("other_process", {Drives()}, {"FONTCONFIG_FILE=" + file.fileName()});
        EXPECT_TRUE(Processes::WaitForEnd(*program));
        EXPECT_EQ(program->exitStatus(), QProcess::NormalExit)
            << program->readAllStandardError().toStdString();
        EXPECT_EQ(program->exitCode(), 0);
        return QString::fromUtf8(program->readAllStandardOutput());
    }

private:
    QTemporaryDir m_fonts;
};

}

TEST_F(NoFontTest, WithoutADevanagariFontTheProgramSaysSoAtTheStartAndGoesOn)
{
    const QString said = StartWithFonts({});
    EXPECT_TRUE(said.startsWith("box No Devanagari font was found")) << said.toStdString();
    EXPECT_TRUE(said.contains("Noto Sans Devanagari or Lohit Devanagari")) << said.toStdString();
    EXPECT_TRUE(said.trimmed().endsWith("screen frmAbout")) << said.toStdString();
}

TEST_F(NoFontTest, WithOneTheStartIsQuiet)
{
    EXPECT_EQ(StartWithFonts("<dir>/usr/share/fonts</dir>").trimmed(), "screen frmAbout");
}
