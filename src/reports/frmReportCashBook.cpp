#include "reports/frmReportCashBook.h"

#include "core/messages/Messages.h"
#include "core/preview/ReportSubject.h"
#include "core/state/AppState.h"
#include "reports/Ledger.h"
#include "reports/SalesComparison.h"
#include "society/FieldRoutines.h"
#include "society/Words.h"

Keys::Places frmReportCashBook::KeyPlaces()
{
    using namespace KeyHints;
    return {
        {QStringLiteral("frmReportCashBook"), Plain(u"कॅश बुक, बॅन्क बुक, विक्रीची तुलना"),
            {Next, Back, Leave, ListOfNames, PrintReport, ExitButton}},
    };
}

frmReportCashBook::Mode frmReportCashBook::ModeOf(QStringView word)
{
    if (word == u"B")
        return Mode::B;
    return word == u"V" ? Mode::V : Mode::C;
}

// The menu gives them the same titles.
Caption frmReportCashBook::TitleOf(Mode mode)
{
    switch (mode) {
    case Mode::C:
        return Shivaji(u"  k^Sa bauk");
    case Mode::B:
        return Shivaji(u"  ba^nk bauk");
    case Mode::V:
        break;
    }
    return Shivaji(u"  dUQa ivaËIcaI tulanaa%mak AakDovaarI");
}

// There is one cash account, so none is chosen.
Keys::Places frmReportCashBook::KeysOf(Mode mode)
{
    Keys::Places places = KeyPlaces();
    if (mode == Mode::C)
        std::erase_if(
            places.front().keys, [](const KeyHint& hint) { return hint.key == KeyHints::ListOfNames.key; });
    return places;
}

frmReportCashBook::frmReportCashBook() : frmReportCashBook(ModeOf(gAppState.gReportMode)) { }

frmReportCashBook::frmReportCashBook(Mode mode) : SocietyScreen(KeysOf(mode), TitleOf(mode)), m_mode(mode)
{
    ComboAccountName.OpenOnFocus();
    ComboAccountName.SetVisible(mode != Mode::C);
    txtAccountName.SetEnabled(false);
    txtAccountName.SetVisible(mode == Mode::C);
    CRCashBook.SetTitle(QStringLiteral("Comparison Statement"));
    cmdExit.SetCancels(true); // by the mouse the screen is left whatever stands in the dates
    LayOut();
}

void frmReportCashBook::Load()
{
    const SqlText ofCompany = Sql(u"WHERE CompanyId=", gAppState.gCompanyId);
    switch (m_mode) {
    case Mode::C:
        return txtAccountName.SetText(Word::Cash.toString());
    case Mode::B:
        return FillCombo(ComboAccountName, u"AccountsMaster", u"AccountName",
            Sql(ofCompany, u" and Trim(GroupCode)= 'Bank' order by AccountName"));
    case Mode::V:
        return FillCombo(ComboAccountName, u"AccountsMaster", u"AccountName",
            Sql(ofCompany,
                u" and Trim(GroupCode)= 'Debtors' and trim(Category)='saMGa' order by AccountName"));
    }
}

void frmReportCashBook::ComboAccountName_LostFocus()
{
    ComboAccountName.TakeMatch();
    txtAccountName.SetText(ComboAccountName.Text());
}

QString frmReportCashBook::Account() const
{
    return txtAccountName.Text().trimmed();
}

bool frmReportCashBook::Stage()
{
    return m_mode == Mode::V ? StageComparison() : StageLedger();
}

bool frmReportCashBook::StageLedger()
{
    if (Ledger({Account(), Days.From(), Days.To()}).Stage(Staging))
        return true;
    if (m_mode == Mode::C)
        ShowPlain(
            QStringLiteral("Cash Account has No Opening Balance & Transactions in the Given Date Range"),
            QStringLiteral(" Cash Book"));
    else
        ShowPlain(QStringLiteral("Selected Bank Account has No Opening Balance & Transactions in the Given "
                                 "Date Range"),
            QStringLiteral(" Bank Book"));
    return false;
}

bool frmReportCashBook::StageComparison()
{
    SalesComparison::Stage(Account(), Days.From(), Days.To());
    return CRCashBook.CountRecords(SalesComparison::Staged()) > 0;
}

QStringView frmReportCashBook::Template() const
{
    switch (m_mode) {
    case Mode::C:
        return u"CashBook.rpt";
    case Mode::B:
        return u"BankBook.rpt";
    case Mode::V:
        break;
    }
    return u"MilkSalesComparisonReport.rpt";
}

void frmReportCashBook::cmdPrint_Click()
{
    if (!Days.Hold() || !Stage())
        return;
    CRCashBook.SetTemplate(Template());
    CRCashBook.SetSubject(ReportSubject({Account()}, Days.From(), Days.To()));
    CRCashBook.Print();
}
