#include "tests/utilities/AutoSettingsTest.h"

#include "core/menu/MainMenu.h"
#include "core/start/MdlAccounts.h"
#include "platform/forms/MenuList.h"

namespace {

class AutoSettingsSaveTest : public AutoSettingsTest {
protected:
    // Presses Save from wherever the clerk is.
    static void Save(Clerk& clerk)
    {
        clerk.Type("%s");
        ASSERT_EQ(clerk.Focus(), "CmdSave");
    }

    static const char* All() { return "select * from AutoSettings"; }
};

}

TEST_F(AutoSettingsSaveTest, WritesEachColumnAsTheFieldsShowItAndLosesTheOthers)
{
    Given("BasicCowRate=30,BasicBuffRate=40,CowBonusRate=1,BuffBonusRate=2,FixedKapat=5,"
          "ShowTransportCharges='True'");
    gAppState.gWeighScale = "DILIGENT";
    Settings([&](Clerk& clerk) {
        clerk.Type("1{ENTER}1{ENTER}2{ENTER}45{ENTER}46.5{ENTER}3{ENTER} {ENTER}");
        clerk.Type("4{ENTER}0.75{ENTER}.8{ENTER}49{ENTER}59.5{ENTER}53{ENTER}");
        GoTo(clerk, "CheckCNP");
        clerk.Type(" {ENTER} {ENTER}");
        clerk.Press("OptionDiscount");
        GoTo(clerk, "ComboMSRPrintStatus");
        clerk.Type("3");
        Save(clerk);
    });
    EXPECT_EQ(Rows(Q(All())),
        QStringList("1|haoya|haoya|f@t sËIna|saovh va ip`MT|46.500|45.000|Tašp 3|haoya|15 idvasa|"
                    "Collection|Sales|Discount|0.75|0.8|49.00|59.50|53.00|DILIGENT|f^T nausaar|"
                    "NULL|NULL|NULL|NULL|NULL|NULL"));
}

TEST_F(AutoSettingsSaveTest, BoxesWithoutATickAndEachOptionHaveTheirWords)
{
    const std::pair<const char*, const char*> options[] = {{"OptionAddThev", "AddThev"},
        {"OptionPayable", "Payable"}, {"OptionPayIt", "PayIt"}, {"OptionDiscount", "Discount"}};
    for (const auto& [option, word] : options) {
        Settings([&](Clerk& clerk) {
            clerk.Type("^{PGDN}");
            clerk.Press(Q(option));
            Save(clerk);
        });
        EXPECT_EQ(Rows("select RepeatCollection,PurchaseEntry,UchalEntry,DecimalPayment from AutoSettings"),
            QStringList("naahI|Payment|Uchal|" + Q(word)));
    }
}

TEST_F(AutoSettingsSaveTest, ThePrintOfTheSalesIsSetAndSavedByKeysAlone)
{
    Settings([&](Clerk& clerk) {
        clerk.Type("^{PGUP}{ENTER}{ENTER}{ENTER}{DOWN}3{ENTER}");
        EXPECT_EQ(Focus(clerk), "CmdSave");
        clerk.Type("{ENTER}");
    });
    EXPECT_EQ(One("select MSRPrintStatus from AutoSettings"), "saovh va ip`MT");
}

TEST_F(AutoSettingsSaveTest, TheRowIsDeletedBeforeTheNewOneIsWrittenAndTheTypeOfRateComesLast)
{
    gCn.RunScript("create trigger Inserted before insert on AutoSettings "
                  "begin select raise(abort, 'the row is still there') "
                  "where exists(select 1 from AutoSettings); end");
    gCn.RunScript("create trigger Updated before update on AutoSettings "
                  "begin select raise(abort, 'the row is not there yet') where old.ReceiptType<>'Tašp 3'; "
                  "end");
    Settings([&](Clerk& clerk) {
        GoTo(clerk, "ComboReceipt");
        clerk.Type("3");
        Save(clerk);
    });
    EXPECT_EQ(Rows("select ReceiptType,FatRateType from AutoSettings"), QStringList("Tašp 3|f^T nausaar"));
}

TEST_F(AutoSettingsSaveTest, ASavedRowIsReadBackAsItWas)
{
    Settings([&](Clerk& clerk) { Save(clerk); });
    const QStringList first = Rows(Q(All()));
    Settings([&](Clerk& clerk) { Save(clerk); });
    EXPECT_EQ(Rows(Q(All())), first);
    EXPECT_EQ(first.size(), 1);
}

TEST_F(AutoSettingsSaveTest, TheStateTakesThreeOfTheFields)
{
    gAppState.gWeighScale = "ELECTRO";
    Settings([&](Clerk& clerk) {
        clerk.Type("1{ENTER}1{ENTER}");
        GoTo(clerk, "ComboPaymentDuration");
        clerk.Type("2");
        EXPECT_EQ(gAppState.gAutoLiters, "naahI");
        Save(clerk);
    });
    EXPECT_EQ(gAppState.gAutoLiters, "haoya");
    EXPECT_EQ(gAppState.gAutoFat, "haoya");
    EXPECT_EQ(gAppState.gPaymentDuration, "7 idvasa");
    EXPECT_EQ(gAppState.gWeighScale, "ELECTRO");
}

TEST_F(AutoSettingsSaveTest, TheScaleIsWrittenBackFromTheStateAndNotFromTheRow)
{
    gAppState.gWeighScale = "MCS";
    Given("WeighScale='ACE CORP'");
    Settings([&](Clerk& clerk) { Save(clerk); });
    EXPECT_EQ(One("select WeighScale from AutoSettings"), "MCS");
}

TEST_F(AutoSettingsSaveTest, WithAnEmptyRequiredFieldTheRowGoesUntilALaterSave)
{
    const QStringList required = {"ComboAutoFat", "ComboAutoLiters", "ComboPrintStatus", "ComboReceipt",
        "ComboPaymentDuration", "txtCow", "txtBuff"};
    for (const QString& field : required) {
        Settings([&](Clerk& clerk) {
            const QByteArray name = field.toLatin1();
            const QByteArray text = clerk.Reads(field).toUtf8();
            GoTo(clerk, "CmdSave");
            Put(clerk, name, "");
            clerk.Type("{ENTER}");
            EXPECT_FALSE(HasRow()) << name.data();
            EXPECT_EQ(clerk.ScreenName(), "frmAutoSettings") << "there is no message";
            EXPECT_EQ(TheBox.Shown, QStringList());
            Put(clerk, name, text);
            clerk.Type("{ENTER}");
            EXPECT_TRUE(HasRow()) << name.data();
        });
    }
}

TEST_F(AutoSettingsSaveTest, TheOtherFieldsMayBeEmpty)
{
    Settings([&](Clerk& clerk) {
        GoTo(clerk, "CmdSave");
        for (const char* field : {"txtCowLimit", "txtBuffLimit", "cmbFatRateType", "txtCowSaleRate",
                 "txtBuffSaleRate", "txtMixSaleRate", "ComboMSRPrintStatus"})
            Put(clerk, field, "");
        clerk.Type("{ENTER}");
    });
    EXPECT_EQ(Rows("select CanLimitCow,CanLimitBuff,FatRateType,SalesRateCow,SalesRateBuff,SalesRateMix,"
                   "MSRPrintStatus from AutoSettings"),
        QStringList("||||||"));
}

TEST_F(AutoSettingsSaveTest, ARowWithoutALayoutIsGoneAfterASaveAndTheNextStartFindsNone)
{
    Given("ReceiptType=''");
    Settings([&](Clerk& clerk) {
        clerk.Type("1");
        Save(clerk);
    });
    EXPECT_FALSE(HasRow());
    EXPECT_EQ(gAppState.gAutoLiters, "naahI") << "a refused save changes nothing else";
    gCn.Close();
    ASSERT_TRUE(LoadAppState());
    EXPECT_EQ(gAppState.gPaymentDuration, QString());
    EXPECT_EQ(gAppState.gAutoLiters, QString());
}

TEST_F(AutoSettingsSaveTest, FilledAnewTheScreenWritesTheRowOfASocietyThatHasNone)
{
    WithoutARow();
    Settings([&](Clerk& clerk) {
        clerk.Type("2{ENTER}2{ENTER}{ENTER}40{ENTER}40{ENTER}1{ENTER}{ENTER}");
        clerk.Type("3{ENTER}.5{ENTER}.5{ENTER}48{ENTER}58{ENTER}52{ENTER}{ENTER}");
    });
    EXPECT_EQ(Rows("select PrintStatus,ReceiptType,PaymentDuration,ThevKapatCow,SalesRateMix,FatRateType "
                   "from AutoSettings"),
        QStringList("haoya|Tašp 1|10 idvasa|0.5|52.00|"));
}

TEST_F(AutoSettingsSaveTest, TheTypeOfRateIsWrittenForEveryCompany)
{
    Run("insert into AutoSettings(CompanyId,AutoFat,FatRateType,FixedKapat) values(2,'haoya','',7)");
    Settings([&](Clerk& clerk) { Save(clerk); });
    EXPECT_EQ(Rows("select CompanyId,AutoFat,FatRateType,FixedKapat from AutoSettings order by CompanyId"),
        QStringList({"1|naahI|f^T nausaar|NULL", "2|haoya|f^T nausaar|7"}));
}

TEST_F(AutoSettingsSaveTest, RateByFatAndSnfCannotBeSaved)
{
    Settings([&](Clerk& clerk) {
        GoTo(clerk, "cmbFatRateType");
        clerk.Press("cmbFatRateType");
        PickFromList(clerk, 1);
        Save(clerk);
    });
    EXPECT_EQ(TheBox.Shown, QStringList("This Facility is available in the next version."));
    EXPECT_EQ(One("select FatRateType from AutoSettings"), "f^T nausaar");
}

TEST_F(AutoSettingsSaveTest, ASaveThatBreaksOffLeavesTheRowAsItWas)
{
    const QStringList before = Rows(Q(All()));
    gAppState.gWeighScale = "ACE'CORP";
    On<frmAutoSettings>([&](Clerk& clerk) { clerk.Type("1%s"); });
    ASSERT_TRUE(Failure);
    EXPECT_TRUE(Failure->Statement().startsWith(u"insert into AutoSettings("))
        << Failure->Statement().toStdString();
    EXPECT_EQ(Rows(Q(All())), before);
    EXPECT_EQ(gAppState.gAutoLiters, "naahI");
}

TEST_F(AutoSettingsSaveTest, TheTransportEntryOfTheMenuDisappears)
{
    const auto entries = [this] {
        qsizetype count = 0;
        On<MainMenuFrm>([&](Clerk& clerk) {
            clerk.Type("{ENTER}{ENTER}");
            count = qsizetype(dynamic_cast<MenuList&>(*clerk.Top().Find(u"ListSVouchers")).Entries().size());
        });
        return count;
    };
    Given("ShowTransportCharges='True'");
    const qsizetype before = entries();
    Settings([&](Clerk& clerk) { Save(clerk); });
    EXPECT_EQ(entries(), before - 1);
}
