#include "society/CompanyTitle.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/forms/Control.h"

void ShowCompany(Label& lblCompanyTitle, Label& lblAcYear)
{
    const Recordset company(gCn, QStringLiteral("SELECT * FROM CompanySelected"));
    lblCompanyTitle.SetText(company.Eof() ? QString() : company[u"CompanyName"].Text());
    lblAcYear.SetFigure(company.Eof() ? QString() : company[u"AccountingYear"].Text());
}
