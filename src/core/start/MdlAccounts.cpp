#include "core/start/MdlAccounts.h"

#include "core/messages/Messages.h"
#include "core/start/BooksKeeper.h"
#include "core/start/BooksOpening.h"
#include "core/start/OpeningScreens.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/shell/AppFolder.h"
#include "platform/text/Dates.h"
#include "platform/text/Numbers.h"
#include "platform/text/PasswordItems.h"
#include "platform/text/RunTimeError.h"

#include <QFile>

namespace {

struct AccessFlag {
    QStringView menuName;
    std::int16_t AppState::*flag = nullptr;
};

constexpr AccessFlag AccessFlags[] = {
    {u"Master", &AppState::gAccessMaster},
    {u"Account Voucher", &AppState::gAccessAccountVoucher},
    {u"Stock Voucher", &AppState::gAccessStockVoucher},
    {u"Account Report", &AppState::gAccessAccountReport},
    {u"Stock Report", &AppState::gAccessStockReport},
    {u"Statistical Report", &AppState::gAccessStatisticalReport},
    {u"Utilities", &AppState::gAccessUtilities},
};

void LoadCompany()
{
    const Recordset company(gCn, QStringLiteral("SELECT * FROM CompanySelected"));
    if (company.Eof()) {
        gAppState.gCompanyId = 0;
        return;
    }
    gAppState.gCompanyId = static_cast<int>(company[u"CompanyId"].Number());
    gAppState.gCompanyName = company[u"CompanyName"].Text();
    gAppState.gAccountingYear = company[u"AccountingYear"].Text();
    gAppState.gFromDate = company[u"FromDate"].Date();
    gAppState.gToDate = company[u"ToDate"].Date();
}

void LoadSettings()
{
    const Recordset settings(gCn, Sql(u"select * from AutoSettings where CompanyId=", gAppState.gCompanyId));
    if (settings.Eof())
        return;
    gAppState.gPaymentDuration = settings[u"PaymentDuration"].Text().trimmed();
    gAppState.gAutoFat = settings[u"AutoFat"].Text().trimmed();
    gAppState.gAutoLiters = settings[u"AutoLiters"].Text().trimmed();
    gAppState.gWeighScale = settings[u"WeighScale"].Text().trimmed();
    gAppState.gExtraRsPerLtr = QStringLiteral("0");
}

// Returns false if no right is on record at all.
bool LoadAccessFlags()
{
    gAppState.gAdminLoggedIn = QStringLiteral("NO");
    Recordset rights(gCn, QStringLiteral("SELECT * FROM MenuAccessTable"));
    if (rights.Eof()) {
        ShowPlain(QStringLiteral("Contact Service provider for Technical Support"));
        return false;
    }
    for (; !rights.Eof(); rights.MoveNext())
        for (const AccessFlag& access : AccessFlags)
            if (rights[u"MenuName"].Text() == access.menuName)
                gAppState.*access.flag = ToInt16(rights[u"AccessYesNo"].Number());
    return true;
}

}

void AppMain()
{
    if (!LoadAppState())
        return;
    const BooksKeeper keeper;
    ShowOpeningScreens();
}

bool LoadAppState()
{
    gAppState = AppState();
    ReadPassword();
    OpenBooks();
    LoadCompany();
    gAppState.gCallerTag = QStringLiteral("N");
    LoadSettings();
    return LoadAccessFlags();
}

void ReadPassword()
{
    gAppState.gDbPassword.clear();
    QFile file(LocalAppFile(u"PWD.TXT"));
    if (!file.exists())
        throw RunTimeError(RunTimeError::FileNotFound,
            QStringLiteral(
                "पासवर्डची फाइल सापडली नाही. ती परत ठेवा आणि पुन्हा सुरू करा.\nFile not found: PWD.TXT"));
    if (!file.open(QIODevice::ReadOnly))
        throw RunTimeError(RunTimeError::FileAccess,
            QStringLiteral("पासवर्डची फाइल वाचता येत नाही.\nPWD.TXT: ") + file.errorString());
    gAppState.gDbPassword = PasswordOfFile(file);
}
