// What the bonus asks for, and what it refuses.

#include "tests/bonus/BonusPaymentsTest.h"

#include <QTableView>

namespace {

using BonusQuestionsTest = BonusPaymentsTest;

TEST_F(BonusQuestionsTest, ItOpensWithNothingOfTheRunBeforeAndWithTheRatesOfTheSettings)
{
    Run("insert into BonusPayments(CompanyId,SerialNo,MemberNo) values(1,1,5)");
    Run("insert into BonusPayments(CompanyId,SerialNo,MemberNo) values(1,0,6)");
    Run("update AutoSettings set CowBonusRate=0.505,BuffBonusRate=12");
    Play([this](Clerk& clerk) {
        EXPECT_EQ(clerk.Top().Title().Text(), " baaonasa TUla");
        EXPECT_EQ(Rows("select * from BonusPayments"), QStringList());
        EXPECT_EQ(Focus(clerk), "maskFromDate");
        EXPECT_EQ(Reads(clerk, "txtCowBonusRate"), "0.51");
        EXPECT_EQ(Reads(clerk, "txtBuffBonusRate"), "12.00");
        EXPECT_FALSE(Shows(clerk, "txtMemberNo"));
        EXPECT_TRUE(Shows(clerk, "maskToDate"));
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Rows("select CowBonusRate,BuffBonusRate from AutoSettings"), QStringList("0.505|12"))
        << "opening writes no rate";
}

TEST_F(BonusQuestionsTest, TheListHasFifteenColumnsInTheirOrder)
{
    Play([](Clerk& clerk) {
        const auto* view = dynamic_cast<const QTableView*>(clerk.Top().Find(u"DataGrid1")->Widget());
        QStringList heads;
        for (int column = 0; column < view->model()->columnCount(); ++column)
            heads.append(view->model()->headerData(column, Qt::Horizontal).toString());
        QStringList captions;
        for (const char* caption : {"A.naM.", "maombar naM.", "maombarcao naava", "maagaIla gaaya dUQa",
                 "maagaIla mhOsa dUQa", "caalaU gaaya dUQa", "caalaU mhOsa dUQa", "ekUNa gaaya ilaTsa-",
                 "ekUNa mhOsa ilaTsa-", "ekUNa gaaya baaonasa", "ekUNa mhOsa baaonasa", "ekUNa baaonasa",
                 "maagaIla zova", "vajaavaTÀ A^Dvhansa", "iSallak baaonasa"})
            captions.append(Seen(caption));
        EXPECT_EQ(heads, captions);
    });
}

TEST_F(BonusQuestionsTest, ARateIsWrittenWithEachKeyAndEscLeavesIt)
{
    Play([this](Clerk& clerk) {
        Ask(clerk);
        const auto rates = [this] {
            return Rows("select CowBonusRate,BuffBonusRate from AutoSettings").join(u';');
        };
        Type(clerk, "+{TAB}+{TAB}");
        EXPECT_EQ(Focus(clerk), "txtBuffBonusRate");
        Type(clerk, "1");
        EXPECT_EQ(rates(), "0.5|1");
        Type(clerk, ".");
        EXPECT_EQ(rates(), "0.5|1");
        Type(clerk, "2");
        EXPECT_EQ(rates(), "0.5|1.2");
        Type(clerk, "5");
        EXPECT_EQ(rates(), "0.5|1.25");
        Type(clerk, "+{TAB}");
        Type(clerk, "{DEL}");
        EXPECT_EQ(rates(), "0|1.25") << "an emptied one is none";
        Type(clerk, ".9{ESC}");
        EXPECT_EQ(OnTop(clerk), "");
        EXPECT_EQ(rates(), "0.9|1.25") << "though no run was made";
    });
    EXPECT_FALSE(Failure) << Failure->Text().toStdString();
}

TEST_F(BonusQuestionsTest, ABadDateIsToldWithTheTextTypedAndKeepsTheFocus)
{
    Play([this](Clerk& clerk) {
        Type(clerk, "{ENTER}");
        EXPECT_EQ(TheBox.Shown, QStringList("Please enter valid Date  __/__/____"));
        EXPECT_EQ(Focus(clerk), "maskFromDate");
        Type(clerk, "01042026{ENTER}31022026{ENTER}");
        EXPECT_EQ(TheBox.Shown.last(), "Please enter valid Date  31/02/2026");
        EXPECT_EQ(Focus(clerk), "maskToDate");
        EXPECT_EQ(Reads(clerk, "maskToDate"), "31/02/2026");
        Type(clerk, "30042026{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFromAcNo");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(BonusQuestionsTest, TheFirstAccountIsWantedAndTheLastOneIsTheHighestByItself)
{
    Play([](Clerk& clerk) {
        Type(clerk, "01042026{ENTER}30042026{ENTER}0{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtFromAcNo");
        Type(clerk, "5{ENTER}{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtToAcNo"), "30");
        EXPECT_EQ(Focus(clerk), "cmbMilkType");
        Type(clerk, "+{TAB}12{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtToAcNo"), "12");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(BonusQuestionsTest, TheHighestAccountIsThatOfAllCompanies)
{
    Run("insert into MembersMaster(CompanyId,MemberNo,MemberName) values(2,77,'maaQava')");
    Play([](Clerk& clerk) {
        Type(clerk, "01042026{ENTER}30042026{ENTER}5{ENTER}{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtToAcNo"), "77");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(BonusQuestionsTest, WithoutAnyMemberTheLastAccountStaysNoughtAndNothingIsBuilt)
{
    Run("delete * from MembersMaster");
    Play([this](Clerk& clerk) {
        Type(clerk, "01042026{ENTER}30042026{ENTER}5{ENTER}{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtToAcNo"), "0");
        Type(clerk, "3{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtToAcNo");
        EXPECT_TRUE(Shows(clerk, "maskFromDate"));
        EXPECT_EQ(Built(), QStringList());
    });
    EXPECT_FALSE(Failure);
}

TEST_F(BonusQuestionsTest, WhatIsEmptyOrNoughtStopsTheButtonWithTheFocusThere)
{
    for (const char* field : {"maskFromDate", "maskToDate", "txtFromAcNo", "txtToAcNo", "cmbMilkType",
             "txtCowBonusRate", "txtBuffBonusRate"}) {
        Play([field](Clerk& clerk) {
            Ask(clerk);
            clerk.Do([&] { dynamic_cast<Field&>(*clerk.Top().Find(QString::fromLatin1(field))).Clear(); });
            Type(clerk, "{ENTER}");
            EXPECT_EQ(Focus(clerk), field);
            EXPECT_TRUE(Shows(clerk, "maskFromDate"));
        });
        EXPECT_FALSE(Failure) << field;
        EXPECT_EQ(Built(), QStringList()) << field;
        Run("update AutoSettings set CowBonusRate=0.5,BuffBonusRate=0.75");
    }
}

TEST_F(BonusQuestionsTest, WithoutRatesInTheSettingsTheyAreAskedFor)
{
    Run("update AutoSettings set CowBonusRate=null,BuffBonusRate=null");
    Play([this](Clerk& clerk) {
        EXPECT_EQ(Reads(clerk, "txtCowBonusRate"), "0.00");
        Ask(clerk);
        Type(clerk, "{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtCowBonusRate");
        Type(clerk, "1{ENTER}2{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtMemberNo");
        EXPECT_EQ(Built().size(), 3);
    });
    EXPECT_FALSE(Failure);
}

TEST_F(BonusQuestionsTest, ARangeTheWrongWayRoundIsToldAndNothingIsBuilt)
{
    Play([this](Clerk& clerk) {
        Type(clerk, "30042026{ENTER}01042026{ENTER}5{ENTER}30{ENTER}3{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(TheBox.Shown, QStringList("please enter valid date"));
        EXPECT_EQ(Focus(clerk), "maskToDate");
        EXPECT_EQ(Label(clerk, "lblGuide"), "शेवटचा दिवस 30/04/2026 च्या आधीचा नको    Esc : बाहेर");
    });
    EXPECT_FALSE(Failure);
    Play([](Clerk& clerk) {
        Type(clerk, "01042026{ENTER}30042026{ENTER}30{ENTER}5{ENTER}3{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtToAcNo");
        EXPECT_EQ(Label(clerk, "lblGuide"), "शेवटचा नंबर 30 पेक्षा लहान नको    Esc : बाहेर");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Built(), QStringList());
}

}
