#pragma once

#include "Connection.h"
#include "Sql.h"

#include <QDate>
#include <QString>

#include <cstdint>

class DateField;
class NameCombo;

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

// Brings the system up: password, connection, state, and the opening screens. Returns when the last of
// them has closed. A failure on the way is a run-time error.
void AppMain();

// The first steps of AppMain, without a screen. Returns false where the menu's rights are missing: the
// message has been shown, and the process is to end.
bool LoadAppState();

// Fills gDbPassword from PWD.TXT.
void ReadPassword();

// Fills a combo's list with a column of "select * from TABLE TAIL". The combo holds the names in the order of
// the query, and shows them in that of the alphabet, those of members and customers with their numbers.
void FillCombo(NameCombo& combo, QStringView tableName, QStringView fieldName, const SqlText& tail);

// Sets flag to 0 if the field holds a date; else to 1, empties the field and sends the focus back to it.
void CheckDateField(DateField& field, int& flag);

// Empties the mask.
void ClearDateField(DateField& field);

// Selects the whole text of whatever field holds the focus, after the running event.
void SelectFieldText();
