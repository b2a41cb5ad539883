#include "tests/core/preview/ReportPreviewTest.h"

#include "core/preview/ReportPreview.h"

namespace {

class PreviewKeysTest : public ReportPreviewTest {
protected:
    PreviewKeysTest()
    {
        AddDeliveries(5, [](int) { return "saunaIta"; });
        WritePagesTemplate();
    }
};

}

TEST_F(PreviewKeysTest, InTheSearchTheKeysThatAFieldNeedsDoNotMoveThePage)
{
    Show([](Clerk& clerk) {
        WaitForLastPage(clerk);
        Type(clerk, "{F6}{PGDN}{PGDN}{F7}^f");
        EXPECT_EQ(Focus(clerk), "txtSearch");
        EXPECT_EQ(Pages(clerk), "3 / 5");
        Type(clerk, "1{+}2-3={HOME}4{END}5{LEFT}{RIGHT}{UP}{DOWN}");
        EXPECT_EQ(Reads(clerk, "txtSearch"), "41+2-3=5");
        EXPECT_EQ(Pages(clerk), "3 / 5");
        EXPECT_EQ(Zoom(clerk), "100 %");
    });
}

TEST_F(PreviewKeysTest, InTheSearchTheOtherKeysOfThePageAreAnswered)
{
    Show([](Clerk& clerk) {
        WaitForLastPage(clerk);
        Type(clerk, "{F7}^f");
        EXPECT_EQ(Zoom(clerk), "100 %");
        Type(clerk, "{F6}");
        EXPECT_NE(Zoom(clerk), "100 %");
        Type(clerk, "{PGDN}{PGDN}{PGUP}");
        EXPECT_EQ(Pages(clerk), "2 / 5");
        EXPECT_EQ(Focus(clerk), "txtSearch");
    });
}
