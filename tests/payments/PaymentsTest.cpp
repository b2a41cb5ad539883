#include "tests/payments/PaymentsTest.h"

#include "platform/database/Sql.h"
#include "platform/forms/DataGrid.h"

PaymentsTest::PaymentsTest()
{
    AddMember(5, QStringLiteral("rama"));
    AddMember(12, QStringLiteral("saIta"));
    Set("ThevKapatCow=0.10,ThevKapatBuff=0.20,DecimalPayment='PayIt'");
}

void PaymentsTest::PlaySingle(const std::function<void(Clerk&)>& script)
{
    Play([&](Clerk& clerk) {
        Type(clerk, "{DOWN}{ENTER}{ENTER}");
        ASSERT_EQ(Focus(clerk), "cmdNew");
        script(clerk);
    });
}

void PaymentsTest::Begin(Clerk& clerk, const char* from)
{
    Type(clerk, "%n");
    Type(clerk, from);
    Type(clerk, "{ENTER}{ENTER}");
    ASSERT_EQ(Focus(clerk), "txtMemberNo");
}

void PaymentsTest::Work(Clerk& clerk, const char* from, int member)
{
    Begin(clerk, from);
    clerk.Type(QString::number(member) + QStringLiteral("{ENTER}"));
}

void PaymentsTest::Pay(Clerk& clerk, const char* from, int member)
{
    Work(clerk, from, member);
    Type(clerk, "%s");
    ASSERT_EQ(clerk.Message(), QStringLiteral("Are You Sure to Save ?"));
    Type(clerk, "%h");
}

void PaymentsTest::Load(Clerk& clerk, const char* from, int member)
{
    Type(clerk, "%k");
    Type(clerk, from);
    clerk.Type(QStringLiteral("{ENTER}") + QString::number(member) + QStringLiteral("{ENTER}"));
}

void PaymentsTest::PayMany(Clerk& clerk, const char* from, const char* first, const char* last)
{
    Type(clerk, "{DOWN}{DOWN}{ENTER}");
    Type(clerk, from);
    Type(clerk, "{ENTER}{ENTER}");
    Type(clerk, first);
    Type(clerk, "{ENTER}");
    Type(clerk, last);
    Type(clerk, "{ENTER}");
    ASSERT_EQ(Focus(clerk), "cmdCalculate");
    Type(clerk, "{ENTER}");
}

void PaymentsTest::AddMilk(int member, const char* day, const char* animal, double litres, double amount,
    int company, const char* time)
{
    Run(Sql(u"insert into MilkCollections(CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,"
            u"MemberName,Animal,Liters,Fat,Rate,Amount,TranId) values(",
        Values(company, QString::fromLatin1(day), QString::fromLatin1(time), 1, member, u"x",
            QString::fromLatin1(animal), litres, 4.5, 35.55, amount, 0),
        u")"));
}

void PaymentsTest::AddVoucher(const char* day, int member, const char* head, double amount, int company)
{
    Run(Sql(u"insert into TransactionsDetails(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount) values(",
        Values(company, QString::fromLatin1(day), 7, member, QString::fromUtf8(head), amount), u")"));
}

void PaymentsTest::AddReceipt(const char* day, int member, const char* head, double amount, int company)
{
    Run(Sql(u"insert into AdvanceReceipt(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount) values(",
        Values(company, QString::fromLatin1(day), 8, member, QString::fromUtf8(head), amount), u")"));
}

void PaymentsTest::AddExample()
{
    Set("FixedKapat=5");
    AddMilk(5, "01/04/2026", "gaaya", 60, 1500);
    AddMilk(5, "10/04/2026", "gaaya", 40, 1000);
    AddMilk(5, "04/04/2026", "mhOsa", 50.5, 1800.50);
    AddVoucher("25/03/2026", 5, "]cala", 500);
    AddVoucher("02/04/2026", 5, "]cala", 200);
    AddVoucher("03/04/2026", 5, "KaV", 123.45);
}

QStringList PaymentsTest::Seen(const Clerk& clerk, const char* list, int columns)
{
    const auto& grid = dynamic_cast<const DataGrid&>(*clerk.Top().Find(QString::fromLatin1(list)));
    QStringList rows;
    for (int row = 0; row < grid.Rows(); ++row) {
        QStringList cells;
        for (int column = 0; column < columns; ++column)
            cells.append(grid.Cell(row, column));
        rows.append(cells.join(u'|'));
    }
    return rows;
}

std::string PaymentsTest::Paid(const char* columns)
{
    return Rows(QStringLiteral("select ") + QLatin1String(columns)
        + QStringLiteral(" from MilkPayments order by FromDate,MemberNo"))
        .join(u'\n')
        .toStdString();
}
