#include "tests/support/SocietyTest.h"

#include "core/start/AppDate.h"
#include "tests/core/ScreenFace.h"

namespace {

class AppDateTest : public SocietyTest {
protected:
    AppDateTest() { gAppState.gAppDate = QDate(); }

    void AddDelivery(const QString& date, int number)
    {
        Run(QStringLiteral("insert into MilkCollections(CompanyId,CollectionDate,CollectionTime,CollectionNo,"
                           "MemberNo,MemberName,Animal,Liters,Fat,Rate,Amount,TranId,ActualCollectionTime) "
                           "values(1,'%1','sakaL',%2,1,'A','gaaya',1,4,30,30,0,'6.05')")
                .arg(date)
                .arg(number));
    }

    const QString Mask = "MaskAppDate";
};

}

TEST_F(AppDateTest, WithoutCollectionsTheFirstOfAprilOfTheAccountingYearIsProposed)
{
    gAppState.gAccountingYear = "2010-2011";
    On<frmAppDate>([&](Clerk& clerk) { EXPECT_EQ(clerk.Reads(Mask), "01/04/2010"); });
}

TEST_F(AppDateTest, TheLatestDayWithACollectionIsProposedThoughItLiesInThePast)
{
    AddDelivery("09/04/2026", 1);
    AddDelivery("30/03/2026", 2);
    On<frmAppDate>([&](Clerk& clerk) { EXPECT_EQ(clerk.Reads(Mask), "09/04/2026"); });
}

TEST_F(AppDateTest, TheDateTypedOverTheProposalBecomesTheWorkingDay)
{
    On<frmAppDate>([&](Clerk& clerk) {
        Type(clerk, "15042026{ENTER}");
        EXPECT_EQ(gAppState.gAppDate, QDate(2026, 4, 15));
        EXPECT_EQ(Focus(clerk), "cmdExit");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(OnTop(clerk), "");
    });
}

TEST_F(AppDateTest, AnyValidDatePassesAlsoOneOutsideTheAccountingYear)
{
    On<frmAppDate>([&](Clerk& clerk) {
        Type(clerk, "01011999{ENTER}");
        EXPECT_EQ(gAppState.gAppDate, QDate(1999, 1, 1));
    });
}

TEST_F(AppDateTest, AnEmptyMaskRaisesTheNoticeAndFillsInTodaysDate)
{
    On<frmAppDate>([&](Clerk& clerk) {
        Type(clerk, "{DEL}{ENTER}");
        EXPECT_EQ(clerk.Message(), " idnaaMk vyavaisqat Ta[-p kra.");
        EXPECT_FALSE(gAppState.gAppDate.isValid());
        Type(clerk, "{ENTER}");
        EXPECT_EQ(clerk.Reads(Mask), "15/04/2026");
        EXPECT_EQ(clerk.Focus(), Mask);
        Type(clerk, "{ENTER}{ENTER}");
        EXPECT_EQ(OnTop(clerk), "");
    });
    EXPECT_EQ(gAppState.gAppDate, QDate(2026, 4, 15));
}

TEST_F(AppDateTest, ADateThatIsNoneStopsWithTheRunTimeErrorBeforeTheNotice)
{
    for (const char* typed : {"31022026", "25132026", "13252026", "1"}) {
        On<frmAppDate>([&](Clerk& clerk) {
            clerk.Type(QLatin1String(typed) + "{ENTER}");
            EXPECT_EQ(OnTop(clerk), "");
        });
        ASSERT_TRUE(Failure) << typed;
        EXPECT_EQ(Failure->Number(), RunTimeError::TypeMismatch);
    }
}

TEST_F(AppDateTest, ClosedByItsCloseBoxBeforeTheFieldWasLeftTheWorkingDayStaysUnset)
{
    On<frmAppDate>([](Clerk& clerk) { clerk.CloseBox(); });
    EXPECT_FALSE(gAppState.gAppDate.isValid());
}

TEST_F(AppDateTest, TheButtonDoesNotCloseOverAnEmptyMask)
{
    On<frmAppDate>([&](Clerk& clerk) {
        Type(clerk, "{DEL}");
        Press(clerk, "cmdExit");
        EXPECT_EQ(clerk.Message(), " idnaaMk vyavaisqat Ta[-p kra.");
        Type(clerk, "{ENTER}");
        EXPECT_EQ(OnTop(clerk), "frmAppDate");
    });
}

TEST_F(AppDateTest, FieldAndButtonWearTheDateColourWithoutTheFocus)
{
    const QColor plain(0xAF, 0xBF, 0xC9);
    const QColor focus(0xFF, 0xC0, 0xC0);
    On<frmAppDate>([&](Clerk& clerk) {
        EXPECT_EQ(BackgroundOf(clerk, "MaskAppDate"), focus);
        EXPECT_EQ(BackgroundOf(clerk, "cmdExit"), plain);
        Type(clerk, "{ENTER}");
        EXPECT_EQ(BackgroundOf(clerk, "MaskAppDate"), plain);
        EXPECT_EQ(BackgroundOf(clerk, "cmdExit"), focus);
    });
}

TEST_F(AppDateTest, ItsFaceNamesTheDateTwiceAndTheButtonPuzo)
{
    On<frmAppDate>([](Clerk& clerk) {
        EXPECT_EQ(clerk.Top().Title().Text(), " idnaaMk ");
        EXPECT_EQ(LabelOf(clerk, "lblTitle"), Seen(" idnaaMk "));
        EXPECT_EQ(LabelOf(clerk, "lblDate"), Seen("idnaaMk"));
        EXPECT_EQ(Reads(clerk, "cmdExit"), "puZo");
    });
}
