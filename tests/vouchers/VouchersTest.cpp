#include "tests/vouchers/VouchersTest.h"

#include "platform/database/Sql.h"
#include "platform/shell/AppFolder.h"

VouchersTest::VouchersTest()
{
    ReportSurroundings::Current() = {
        &TheWindow, nullptr, [](const QString& path) { return LocalPath(path); }};
    AddMember(1, "rama");
    AddMember(2, "saIta");
    Run("update MembersMaster set ClosingBalance=1000,ClosingUchal=200,CowClosingThev=7");
}

VouchersTest::~VouchersTest()
{
    TheWindow.Shown.clear();
    ReportControl::CloseConnections();
    ReportSurroundings::Current() = {};
}

void VouchersTest::KeyAdvance(
    Clerk& clerk, const char* date, int member, const char* head, const char* amount)
{
    Type(clerk, "%n");
    Type(clerk, date);
    clerk.Type(QString("{ENTER}{ENTER}%1{ENTER}{ENTER}").arg(member));
    Type(clerk, head);
    Type(clerk, "{ENTER}");
    Type(clerk, amount);
    Type(clerk, "{ENTER}{ENTER}{F4}{ENTER}");
}

void VouchersTest::KeyReceipt(Clerk& clerk, const char* date, int member, const char* amount)
{
    Type(clerk, "%n");
    Type(clerk, date);
    clerk.Type(QString("{ENTER}{ENTER}%1{ENTER}{ENTER}").arg(member));
    Type(clerk, amount);
    Type(clerk, "{ENTER}{ENTER}");
}

void VouchersTest::ToReceipts(Clerk& clerk)
{
    Press(clerk, "OptPaymentEntry");
    Press(clerk, "Command1");
}

std::string VouchersTest::Closing(int member)
{
    return Rows(Sql(u"select ClosingBalance,ClosingUchal from MembersMaster where MemberNo=", member))
        .join(u';')
        .toStdString();
}

std::string VouchersTest::Owed(int member)
{
    double owed = 0;
    for (const QString& given : Rows(Sql(u"select Amount from TransactionsDetails where MemberNo=", member)))
        owed += given.toDouble();
    for (const QString& received : Rows(Sql(u"select Amount from AdvanceReceipt where MemberNo=", member)))
        owed -= received.toDouble();
    return QString::number(owed).toStdString();
}
