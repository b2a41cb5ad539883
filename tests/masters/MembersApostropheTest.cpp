#include "tests/masters/MembersTest.h"

namespace {

// A name that would end its own quotes in a statement and go on as the statement's words: as it is typed,
// doubled, and as it would stand in the books then.
const QString Doubled = "x'' or ''a''=''a";
const QString Single = "x' or 'a'='a";

// Three members, each with an entry in every table that knows members by number or by name.
class MembersApostropheTest : public MembersTest {
protected:
    MembersApostropheTest()
    {
        int number = 0;
        for (const QString name : {"rama", "Xyaama", "gaNaoXa"}) {
            AddMember(++number, name);
            AddCollection(number, name, 10);
            AddPayment(number, name, 5);
            AddUchal(number, 3);
            AddReceipt(number, "Uchal Receipt", 2);
            AddDeduction(number, "zova", 1);
            AddVoucher(name, "raoK");
        }
    }

    // All rows of all tables that the screen writes.
    QStringList Books()
    {
        QStringList rows;
        for (const char* table : {"MembersMaster", "MilkCollections", "MilkPayments", "TransactionsMaster",
                 "TransactionsDetails", "AdvanceReceipt", "MilkPaymentsDetails", "CityMaster", "BankMaster"})
            rows += Rows(QStringLiteral("select * from ") + QLatin1String(table));
        return rows;
    }

    void StoreName(int number, const QString& name)
    {
        QString quoted = name;
        quoted.replace("'", "''");
        gCn.RunScript(QStringLiteral("update MembersMaster set MemberName='%1' where MemberNo=%2")
                          .arg(quoted)
                          .arg(number));
    }

    void ExpectFailureAndBooks(const QStringList& before)
    {
        ASSERT_TRUE(Failure);
        EXPECT_EQ(Failure->Number(), RunTimeError::DatabaseFailure);
        EXPECT_TRUE(Failure->Statement().contains(u'\'')) << Failure->what();
        EXPECT_EQ(Books(), before);
    }
};

TEST_F(MembersApostropheTest, NoNewMemberIsStoredUnderSuchAName)
{
    for (const QString& name : {Doubled, Single}) {
        const QStringList before = Books();
        Play([&](Clerk& clerk) {
            Type(clerk, "%n");
            FillNewMember(clerk, name);
            Type(clerk, "%s");
        });
        ExpectFailureAndBooks(before);
    }
}

TEST_F(MembersApostropheTest, NoMemberIsRenamedToSuchAName)
{
    const QStringList before = Books();
    Play([](Clerk& clerk) {
        CallUp(clerk, 1);
        clerk.Type(Typed(Doubled) + "{ENTER}%s%h");
    });
    ExpectFailureAndBooks(before);
}

TEST_F(MembersApostropheTest, AMemberWhoIsStoredSoIsRenamedNowhere)
{
    StoreName(1, Single);
    const QStringList before = Books();
    Play([](Clerk& clerk) {
        CallUp(clerk, 1);
        Type(clerk, "ramaa{ENTER}%s%h");
    });
    ExpectFailureAndBooks(before);
}

TEST_F(MembersApostropheTest, TheDeletionOfAMemberWhoIsStoredSoTakesNobodysVouchers)
{
    StoreName(1, Single);
    const QStringList before = Books();
    Play([](Clerk& clerk) { Type(clerk, "%k1{ENTER}{ENTER}%h"); });
    ExpectFailureAndBooks(before);
}

TEST_F(MembersApostropheTest, NoVillageIsAddedUnderSuchAName)
{
    const QStringList before = Books();
    Play([](Clerk& clerk) { clerk.Type("%n{ENTER}gaIta{ENTER}{ENTER}" + Typed(Doubled) + "{ENTER}%h"); });
    ExpectFailureAndBooks(before);
}

}
