#include "reports/frmReportMembersList.h"

#include "core/preview/ReportSubject.h"
#include "core/preview/TemplateReport.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "reports/ReportRun.h"
#include "society/FieldRoutines.h"
#include "society/Names.h"
#include "society/Words.h"

namespace {

const QString AllMembers = QStringLiteral("select * from MembersMaster");

void StageMember(const Recordset& member, QStringView crieteria, const QString& crieteriaValue)
{
    gCn.Execute(
        Sql(u"insert into MembersListReport(CompanyId,Crieteria,CrieteriaValue,MemberNo,MemberName,City,"
            u"Animal) values(",
            Values(gAppState.gCompanyId, crieteria, crieteriaValue, member[u"MemberNo"].Number(),
                member[u"MemberName"].Text(), member[u"City"].Text(), member[u"Animal"].Text()),
            u")"));
}

}

Keys::Places frmReportMembersList::KeyPlaces()
{
    using namespace KeyHints;
    return {
        {QStringLiteral("frmReportMembersList"), Shivaji(u"saBaasadaMcaI yaadI"),
            {Next, Back, Leave, {QStringLiteral("Alt+1"), Shivaji(u"pUNa- yaadI")},
                {QStringLiteral("Alt+2"), Shivaji(u"ivaBaaga")}, {QStringLiteral("Alt+3"), Shivaji(u"dUQa")},
                ListOfNames, PrintReport, ExitButton}},
    };
}

frmReportMembersList::frmReportMembersList() : SocietyScreen(KeyPlaces(), Shivaji(u" maombar yaadI"))
{
    ComboArea.OpenOnFocus();
    ComboArea.SetGuide(Plain(u"रिकामे ठेवल्यास सर्व विभाग"));
    cmdExit.SetCancels(true); // by the mouse the screen is left whatever stands in the area
    LayOut();
}

void frmReportMembersList::Load()
{
    OptionList.Choose();
    OptionCow.Choose();
    FillCombo(ComboArea, u"CityMaster", u"CityName",
        Sql(u"where CompanyId=", gAppState.gCompanyId, u" ORDER BY CityName"));
    OpenWhatIsChosen();
}

void frmReportMembersList::Option_Click()
{
    OpenWhatIsChosen();
}

// Only the fields of the chosen list are open.
void frmReportMembersList::OpenWhatIsChosen()
{
    ComboArea.SetEnabled(OptionArea.Chosen());
    for (OptionButton* option : {&OptionCow, &OptionBuff, &OptionBoth})
        option->SetEnabled(OptionMilk.Chosen());
}

void frmReportMembersList::ComboArea_LostFocus()
{
    ComboArea.TakeMatch();
}

void frmReportMembersList::StageAll()
{
    for (Recordset member(gCn, AllMembers); !member.Eof(); member.MoveNext())
        StageMember(member, u"Complete", {});
}

// Without an area the list has all members, each under their own.
void frmReportMembersList::StageArea()
{
    const QString area = ComboArea.Text();
    if (area.isEmpty()) {
        for (Recordset member(gCn, AllMembers); !member.Eof(); member.MoveNext())
            StageMember(member, u"Area", member[u"City"].Text());
        return;
    }
    for (const QString& city : SpellingsOf(u"MembersMaster", u"City", area)) {
        for (Recordset member(gCn, Sql(AllMembers, u" where City=", Quoted(city))); !member.Eof();
             member.MoveNext())
            StageMember(member, u"Area", area);
    }
}

void frmReportMembersList::StageMilk()
{
    const QString animal = ChosenAnimal();
    for (Recordset member(gCn, AllMembers); !member.Eof(); member.MoveNext()) {
        if (member[u"Animal"].Text() == animal)
            StageMember(member, u"Milk", animal);
    }
}

QString frmReportMembersList::ChosenAnimal() const
{
    if (OptionCow.Chosen())
        return Word::Cow.toString();
    return OptionBuff.Chosen() ? Word::Buffalo.toString() : Word::Both.toString();
}

QString frmReportMembersList::Subject() const
{
    if (OptionArea.Chosen())
        return ReportSubject({ComboArea.Text()});
    return ReportSubject(OptionMilk.Chosen() ? QStringList(ChosenAnimal()) : QStringList());
}

void frmReportMembersList::cmdReport_Click()
{
    Transaction staging(gCn);
    gCn.Execute(u"delete * from MembersListReport");
    if (OptionList.Chosen())
        StageAll();
    else if (OptionArea.Chosen())
        StageArea();
    else
        StageMilk();
    ReportRun::Tidy(u"MembersListReport");
    staging.Commit();
    TemplateReport report(u"ReportListMembers.rpt");
    report.SetSubject(Subject());
    report.Print();
}
