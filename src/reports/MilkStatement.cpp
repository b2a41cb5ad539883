#include "reports/MilkStatement.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "platform/text/Dates.h"
#include "reports/DayLines.h"
#include "reports/ReportRun.h"
#include "society/Words.h"

namespace {

// A day without milk has no line.
void WriteLines(const MilkBooks& books, const DayLines::Person& person)
{
    const DayLines lines(books, person, {ReportRun::RepeatsCollections(), false, true});
    for (const QDate& day : lines.Days())
        for (const QStringView animal : Animals)
            lines.Write(day, animal);
}

// The system looks the company up; nothing is used, since the template reads it for itself.
void LookUpCompany()
{
    const Recordset company(gCn, Sql(u"SELECT * FROM CompanyMaster where CompanyId=", gAppState.gCompanyId));
}

double NumberOfMember(const QString& name)
{
    const Recordset member(gCn,
        Sql(u"select * from MembersMaster where CompanyId=", gAppState.gCompanyId, u" and trim(MemberName)=",
            Quoted(name)));
    return member.Eof() ? 0 : member[u"MemberNo"].Number();
}

void FillCopy(const MilkBooks& books, const MilkStatement::Scope& wanted)
{
    gCn.Execute(
        Sql(books.CopyOf(wanted.from, wanted.to), u" and trim(", books.name, u")=", Quoted(wanted.name)));
}

}

void MilkStatement::Stage(const Scope& wanted)
{
    const bool isSales = wanted.kind == Kind::Sales;
    const MilkBooks& books = isSales ? SalesBooks : CollectionBooks;
    LookUpCompany();
    const DayLines::Person person{isSales ? 0 : NumberOfMember(wanted.name), wanted.name};

    Transaction staging(gCn);
    ReportRun::Empty({u"MilkCollectionsTemp", u"MilkSalesTemp", u"MilkCollectionsME", u"ReportDates"});
    FillCopy(books, wanted);
    WriteLines(books, person);
    ReportRun::StageDates(DateText(wanted.from), DateText(wanted.to));
    gCn.Execute(u"DELETE * FROM MilkCollectionsME WHERE CompanyId=0");
    staging.Commit();
}

void MilkStatement::StageCopy()
{
    DayLines::Person person;
    {
        const Recordset row(gCn, u"select * from MilkCollectionsTemp");
        if (!row.Eof())
            person = {row[u"MemberNo"].Number(), row[u"MemberName"].Text()};
    }

    Transaction staging(gCn);
    ReportRun::Empty({u"MilkCollectionsME"});
    WriteLines(CollectionBooks, person);
    gCn.Execute(u"DELETE * FROM MilkCollectionsME WHERE CompanyId=0");
    staging.Commit();
}
