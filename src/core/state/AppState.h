#pragma once

#include "platform/database/Connection.h"

#include <QDate>
#include <QString>

#include <cstdint>

// The one open database of the process.
extern Connection gCn;

// What the whole process shares. Texts are held as read from the database, in its encoding.
struct AppState {
    QString gDbPassword;
    int gCompanyId = 1; // 0 when no company is selected
    QString gCompanyName;
    QString gAccountingYear; // begins with the four digits of the starting year
    QDate gFromDate;
    QDate gToDate;
    QString gPaymentDuration;
    QString gAutoFat; // "haoya" or "naahI"
    QString gAutoLiters; // "haoya" or "naahI"
    QString gWeighScale;
    QString gExtraRsPerLtr;
    QString gAdminLoggedIn;
    std::int16_t gAccessMaster = 0; // 0 is a closed menu
    std::int16_t gAccessAccountVoucher = 0;
    std::int16_t gAccessStockVoucher = 0;
    std::int16_t gAccessAccountReport = 0;
    std::int16_t gAccessStockReport = 0;
    std::int16_t gAccessStatisticalReport = 0;
    std::int16_t gAccessUtilities = 0;
    QDate gAppDate; // the working day; not valid until it was asked for
    // Who opens a shared screen: "N", "MC" or "PV"; "1" after a fat on a day that no rate chart is named for.
    QString gCallerTag = QStringLiteral("N");
    QString gReportMode;
    std::int32_t gSelectedVoucherNo = 0;
    QDate gSelectedVoucherDate;
    QString gBackupFolder;
};

extern AppState gAppState;

// What a connection to the books is opened with: the data source and the password of the state.
QString Logon();
