// The sums of years, which the engine keeps for whoever writes to the books.

#include "tests/tools/SetupSupport.h"

#include <gtest/gtest.h>

#include <random>

namespace {

constexpr const char* Tables[] = {"TransactionsDetails", "AdvanceReceipt", "MilkPaymentsDetails"};

// What the rows of the three tables sum up to, and what the engine has kept, where the two differ by more
// than a ten thousandth of a rupee. Years that came to nothing may be left.
QString Differences()
{
    QString rows;
    for (const char* table : Tables) {
        rows += rows.isEmpty() ? QString() : QStringLiteral(" union all ");
        rows += QStringLiteral("select '%1' as T,CompanyId as C,MemberNo as M,strftime('%Y',TranDate) as Y,"
                               "case when AdvanceType is null then 2 when trim(AdvanceType)='gaaya zova' or "
                               "trim(AdvanceType)='mhOsa zova' then 1 else 0 end as D,Amount as A from %1")
                    .arg(QString::fromLatin1(table));
    }
    return QStringLiteral("select T,C,M,Y,D,round(sum(A),4) from (") + rows
        + QStringLiteral(" union all select Entries,CompanyId,MemberNo,Year,Deposit,-Amount from YearSums) "
                         "where C is not null and M is not null and Y is not null "
                         "group by T,C,M,Y,D having abs(sum(A))>0.0001;");
}

// Runs statements on the delivered books, asks, and takes them back.
QStringList After(const QString& statements, const QString& question)
{
    return AskDelivered(QStringLiteral("begin;") + statements + question + QStringLiteral("rollback;"));
}

// A thousand insertions, changes and deletions in all three tables, with empty fields now and then.
QString RandomWork(unsigned seed)
{
    std::mt19937 dice(seed);
    const auto throwUpTo = [&](int most) {
        return static_cast<int>(dice() % static_cast<unsigned>(most)) + 1;
    };
    const auto orNull = [&](const QString& value) {
        return throwUpTo(25) == 1 ? QStringLiteral("null") : value;
    };
    const QStringList heads{"]cala", "KaV", "gaaya zova", " mhOsa zova ", "zova"};
    QString work;
    for (int i = 0; i < 1000; ++i) {
        const QString table = QString::fromLatin1(Tables[throwUpTo(3) - 1]);
        const QString day = QStringLiteral("'20%1-%2-%3'")
                                .arg(23 + throwUpTo(4))
                                .arg(throwUpTo(12), 2, 10, QChar(u'0'))
                                .arg(throwUpTo(28), 2, 10, QChar(u'0'));
        const QString head = u'\'' + heads[throwUpTo(5) - 1] + u'\'';
        const QString amount = QString::number(throwUpTo(1000000) / 100.0 - 5000, 'f', 2);
        const QString member = QString::number(throwUpTo(5));
        const QString company = QString::number(throwUpTo(2));
        switch (throwUpTo(20)) {
        case 1:
            work +=
                QStringLiteral("delete from %1 where MemberNo=%2 and TranDate>%3;").arg(table, member, day);
            break;
        case 2:
        case 3:
            work += QStringLiteral("update %1 set Amount=%2,AdvanceType=%3 where MemberNo=%4;")
                        .arg(table, orNull(amount), orNull(head), member);
            break;
        case 4:
        case 5:
            work += QStringLiteral("update %1 set MemberNo=%2,TranDate=%3,CompanyId=%4 where rowid%5=0;")
                        .arg(table, orNull(member), orNull(day), orNull(company),
                            QLatin1Char('%') + QString::number(throwUpTo(9)));
            break;
        default:
            work +=
                QStringLiteral("insert into %1 values(%2,%3,1,%4,%5,%6);")
                    .arg(table, orNull(company), orNull(day), orNull(member), orNull(head), orNull(amount));
        }
    }
    return work;
}

}

TEST(YearSumsTest, AreThoseOfTheRowsAfterAThousandWritings)
{
    for (unsigned seed = 1; seed <= 5; ++seed) {
        const QString work = RandomWork(seed);
        EXPECT_EQ(After(work, Differences()), QStringList()) << seed;
        // There is something to differ.
        EXPECT_GT(After(work, "select count(*) from YearSums where abs(Amount)>1;").value(0).toInt(), 40)
            << seed;
    }
}

TEST(YearSumsTest, ADifferenceIsFound)
{
    const QString row = "insert into AdvanceReceipt values(1,'2026-05-01',1,7,'Uchal Receipt',20.5);";
    EXPECT_EQ(After(row + "update YearSums set Amount=Amount+0.01;", Differences()),
        QStringList("AdvanceReceipt|1|7|2026|0|-0.01"));
}

TEST(YearSumsTest, ARowTakenBackLeavesNought)
{
    const QString rows = "insert into TransactionsDetails values(1,'2026-05-01',1,7,']cala',0.1);"
                         "insert into TransactionsDetails values(1,'2026-06-01',2,7,']cala',0.2);"
                         "delete from TransactionsDetails;";
    EXPECT_EQ(After(rows, "select Amount=0 from YearSums where MemberNo=7;"), QStringList("1"));
}

TEST(YearSumsTest, TheDemonstrationHasThemFromItsBeginning)
{
    EXPECT_EQ(AskDemo(Differences()), QStringList());
    EXPECT_GT(
        AskDemo("select count(*) from YearSums where Entries='MilkPaymentsDetails';").value(0).toInt(), 30);
}

namespace {

// The same of the accounts: amounts and numbers of entries.
QString AccountDifferences()
{
    return QStringLiteral(
        "select C,N,Y,sum(E),round(total(A),4) from ("
        "select CompanyId as C,trim(DAccountName) as N,strftime('%Y',TranDate) as Y,1 as E,-Amount as A "
        "from TransactionsMaster union all "
        "select CompanyId,trim(CAccountName),strftime('%Y',TranDate),1,Amount from TransactionsMaster "
        "union all select CompanyId,AccountName,Year,-Entries,-Amount from AccountYearSums) "
        "where C is not null and N is not null and Y is not null "
        "group by C,N,Y having abs(total(A))>0.0001 or sum(E)<>0;");
}

// A thousand insertions, changes and deletions of transactions, with empty fields now and then.
QString RandomTransactions(unsigned seed)
{
    std::mt19937 dice(seed);
    const auto throwUpTo = [&](int most) {
        return static_cast<int>(dice() % static_cast<unsigned>(most)) + 1;
    };
    const QStringList names{"raoK", "rama", " raoK ", "dUQa saMGa", "saIta"};
    const auto orNull = [&](const QString& value) {
        return throwUpTo(25) == 1 ? QStringLiteral("null") : value;
    };
    const auto day = [&] {
        return QStringLiteral("'20%1-%2-%3'")
            .arg(23 + throwUpTo(4))
            .arg(throwUpTo(12), 2, 10, QChar(u'0'))
            .arg(throwUpTo(28), 2, 10, QChar(u'0'));
    };
    const auto name = [&] { return orNull(u'\'' + names[throwUpTo(5) - 1] + u'\''); };
    const auto amount = [&] { return orNull(QString::number(throwUpTo(1000000) / 100.0 - 5000, 'f', 2)); };
    const auto company = [&] { return orNull(QString::number(throwUpTo(2))); };
    QString work;
    for (int i = 0; i < 1000; ++i) {
        const QString some = QStringLiteral(" where TranId=%1;").arg(throwUpTo(30));
        switch (throwUpTo(20)) {
        case 1:
            work += QStringLiteral("delete from TransactionsMaster") + some;
            break;
        case 2:
            work += QStringLiteral("update TransactionsMaster set Amount=%1,CompanyId=%2")
                        .arg(amount(), company())
                + some;
            break;
        case 3:
            work += QStringLiteral("update TransactionsMaster set DAccountName=%1,TranDate=%2")
                        .arg(name(), orNull(day()))
                + some;
            break;
        case 4:
            work +=
                QStringLiteral("update TransactionsMaster set CAccountName=%1,BillNo='7'").arg(name()) + some;
            break;
        default:
            work +=
                QStringLiteral("insert into TransactionsMaster(CompanyId,TranDate,TranId,DAccountName,"
                               "CAccountName,Amount) values(%1,%2,%3,%4,%5,%6);")
                    .arg(company(), orNull(day()), QString::number(throwUpTo(30)), name(), name(), amount());
        }
    }
    return work;
}

}

TEST(AccountYearSumsTest, AreThoseOfTheRowsAfterAThousandWritings)
{
    for (unsigned seed = 1; seed <= 5; ++seed) {
        const QString work = RandomTransactions(seed);
        EXPECT_EQ(After(work, AccountDifferences()), QStringList()) << seed;
        EXPECT_GT(
            After(work, "select count(*) from AccountYearSums where abs(Amount)>1;").value(0).toInt(), 20)
            << seed;
    }
}

TEST(AccountYearSumsTest, ADifferenceIsFound)
{
    const QString row = "insert into TransactionsMaster(CompanyId,TranDate,DAccountName,CAccountName,Amount) "
                        "values(1,'2026-05-01','raoK','rama',20.5);";
    EXPECT_EQ(After(row, AccountDifferences()), QStringList());
    EXPECT_EQ(After(row + "update AccountYearSums set Amount=Amount+0.01 where AccountName='raoK';",
                  AccountDifferences()),
        QStringList("1|raoK|2026|0|-0.01"));
    EXPECT_EQ(
        After(row + "update AccountYearSums set Entries=2 where AccountName='rama';", AccountDifferences()),
        QStringList("1|rama|2026|-1|0.0"));
}

TEST(AccountYearSumsTest, ATransactionTakenBackLeavesNought)
{
    const QString rows =
        "insert into TransactionsMaster(CompanyId,TranDate,DAccountName,CAccountName,Amount) "
        "values(1,'2026-05-01','raoK','rama',0.1),(1,'2026-06-01','raoK','rama',0.2);"
        "delete from TransactionsMaster;";
    EXPECT_EQ(After(rows, "select AccountName,Entries,Amount=0 from AccountYearSums order by 1;"),
        (QStringList{"rama|0|1", "raoK|0|1"}));
}

TEST(AccountYearSumsTest, TheDemonstrationHasThemFromItsBeginning)
{
    EXPECT_EQ(AskDemo(AccountDifferences()), QStringList());
    EXPECT_GT(AskDemo("select count(*) from AccountYearSums;").value(0).toInt(), 5);
}
