#include "tests/endurance/NumberedSaves.h"

#include "platform/database/DataSource.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "platform/text/RunTimeError.h"
#include "tests/support/BooksFile.h"

#include <array>
#include <vector>

namespace {

// A key as the engine takes it without stretching, which would cost a quarter of a second at each opening.
const QString RawKey = QStringLiteral("x'00112233445566778899aabbccddeeff0123456789abcdeffedcba9876543210'");

constexpr int Lanes = 40;

// Every twentieth save fills many pages.
int PartsOf(int number)
{
    return number % 20 == 0 ? 70 : 1 + number % 5;
}

QString FillingOf(int number, int part)
{
    const int length = 20 + (number * 37 + part * 101) % 380;
    QString filling = QString::number(number) + u'.' + QString::number(part) + u' ';
    while (filling.size() < length)
        filling += QChar(static_cast<char16_t>(u'a' + (number + part + filling.size()) % 26));
    return filling;
}

void Insert(Connection& books, int number, int parts)
{
    for (int part = 1; part <= parts; ++part)
        books.Execute(Sql(u"insert into Entries(EntryNo,Part,Filling) values(", number, u",", part, u",'",
            FillingOf(number, part), u"')"));
}

std::string FaultAt(int number, const char* what)
{
    return "save " + std::to_string(number) + ": " + what;
}

// What the totals must be when exactly the saves up to this one are there.
std::array<int, Lanes> TotalsOf(int saves)
{
    std::array<int, Lanes> totals{};
    for (int number = 1; number <= saves; ++number)
        totals[number % Lanes] += number;
    return totals;
}

std::string FaultInEntries(Connection& books, int& saves)
{
    int part = 0;
    for (Recordset rows(
             books, QStringLiteral("select EntryNo,Part,Filling from Entries order by EntryNo,Part"));
         !rows.Eof(); rows.MoveNext()) {
        const int number = static_cast<int>(rows.At(0).Number());
        if (number != saves) {
            if (saves > 0 && part != PartsOf(saves))
                return FaultAt(saves, "not all of its rows are there");
            if (number != saves + 1)
                return FaultAt(number, "it follows a missing one");
            saves = number;
            part = 0;
        }
        if (rows.At(1).Number() != ++part || part > PartsOf(number))
            return FaultAt(number, "a row is missing or twice there");
        if (rows.At(2).Text() != FillingOf(number, part))
            return FaultAt(number, "a text has changed");
    }
    return saves > 0 && part != PartsOf(saves) ? FaultAt(saves, "not all of its rows are there")
                                               : std::string();
}

std::string FaultInTotals(Connection& books, int saves)
{
    const std::array<int, Lanes> totals = TotalsOf(saves);
    int lane = 0;
    for (Recordset rows(books, QStringLiteral("select Lane,Total from Totals order by Lane")); !rows.Eof();
         rows.MoveNext()) {
        if (lane >= Lanes || rows.At(0).Number() != lane || rows.At(1).Number() != totals[lane])
            return "the total of lane " + std::to_string(lane) + " doesn't fit " + std::to_string(saves)
                + " saves";
        ++lane;
    }
    return lane == Lanes ? std::string() : "a total is missing";
}

}

void NumberedSaves::MakeBooks(const QString& file)
{
    Connection books;
    books.Create(file, RawKey);
    books.RunScript(QStringLiteral("create table Entries(EntryNo INTEGER, Part INTEGER, Filling TEXT);"
                                   "create index EntriesByNo on Entries(EntryNo, Part);"
                                   "create table Totals(Lane INTEGER, Total INTEGER)"));
    Transaction making(books);
    for (int lane = 0; lane < Lanes; ++lane)
        books.Execute(Sql(u"insert into Totals(Lane,Total) values(", lane, u",0)"));
    making.Commit();
}

QStringList NumberedSaves::Open(Connection& books, const QString& file, const OpeningPlan& plan)
{
    DataSource::Register(QStringLiteral("NumberedSaves"), file);
    return books.Open(QStringLiteral("dsn=NumberedSaves;pwd=") + RawKey, plan);
}

void NumberedSaves::Save(Connection& books, int number)
{
    Transaction saving(books);
    Insert(books, number, PartsOf(number));
    books.Execute(Sql(u"update Totals set Total=Total+", number, u" where Lane=", number % Lanes));
    saving.Commit();
}

void NumberedSaves::GiveUp(Connection& books)
{
    const Transaction neverCommitted(books);
    Insert(books, 0, 90);
}

NumberedSaves::Found NumberedSaves::Read(Connection& books)
{
    Found found;
    try {
        found.fault = FaultInEntries(books, found.saves);
        if (found.fault.empty())
            found.fault = FaultInTotals(books, found.saves);
    } catch (const RunTimeError& error) {
        found.fault = error.what();
    }
    if (const std::string check = BooksFile::IntegrityOf(books.Handle());
        found.fault.empty() && check != "ok")
        found.fault = check;
    return found;
}
