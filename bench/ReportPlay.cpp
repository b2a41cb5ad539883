#include "bench/ReportPlay.h"

#include "bench/CounterPlay.h"
#include "core/state/AppState.h"
#include "platform/report/LayoutCheck.h"
#include "platform/text/RunTimeError.h"

namespace {

constexpr const char* ListTemplate =
    R"xml(<report name="List" paper="A4" margin="10" font="Noto Sans Devanagari 10">
  <source name="c" table="MilkCollections" order="CollectionDate,CollectionTime,CollectionNo"/>
  <pageheader><text bold="1" align="center">{$society}</text></pageheader>
  <table source="c">
    <col w="14" head="क्र." align="right">{CollectionNo}</col>
    <col w="22" head="दिनांक">{CollectionDate}</col>
    <col w="*" head="सभासदाचे नाव">{MemberName}</col>
    <col w="16" head="दूध">{Animal}</col>
    <col w="22" head="लिटर" align="right" total="sum">{Liters|#####0.000}</col>
    <col w="14" head="फॅट" align="right" total="average(Fat by Liters)">{Fat|###0.0}</col>
    <col w="18" head="दर" align="right">{Rate|######0.00}</col>
    <col w="28" head="रक्कम" align="right" total="sum">{Amount|######0.00}</col>
    <total label="एकूण"/>
  </table>
  <pagefooter><text size="8" align="center">पान {#page} / {#pages}</text></pagefooter>
</report>)xml";

constexpr const char* LongTextTemplate =
    R"xml(<report name="LongText" paper="A4" margin="10" font="Noto Sans Devanagari 10">
  <source name="m" table="MembersListReport"/>
  <text>{MemberName}</text>
</report>)xml";

ReportTemplate Checked(const char* text, const char* file, Connection& books)
{
    TemplateFaults faults;
    ReportTemplate report =
        ReportTemplate::ReadText(QString::fromUtf8(text), QString::fromLatin1(file), faults);
    for (const TemplateFault& fault : CheckForLayout(report, books))
        faults.push_back(fault);
    if (!faults.empty())
        throw RunTimeError(-1, faults.front().Line());
    return report;
}

// A day in the form of a selection formula.
QString FormulaDay(const char* iso)
{
    return QDate::fromString(QString::fromLatin1(iso), Qt::ISODate)
        .toString(QStringLiteral("'DateTime ('yyyy,M,d',00, 00, 00)'"));
}

}

std::shared_ptr<Connection> OpenForReports()
{
    auto books = std::make_shared<Connection>();
    books->Open(Logon());
    return books;
}

std::unique_ptr<Report> BeginList(const std::shared_ptr<Connection>& books)
{
    const QString formula = QStringLiteral("{MilkCollections.CollectionDate} >= %1 and "
                                           "{MilkCollections.CollectionDate} <= %2")
                                .arg(FormulaDay(FirstListedDay), FormulaDay(LastListedDay));
    return std::make_unique<Report>(
        Checked(ListTemplate, "List.rpt", *books), books, ReadSelectionFormula(formula, *books));
}

void StageLongText(int megabytes)
{
    constexpr int Megabyte = 1024 * 1024;
    const QString words = QStringLiteral("dUQa saMklana ");
    gCn.RunScript(QStringLiteral("delete from MembersListReport;"
                                 "insert into MembersListReport(CompanyId,MemberName) "
                                 "values(1,replace(hex(zeroblob(%1)),'00','%2'))")
                      .arg(QString::number(megabytes * (Megabyte / words.size())), words));
}

std::unique_ptr<Report> BeginLongText(const std::shared_ptr<Connection>& books)
{
    return std::make_unique<Report>(Checked(LongTextTemplate, "LongText.rpt", *books), books, Selection());
}
