#include <gtest/gtest.h>

#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

namespace {

QStringList Words(std::initializer_list<const char*> words)
{
    QStringList list;
    for (const char* word : words)
        list.append(QString::fromLatin1(word));
    return list;
}

// The program that plays a device, as an administrator runs it.
class DeviceProgramTest : public testing::Test {
protected:
    void Start(const QStringList& arguments) { m_program.start(QStringLiteral(DEVICE_PROGRAM), arguments); }

    int ExitCode()
    {
        return m_program.waitForFinished() && m_program.exitStatus() == QProcess::NormalExit
            ? m_program.exitCode()
            : -1;
    }

    // What it says on being refused; the test fails unless it is one sentence and the code of wrong use.
    QString Refusal(const QStringList& arguments)
    {
        Start(arguments);
        EXPECT_EQ(ExitCode(), 2);
        EXPECT_EQ(m_program.readAllStandardOutput(), QByteArray());
        const QString said = QString::fromUtf8(m_program.readAllStandardError());
        EXPECT_TRUE(said.startsWith(u"vetrolan-device: ")) << said.toStdString();
        EXPECT_EQ(said.count(u'\n'), 1) << said.toStdString();
        return said;
    }

    // The path that it prints when it plays.
    QString Device()
    {
        while (!m_program.canReadLine())
            if (!m_program.waitForReadyRead())
                return {};
        return QString::fromUtf8(m_program.readLine()).trimmed();
    }

    QString Link() const { return m_folder.filePath("COM1"); }

    QTemporaryDir m_folder;
    QProcess m_program;
};

TEST_F(DeviceProgramTest, PlaysOnALinkUntilItIsEnded)
{
    Start(Words({"ACE CORP", "--liters", "7.5", "--manner", "silent", "--link"}) << Link());
    const QString device = Device();
    EXPECT_TRUE(QFileInfo::exists(device)) << device.toStdString();
    EXPECT_EQ(QFileInfo(Link()).symLinkTarget(), device);
    m_program.terminate();
    EXPECT_EQ(ExitCode(), 0);
    EXPECT_EQ(m_program.readAllStandardOutput(), QByteArray("received: \n"));
    EXPECT_FALSE(QFileInfo(Link()).isSymLink());
}

TEST_F(DeviceProgramTest, ALinkThatIsThereIsLeftAlone)
{
    ASSERT_TRUE(QFile::link("/dev/null", Link()));
    EXPECT_TRUE(Refusal(Words({"ELECTRO", "--link"}) << Link()).contains(Link()));
    EXPECT_EQ(QFileInfo(Link()).symLinkTarget(), "/dev/null");
}

TEST_F(DeviceProgramTest, WrongUseIsRefusedWithASentence)
{
    EXPECT_TRUE(Refusal({}).contains(u"KIND"));
    EXPECT_TRUE(Refusal(Words({"ELECTRO", "MCS"})).contains(u"KIND"));
    EXPECT_TRUE(Refusal(Words({"SCALES"})).contains(u"no such kind"));
    EXPECT_TRUE(Refusal(Words({"ELECTRO", "--manner", "angry"})).contains(u"manner"));
    EXPECT_TRUE(Refusal(Words({"ELECTRO", "--liters", "much"})).contains(u"numbers"));
    EXPECT_TRUE(Refusal(Words({"ELECTRO", "--pause", "-1"})).contains(u"numbers"));
}

TEST_F(DeviceProgramTest, TheHelpNamesEachKindAndEachManner)
{
    Start(Words({"--help"}));
    EXPECT_EQ(ExitCode(), 0);
    const QString help = QString::fromUtf8(m_program.readAllStandardOutput()).simplified();
    for (const char* word : {"DILIGENT", "UDFREAD", "Micro-Tech", "ELECTKAPIL", "ELECTRO", "MCS", "ACE CORP",
             "NO,", "PERCENT", "prompt", "slow", "pieces", "noisy", "silent", "unplugged"})
        EXPECT_TRUE(help.contains(QString::fromLatin1(word))) << word;
}

}
