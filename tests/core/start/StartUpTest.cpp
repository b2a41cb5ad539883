#include "tests/support/SocietyTest.h"

#include "core/start/MdlAccounts.h"
#include "platform/shell/AppFolder.h"
#include "platform/text/PasswordItems.h"

#include <QBuffer>
#include <QFile>
#include <QStringConverter>

namespace {

class StartUpTest : public SocietyTest {
protected:
    // Starts anew on the books as they stand now.
    bool StartAgain()
    {
        gCn.Close();
        return LoadAppState();
    }

    // The number of the run-time error that starting anew stops with; 0 if it gets through.
    int ErrorOfStart()
    {
        try {
            StartAgain();
        } catch (const RunTimeError& error) {
            return error.Number();
        }
        return 0;
    }
};

// Disguises a password the way the installer does, one item a line.
QStringList Disguised(const QString& password, QChar key)
{
    QStringList items;
    for (QChar c : password)
        items.append(QChar(c.unicode() + key.unicode()));
    return items << QString(key);
}

}

TEST_F(StartUpTest, TakesTheCompanyTheSettingsAndTheRightsFromTheBooks)
{
    Run("update AutoSettings set AutoFat=' haoya ',WeighScale=' MCS '");
    ASSERT_TRUE(StartAgain());
    EXPECT_EQ(gAppState.gCompanyId, 1);
    EXPECT_EQ(Seen(gAppState.gCompanyName), "श्री गणेश दूध संस्था");
    EXPECT_EQ(gAppState.gAccountingYear.left(4), "2026");
    EXPECT_EQ(gAppState.gFromDate, QDate(2026, 4, 1));
    EXPECT_EQ(gAppState.gToDate, QDate(2027, 3, 31));
    EXPECT_EQ(gAppState.gAutoFat, "haoya");
    EXPECT_EQ(gAppState.gWeighScale, "MCS");
    EXPECT_EQ(gAppState.gExtraRsPerLtr, "0");
    EXPECT_EQ(gAppState.gCallerTag, "N");
    EXPECT_EQ(gAppState.gAdminLoggedIn, "NO");
    EXPECT_NE(gAppState.gAccessMaster, 0);
    EXPECT_NE(gAppState.gAccessUtilities, 0);
    EXPECT_FALSE(gAppState.gAppDate.isValid());
}

TEST_F(StartUpTest, AnEmptyCompanySelectedTurnsTheCompanyIntoZeroAndGoesOn)
{
    Run("delete * from CompanySelected");
    ASSERT_TRUE(StartAgain());
    EXPECT_EQ(gAppState.gCompanyId, 0);
    EXPECT_TRUE(gAppState.gCompanyName.isEmpty());
    EXPECT_TRUE(gAppState.gAccountingYear.isEmpty());
    EXPECT_TRUE(gAppState.gAutoFat.isEmpty()) << "no settings row has company 0";
}

TEST_F(StartUpTest, TheCompanyIs1BeforeItIsReadAndStays1WhenTheReadingStopsWithAnError)
{
    gCn.RunScript("drop table CompanySelected");
    gAppState.gCompanyId = 7;
    EXPECT_EQ(ErrorOfStart(), RunTimeError::DatabaseFailure);
    EXPECT_EQ(gAppState.gCompanyId, 1);
    EXPECT_EQ(gAppState.gDbPassword, "Doodh#26") << "the steps before it are done";
    EXPECT_TRUE(gAppState.gCompanyName.isEmpty());
}

TEST_F(StartUpTest, WithoutASettingsRowTheSettingsStayEmpty)
{
    Run("delete * from AutoSettings");
    ASSERT_TRUE(StartAgain());
    EXPECT_TRUE(gAppState.gPaymentDuration.isEmpty());
    EXPECT_TRUE(gAppState.gAutoLiters.isEmpty());
    EXPECT_TRUE(gAppState.gExtraRsPerLtr.isEmpty());
}

TEST_F(StartUpTest, WithoutAnyRightTheMessageIsShownAndNoScreenComesUp)
{
    Run("delete * from MenuAccessTable");
    gCn.Close();
    Failure = Failure = TheClerk.Play([] { AppMain(); }, [](Clerk& clerk) { EXPECT_EQ(OnTop(clerk), ""); });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(TheBox.Shown, QStringList("Contact Service provider for Technical Support"));
}

TEST_F(StartUpTest, RightsWithoutARowForMasterLeaveTheMasterListClosed)
{
    Run("delete * from MenuAccessTable where MenuName='Master'");
    Run("insert into MenuAccessTable(MenuName,AccessYesNo) values('Milk Master',1)");
    ASSERT_TRUE(StartAgain());
    EXPECT_EQ(gAppState.gAccessMaster, 0);
    EXPECT_NE(gAppState.gAccessStockVoucher, 0);
}

TEST_F(StartUpTest, EachMenuNameFillsItsOwnFlag)
{
    Run("delete * from MenuAccessTable");
    const QStringList names = {"Master", "Account Voucher", "Stock Voucher", "Account Report", "Stock Report",
        "Statistical Report", "Utilities"};
    for (int i = 0; i < names.size(); ++i)
        Run(QStringLiteral("insert into MenuAccessTable(MenuName,AccessYesNo) values('%1',%2)")
                .arg(names[i])
                .arg(i + 1));
    ASSERT_TRUE(StartAgain());
    EXPECT_EQ(gAppState.gAccessMaster, 1);
    EXPECT_EQ(gAppState.gAccessAccountVoucher, 2);
    EXPECT_EQ(gAppState.gAccessStockVoucher, 3);
    EXPECT_EQ(gAppState.gAccessAccountReport, 4);
    EXPECT_EQ(gAppState.gAccessStockReport, 5);
    EXPECT_EQ(gAppState.gAccessStatisticalReport, 6);
    EXPECT_EQ(gAppState.gAccessUtilities, 7);
}

TEST_F(StartUpTest, TheBlanksAroundASettingAreNoPartOfIt)
{
    Run("update AutoSettings set PaymentDuration=' 7 idvasa ',AutoFat=' haoya ',"
        "AutoLiters=' haoya ',WeighScale=' MCS '");
    ASSERT_TRUE(StartAgain());
    EXPECT_EQ(gAppState.gPaymentDuration, "7 idvasa");
    EXPECT_EQ(gAppState.gAutoFat, "haoya");
    EXPECT_EQ(gAppState.gAutoLiters, "haoya");
    EXPECT_EQ(gAppState.gWeighScale, "MCS");
}

TEST_F(StartUpTest, ARightBeyond16BitsOverflowsAndOneOfAnUnknownNameIsIgnored)
{
    const QString set = "update MenuAccessTable set AccessYesNo=%1 where MenuName='Utilities'";
    for (const char* beyond : {"32768", "-32769", "3000000000"}) {
        Run(set.arg(QLatin1String(beyond)));
        EXPECT_EQ(ErrorOfStart(), RunTimeError::Overflow) << beyond;
    }
    for (const int within : {32767, -32768}) {
        Run(set.arg(within));
        EXPECT_EQ(ErrorOfStart(), 0);
        EXPECT_EQ(gAppState.gAccessUtilities, within);
    }
    Run("insert into MenuAccessTable(MenuName,AccessYesNo) values('Milk Master',99999)");
    EXPECT_EQ(ErrorOfStart(), 0);
}

TEST(PasswordItemsTest, CommasAndLineEndsSeparateItemsAndQuotesKeepThemTogether)
{
    EXPECT_EQ(ItemsOf("a,b\r\nc\n\",\",\"d\"\r\n"), QStringList({"a", "b", "c", ",", "d"}));
}

TEST(PasswordItemsTest, TheLastItemIsTheKeyThatEveryOtherIsShiftedUpBy)
{
    EXPECT_EQ(PasswordOfItems(Disguised("Doodh#26", u'\x05')), "Doodh#26");
    EXPECT_EQ(PasswordOfItems(Disguised("x", u'!')), "x");
    EXPECT_EQ(PasswordOfItems({"k"}), QString()) << "a key alone hides no password";
}

TEST(PasswordItemsTest, OnlyTheFirstCharacterOfAnItemCounts)
{
    QStringList items = Disguised("ab", u'!');
    items[0] += "zzz";
    EXPECT_EQ(PasswordOfItems(items), "ab");
}

TEST(PasswordItemsTest, AByteOrderMarkInFrontIsNoCharacterOfThePassword)
{
    const QString text = "\"\u00FC\"\r\n\"e\"\r\n\"!\"\r\n";
    const QString password = "\u00DBD";
    QByteArray latin1 = text.toLatin1();
    QBuffer unmarked(&latin1);
    ASSERT_TRUE(unmarked.open(QIODevice::ReadOnly));
    EXPECT_EQ(PasswordOfFile(unmarked), password);
    for (const auto encoding :
        {QStringConverter::Utf8, QStringConverter::Utf16LE, QStringConverter::Utf16BE}) {
        QByteArray bytes = QStringEncoder(encoding, QStringConverter::Flag::WriteBom).encode(text);
        ASSERT_TRUE(QStringConverter::encodingForData(bytes)) << "the mark stands in front";
        QBuffer file(&bytes);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_EQ(PasswordOfFile(file), password) << QStringConverter::nameForEncoding(encoding);
    }
}

TEST(PasswordItemsTest, AFileTooLongForAPasswordIsRefusedAndNotReadOn)
{
    const QByteArray item("\"a\"\n");
    QByteArray bytes = item.repeated(1'000'000 / item.size());
    QBuffer file(&bytes);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
    EXPECT_THROW(PasswordOfFile(file), RunTimeError);
    EXPECT_LE(file.pos(), 4097);
    QByteArray fits = item.repeated(4096 / item.size());
    QBuffer allowed(&fits);
    ASSERT_TRUE(allowed.open(QIODevice::ReadOnly));
    EXPECT_NO_THROW(PasswordOfFile(allowed));
}

TEST(PasswordItemsTest, ADamagedFileIsARunTimeError)
{
    EXPECT_THROW(PasswordOfItems({}), RunTimeError);
    EXPECT_THROW(PasswordOfItems({"a", QString()}), RunTimeError);
    EXPECT_THROW(PasswordOfItems({"!", "z"}), RunTimeError);
}
