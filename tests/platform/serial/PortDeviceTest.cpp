#include "platform/serial/PortDevice.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

namespace {

// A folder of its own, in which an administrator links port numbers to devices.
class PortDeviceTest : public testing::Test {
protected:
    PortDeviceTest() { SetPortLinksFolder(m_links.path()); }
    ~PortDeviceTest() override { SetPortLinksFolder({}); }

    QString Link(const char* name) const { return m_links.filePath(QLatin1String(name)); }

private:
    QTemporaryDir m_links;
};

}

TEST_F(PortDeviceTest, WithoutALinkIsThePortOfTheMachine)
{
    EXPECT_EQ(PortDevice(1), "/dev/ttyS0");
    EXPECT_EQ(PortDevice(3), "/dev/ttyS2");
}

TEST_F(PortDeviceTest, IsTheLinkOfItsNumberInTheFolderOfLinks)
{
    const QString link = Link("COM3");
    ASSERT_TRUE(QFile::link("/dev/null", link));
    EXPECT_EQ(PortDevice(3), link);
    EXPECT_EQ(PortDevice(1), "/dev/ttyS0");
}

TEST_F(PortDeviceTest, StaysTheLinkWhileTheAdapterIsUnplugged)
{
    const QString link = Link("COM1");
    ASSERT_TRUE(QFile::link("/dev/there-is-no-such-adapter", link));
    EXPECT_EQ(PortDevice(1), link);
}

TEST_F(PortDeviceTest, IsNoneBelowOne)
{
    EXPECT_EQ(PortDevice(0), QString());
    EXPECT_EQ(PortDevice(-1), QString());
}
