#include "reports/MilkStatement.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "platform/text/Dates.h"
#include "reports/ReportRun.h"
#include "society/Queries.h"
#include "society/Words.h"

#include <QSet>

#include <algorithm>
#include <optional>
#include <utility>

namespace {

constexpr QStringView Animals[] = {Word::Cow, Word::Buffalo};

// Where deliveries and sales are kept, and what the same columns are called there.
struct Books {
    QStringView table, copy, date, time, number, name;
    bool holdsSnf = false;
};

constexpr Books Collections{u"MilkCollections", u"MilkCollectionsTemp", u"CollectionDate", u"CollectionTime",
    u"CollectionNo", u"MemberName", false};
constexpr Books Sales{
    u"MilkSales", u"MilkSalesTemp", u"SalesDate", u"SalesTime", u"SalesNo", u"CustomerName", true};

struct Person {
    double memberNo = 0;
    QString name;
};

// Half of a line: the delivery or sale of one shift, if there was one.
struct Entry {
    bool isThere = false;
    double number = 0;
    double snf = 0;
    double liters = 0;
    double fat = 0;
    double rate = 0;
    double amount = 0;
};

Entry ReadEntry(const Recordset& row, const Books& books)
{
    Entry entry;
    entry.isThere = true;
    entry.number = row[books.number].Number();
    if (books.holdsSnf)
        entry.snf = row[u"SNF"].Number();
    entry.liters = row[u"Liters"].Number();
    entry.fat = row[u"Fat"].Number();
    entry.rate = row[u"Rate"].Number();
    entry.amount = row[u"Amount"].Number();
    return entry;
}

// The lines of one animal on one day.
class DayLines {
public:
    DayLines(const Books& books, const Person& person, const QDate& day, QStringView animal)
        : m_books(books)
        , m_person(person)
        , m_day(day)
        , m_animal(animal)
    {
    }

    void Write(bool repeats)
    {
        Entry morning = Find(Word::Morning, {});
        Entry evening = Find(Word::Evening, {});
        if (!morning.isThere && !evening.isThere)
            return;
        WriteLine(morning, evening, true);
        double lastMorning = morning.number;
        double lastEvening = evening.number;
        while (repeats) {
            morning = Find(Word::Morning, lastMorning);
            evening = Find(Word::Evening, lastEvening);
            if (!morning.isThere && !evening.isThere)
                return;
            WriteLine(morning, evening, false);
            lastMorning = std::max(lastMorning, morning.number);
            lastEvening = std::max(lastEvening, evening.number);
        }
    }

private:
    // The first row of a shift, or the first one after a number.
    Entry Find(QStringView shift, std::optional<double> after) const
    {
        const Recordset row(gCn,
            Sql(u"select * from ", m_books.copy, u" where CompanyId=", gAppState.gCompanyId, u" and ",
                m_books.date, u"=", SqlDay(m_day), u" and Animal=", Quoted(m_animal), u" and ", m_books.time,
                u"=", Quoted(shift), after ? Sql(u" and ", m_books.number, u">", *after) : SqlText(),
                u" order by ", m_books.number));
        const Entry found = row.Eof() ? Entry() : ReadEntry(row, m_books);
        // The condition has at most fifteen digits of a number, so a longer one could be found again.
        return after && found.number <= *after ? Entry() : found;
    }

    void WriteLine(const Entry& morning, const Entry& evening, bool withSnf) const
    {
        gCn.Execute(Sql(u"insert into MilkCollectionsME(CompanyId,CollectionDate,MemberNo,MemberName,Animal,"
                        u"LitersM,FatM,RateM,AmountM,LitersE,FatE,RateE,AmountE",
            withSnf ? u",SNFM,SNFE" : u"", u") values(",
            Values(gAppState.gCompanyId, m_day, m_person.memberNo, m_person.name, m_animal, morning.liters,
                morning.fat, morning.rate, morning.amount, evening.liters, evening.fat, evening.rate,
                evening.amount),
            withSnf ? Sql(u",", Values(morning.snf, evening.snf)) : SqlText(), u")"));
    }

    const Books& m_books;
    const Person& m_person;
    QDate m_day;
    QStringView m_animal;
};

bool Repeats()
{
    return Setting(u"RepeatCollection") == Word::Yes;
}

// A day without a row in the copy has no line, so there is no need to ask for it.
QSet<QDate> DaysOf(const Books& books)
{
    QSet<QDate> days;
    for (Recordset row(gCn, Sql(u"select * from ", books.copy)); !row.Eof(); row.MoveNext())
        days.insert(row[books.date].Date());
    return days;
}

void WriteLines(const Books& books, const Person& person, const QDate& from, const QDate& to, bool repeats)
{
    const QSet<QDate> days = DaysOf(books);
    for (QDate day = from; day <= to; day = day.addDays(1)) {
        if (!days.contains(day))
            continue;
        for (const QStringView animal : Animals)
            DayLines(books, person, day, animal).Write(repeats);
    }
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

void FillCopy(const Books& books, const MilkStatement::Scope& wanted)
{
    gCn.Execute(Sql(u"insert into ", books.copy, u" select * from ", books.table, u" where CompanyId=",
        gAppState.gCompanyId, u" and ", books.date, u">=", SqlDay(wanted.from), u" and ", books.date, u"<=",
        SqlDay(wanted.to), u" and trim(", books.name, u")=", Quoted(wanted.name)));
}

}

void MilkStatement::Stage(const Scope& wanted)
{
    const bool isSales = wanted.kind == Kind::Sales;
    const Books& books = isSales ? Sales : Collections;
    LookUpCompany();
    const Person person{isSales ? 0 : NumberOfMember(wanted.name), wanted.name};
    const bool repeats = Repeats();

    Transaction staging(gCn);
    for (const QStringView statement : {u"delete * from MilkCollectionsTemp", u"delete * from MilkSalesTemp",
             u"delete * from MilkCollectionsME", u"Delete * From ReportDates"})
        gCn.Execute(statement);
    FillCopy(books, wanted);
    WriteLines(books, person, wanted.from, wanted.to, repeats);
    ReportRun::StageDates(DateText(wanted.from), DateText(wanted.to));
    gCn.Execute(u"DELETE * FROM MilkCollectionsME WHERE CompanyId=0");
    staging.Commit();
}

void MilkStatement::StageCopy()
{
    Person person;
    {
        const Recordset row(gCn, u"select * from MilkCollectionsTemp");
        if (!row.Eof())
            person = {row[u"MemberNo"].Number(), row[u"MemberName"].Text()};
    }
    const QSet<QDate> days = DaysOf(Collections);
    const bool repeats = Repeats();

    Transaction staging(gCn);
    gCn.Execute(u"delete * from MilkCollectionsME");
    if (!days.isEmpty()) {
        const auto [first, last] = std::minmax_element(days.begin(), days.end());
        WriteLines(Collections, person, *first, *last, repeats);
    }
    gCn.Execute(u"DELETE * FROM MilkCollectionsME WHERE CompanyId=0");
    staging.Commit();
}
