#include "CompanyTitle.h"

#include "Control.h"
#include "MdlAccounts.h"
#include "Recordset.h"

void ShowCompany(Label& lblCompanyTitle, Label& lblAcYear)
{
    const Recordset company(gCn, QStringLiteral("SELECT * FROM CompanySelected"));
    lblCompanyTitle.SetText(company.Eof() ? QString() : company[u"CompanyName"].Text());
    lblAcYear.SetFigure(company.Eof() ? QString() : company[u"AccountingYear"].Text());
}
