// Two societies in one file, with the same numbers, names and dates: each voucher is that of the selected
// one.

#include "tests/vouchers/VouchersTest.h"

#include "platform/database/Sql.h"
#include "vouchers/frmSelectInwards.h"

namespace {

// Of member 1 there is one in each, and the other society's stands first in the books.
class VouchersCompaniesTest : public VouchersTest {
protected:
    VouchersCompaniesTest()
    {
        Run("update MembersMaster set CompanyId=2,ClosingBalance=5000,ClosingUchal=600 where MemberNo=1");
        AddMember(1, "rama");
        Run("update MembersMaster set ClosingBalance=1000,ClosingUchal=200 where CompanyId=1");
    }

    // An advance of two heads under number 1, and a receipt under number 2.
    void AddVouchers(int company, const char* name, int member, double amount)
    {
        const QString who = QString::fromLatin1(name);
        AddMaster(company, 1, u"pomaonT", who, u"raoK", 2 * amount, u"]cala");
        AddDetail("TransactionsDetails", company, 1, member, u"KaV", amount);
        AddDetail("TransactionsDetails", company, 1, member, u"]cala", amount);
        AddMaster(company, 2, u"irsaIT", u"raoK", who, amount, u"]cala jamaa");
        AddDetail("AdvanceReceipt", company, 2, member, u"Uchal Receipt", amount);
    }

    void AddMaster(int company, int number, QStringView type, QStringView debit, QStringView credit,
        double amount, QStringView billNo)
    {
        Run(Sql(u"insert into TransactionsMaster(CompanyId,TranDate,TranId,TranType,DAccountName,"
                u"CAccountName,Amount,BillNo) values(",
            Values(company, u"15/04/2026", number, type, debit, credit, amount, billNo), u")"));
    }

    void AddDetail(const char* table, int company, int number, int member, QStringView type, double amount)
    {
        Run(Sql(u"insert into ", QString::fromLatin1(table),
            u"(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount) values(",
            Values(company, u"15/04/2026", number, member, type, amount), u")"));
    }

    // The vouchers of a society with what they consist of.
    QStringList Vouchers(int company)
    {
        QStringList rows;
        for (const char* columns :
            {"TranDate,TranId,DAccountName,CAccountName,Amount,Printname from TransactionsMaster",
                "TranId,MemberNo,AdvanceType,Amount from TransactionsDetails",
                "TranId,MemberNo,AdvanceType,Amount from AdvanceReceipt"})
            rows += Rows(Sql(u"select ", QString::fromLatin1(columns), u" where CompanyId=", company));
        return rows;
    }

    QStringList Closings()
    {
        return Rows("select CompanyId,ClosingBalance,ClosingUchal from MembersMaster where MemberNo=1 order "
                    "by CompanyId");
    }
};

TEST_F(VouchersCompaniesTest, AnAdvanceMovesTheMemberOfItsOwnAlone)
{
    Play([](Clerk& clerk) {
        KeyAdvance(clerk, "15042026", 1, "KaV", "100");
        Type(clerk, "%n");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Closings(), (QStringList{"1|900|300", "2|5000|600"}));
}

TEST_F(VouchersCompaniesTest, EachHasItsOwnNumbers)
{
    AddMaster(2, 7, u"pomaonT", u"rama", u"raoK", 40, u"]cala");
    Play([](Clerk& clerk) {
        Type(clerk, "%n15042026{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtTranNo"), "1");
        Type(clerk, "7{ENTER}");
        EXPECT_EQ(Focus(clerk), "txtMemberNo") << "it is free";
        EXPECT_EQ(clerk.Message(), "");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(VouchersCompaniesTest, AVoucherOfTheOtherIsNotCalledUp)
{
    AddVouchers(2, "rama", 1, 50);
    for (const bool isReceipt : {false, true})
        Play([isReceipt](Clerk& clerk) {
            if (isReceipt)
                ToReceipts(clerk);
            Type(clerk, "%d{ENTER}15042026{ENTER}");
            EXPECT_EQ(clerk.Message(), "roka^D- ]plabQa naahI");
        });
    EXPECT_FALSE(Failure);
}

TEST_F(VouchersCompaniesTest, OfOneNumberInBothTheOwnVoucherIsCalledUpAndChanged)
{
    AddVouchers(2, "saIta", 2, 70);
    AddVouchers(1, "rama", 1, 50);
    const QStringList others = Vouchers(2);
    Play([](Clerk& clerk) {
        Type(clerk, "%d{ENTER}");
        EXPECT_EQ(Reads(clerk, "ComboMemberName"), "rama");
        EXPECT_EQ(Reads(clerk, "txtAmount"), "100.00");
        Type(clerk, "{ENTER}{ENTER}KaV{ENTER}70{ENTER}{ENTER}{F4}{ENTER}%h%n");
        ToReceipts(clerk);
        Type(clerk, "%d{ENTER}{ENTER}{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtAmount1"), "50.00");
        Type(clerk, "30{ENTER}{ENTER}%h");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Vouchers(2), others);
    EXPECT_EQ(Vouchers(1),
        (QStringList{"15/04/2026|1|rama|raoK|120|NULL", "15/04/2026|2|raoK|rama|30|NULL", "1|1|KaV|70",
            "1|1|]cala|50", "2|1|Uchal Receipt|30"}));
    EXPECT_EQ(Closings(), (QStringList{"1|1060|140", "2|5000|600"}));
}

// The details that come last would tell another member's number.
TEST_F(VouchersCompaniesTest, OfOneNumberInBothTheOwnDetailsTellTheMember)
{
    AddVouchers(1, "rama", 1, 50);
    AddVouchers(2, "saIta", 2, 70);
    Play([](Clerk& clerk) {
        Type(clerk, "%d{ENTER}");
        EXPECT_EQ(Reads(clerk, "txtMemberNo"), "1");
    });
    EXPECT_FALSE(Failure);
}

TEST_F(VouchersCompaniesTest, OfOneNumberInBothTheOwnVoucherIsDeleted)
{
    AddVouchers(2, "saIta", 2, 70);
    AddVouchers(1, "rama", 1, 50);
    const QStringList others = Vouchers(2);
    Play([](Clerk& clerk) {
        Type(clerk, "%k{ENTER}{ENTER}%h");
        ToReceipts(clerk);
        Type(clerk, "%k{ENTER}{ENTER}%h");
    });
    EXPECT_FALSE(Failure);
    EXPECT_EQ(Vouchers(2), others);
    EXPECT_EQ(Vouchers(1), QStringList());
    EXPECT_EQ(Closings(), (QStringList{"1|1050|150", "2|5000|600"}));
}

TEST_F(VouchersCompaniesTest, TheLookUpListsItsOwn)
{
    AddVouchers(2, "saIta", 2, 70);
    for (const char* mode : {"U", "UR", "T"}) {
        gAppState.gReportMode = QString::fromLatin1(mode);
        On<frmSelectInwards>([](Clerk& clerk) { EXPECT_EQ(OnTop(clerk), ""); });
        EXPECT_EQ(gAppState.gReportMode, "N") << mode;
    }
    EXPECT_FALSE(Failure);
}

TEST_F(VouchersCompaniesTest, OfOneNumberInBothTheOwnVoucherIsNamedAndStaged)
{
    AddVouchers(2, "saIta", 2, 70);
    Play([](Clerk& clerk) {
        KeyAdvance(clerk, "15042026", 1, "KaV", "100");
        Type(clerk, "%hgaNaoSa{ENTER}{ENTER}");
    });
    ASSERT_FALSE(Failure) << Failure->Text().toStdString();
    EXPECT_EQ(Rows("select CompanyId,Printname from TransactionsMaster where TranId=1 order by CompanyId"),
        (QStringList{"1|gaNaoSa", "2|NULL"}));
    EXPECT_EQ(Rows("select CompanyId,Amount from TransactionsMasterTemp"), QStringList("1|100"));
}

}
