#include "tests/delivered/StatementsTest.h"

#include "platform/database/DataSource.h"
#include "platform/database/Recordset.h"
#include "platform/text/Numbers.h"
#include "platform/text/Shivaji01.h"
#include "tools/setup/Society.h"

namespace {

SocietyPlan Plan()
{
    SocietyPlan plan;
    plan.name = "दूध संस्था";
    plan.year = "2026-2027";
    plan.password = "Gokul#2026";
    return plan;
}

std::string Text(const FieldValue& value)
{
    return value.IsNull() ? "null" : value.Text().toStdString();
}

std::string Number(double number)
{
    return ShortestDecimal(number).toStdString();
}

}

StatementsTest::StatementsTest() : SocietyName(Shivaji01::FromUnicode(Plan().name).toStdString())
{
    CopySociety(m_folder.path(), Plan());
    DataSource::Register("StatementsDSN", m_folder.filePath(DatabaseFileName.toString()));
    m_connection.Open("dsn=StatementsDSN;pwd=" + Plan().password);
}

int StatementsTest::Run(const std::string& statement)
{
    return m_connection.Execute(QString::fromStdString(statement));
}

Lines StatementsTest::Rows(const std::string& query)
{
    Lines lines;
    for (Recordset rows(m_connection, QString::fromStdString(query)); !rows.Eof(); rows.MoveNext()) {
        std::string line;
        for (int column = 0; column < rows.Columns(); ++column)
            line += (column ? "|" : "") + Text(rows.At(column));
        lines.push_back(line);
    }
    return lines;
}

std::string StatementsTest::Row(const std::string& query)
{
    const Lines lines = Rows(query);
    EXPECT_EQ(lines.size(), 1U) << query;
    return lines.size() == 1 ? lines.front() : std::string();
}

void StatementsTest::AddMember(int company, int number, const std::string& name, const std::string& animal)
{
    const std::string no = std::to_string(number);
    Run("Insert into MembersMaster(CompanyId,MemberNo,MemberName,AccountId,Address, City,Animal,PaymentType,"
        "BankName,BankAccountNo,OpeningBalance, OpeningDorC,ClosingBalance,ClosingDorC,CowOpeningThev,"
        "CowClosingThev,BuffOpeningThev,BuffClosingThev,OpeningUchal,ClosingUchal,CowOpeningLits,"
        "CowClosingLits,BuffOpeningLits ,BuffClosingLits)values("
        + std::to_string(company) + "," + no + ",'" + name + "'," + no + ",'maaL','masaUr','" + animal
        + "','raoK','','',101,'C',102,'D',103,104,105,106,107,108,109,110,111,112)");
}

void StatementsTest::AddDelivery(int company, const std::string& day, const std::string& shift, int number,
    int member, const std::string& name, const std::string& animal, double liters, double amount)
{
    Run("insert into "
        "MilkCollections(CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,MemberName,"
        "Animal,Liters,Fat,Rate,Amount,TranId,ActualCollectionTime) values("
        + std::to_string(company) + ",'" + day + "','" + shift + "'," + std::to_string(number) + ","
        + std::to_string(member) + ",'" + name + "','" + animal + "'," + Number(liters) + ",4.5,30,"
        + Number(amount) + ",0, '6.05')");
}

void StatementsTest::AddSale(int company, const std::string& day, const std::string& shift,
    const std::string& type, int number, int customer, const std::string& name, const std::string& animal,
    double liters, double amount)
{
    Run("insert into "
        "MilkSales(CompanyId,SalesDate,SalesTime,SalesType,SalesNo,CustomerNo,CustomerName,Animal,"
        "Liters,Fat,Rate,Amount,OurLiters,SNF,OurFat,OurRate,OurAmount) values("
        + std::to_string(company) + ",'" + day + "','" + shift + "','" + type + "'," + std::to_string(number)
        + "," + std::to_string(customer) + ",'" + name + "','" + animal + "'," + Number(liters) + ",4.2,48,"
        + Number(amount) + "," + Number(liters + 1) + ",8.5,4.3,40,99)");
}

void StatementsTest::AddPayment(int company, const std::string& from, const std::string& to,
    const std::string& paid, int number, int member, const std::string& name)
{
    Run("insert into MilkPayments(CompanyId,FromDate,ToDate,PaymentDate,TranId,MemberNo,MemberName,Animal,"
        "Liters,Amount,Kapat,NetAmount,PreviousBalance,CurrentBalance,TotalUchal,ThevKapatCow,ThevKapatBuff,"
        "LitersCow,LitersBuff,CowAmount,BuffAmount,FixedKapat,PreviousAdvance)values("
        + std::to_string(company) + ",'" + from + "','" + to + "','" + paid + "'," + std::to_string(number)
        + "," + std::to_string(member) + ",'" + name
        + "','daonhI',30.5,1000,150,850,500,400,100,20,30,20.5,10,600,400,5,500)");
}

void StatementsTest::AddHead(const std::string& table, int company, const std::string& day, int number,
    int member, const std::string& type, double amount)
{
    Run("insert into " + table + "(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount) values("
        + std::to_string(company) + ",'" + day + "'," + std::to_string(number) + "," + std::to_string(member)
        + ",'" + type + "'," + Number(amount) + ")");
}

void StatementsTest::AddVoucher(int company, const std::string& day, int number, const std::string& type,
    const std::string& debit, const std::string& credit, double amount, const std::string& bill,
    const std::string& narration)
{
    Run("Insert into TransactionsMaster(CompanyId,TranDate,TranId,TranType,DAccountName,CAccountName,Amount,"
        "BillNo,Narration) values("
        + std::to_string(company) + ",'" + day + "'," + std::to_string(number) + ",'" + type + "','" + debit
        + "','" + credit + "'," + Number(amount) + ",'" + bill + "','" + narration + "')");
}
