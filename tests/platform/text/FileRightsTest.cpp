#include "platform/text/FileRights.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

// The mask of the process as it was before the test.
class FileRightsTest : public testing::Test {
protected:
    ~FileRightsTest() override { umask(m_before); }

    static mode_t InForce()
    {
        const mode_t mask = umask(077);
        umask(mask);
        return mask;
    }

private:
    const mode_t m_before = InForce();
};

}

TEST_F(FileRightsTest, NewFilesAreForTheirOwnerAlone)
{
    umask(022);
    FileRights::KeepPrivate();
    EXPECT_EQ(InForce(), 077U);
}

TEST_F(FileRightsTest, TheUsersOwnMaskIsRemembered)
{
    umask(027);
    FileRights::KeepPrivate();
    EXPECT_EQ(FileRights::OfTheUser(), 027U);
    EXPECT_EQ(InForce(), 077U);
}

TEST_F(FileRightsTest, ASecondCallForgetsNothing)
{
    umask(002);
    FileRights::KeepPrivate();
    FileRights::KeepPrivate();
    EXPECT_EQ(FileRights::OfTheUser(), 002U);
}
