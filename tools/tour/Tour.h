#pragma once

#include "tools/clerk/Clerk.h"

#include <QString>
#include <QStringList>

// Plays the program by keys, and by the mouse where a screen has no key. Each step saves a picture, and what
// it wrote to the database is checked and noted in a summary.
class Tour {
public:
    // `folder` is for the pictures and the summary; it is made if it is missing.
    Tour(Clerk& clerk, const QString& folder);

    // Types keys and saves a numbered picture of the result.
    void Step(const QString& name, const QString& keys);

    // Opens an entry of the list of the menu that is open, by its place, and saves a picture if it has a
    // name.
    void OpenEntry(const QString& name, int place);

    // Types keys without a picture.
    void Type(const QString& keys) { m_clerk.Type(keys); }

    // Notes a value and whether it is the expected one.
    void Check(const QString& what, const QString& found, const QString& expected);

    // Notes the rows of a query, one a line, and whether they are the expected ones.
    void CheckRows(const QString& what, const QString& query, const QStringList& expected);

    // Notes the text of a field or label of the screen on top, and whether it is the expected one.
    void CheckReads(const QString& control, const QString& expected);

    // Notes the values of a field in a list of the screen on top, from top to bottom with blanks between
    // them, and whether they are the expected ones.
    void CheckColumn(const QString& list, QStringView field, const QString& expected);

    // Handles the report that is shown: takes a picture, searches for a stored text and checks how often it
    // is found, saves a PDF named like the picture, checks that file, and closes the report.
    void KeepReport(const QString& name, const QString& text, int times);

    // Notes what can't be played on this machine.
    void LeaveOut(const QString& what) { m_summary.append(QStringLiteral("left out ") + what); }

    // Saves summary.txt. Returns false if a check failed or a file couldn't be written.
    bool Finish();

    Clerk& TheClerk() { return m_clerk; }

private:
    Clerk& m_clerk;
    QString NextPicture(const QString& name);
    void NotePicture(const QString& file);
    void CheckFile(const QString& what, const QString& path);

    QString m_folder; // its absolute path
    QStringList m_summary;
    int m_pictures = 0;
    int m_wrong = 0;
};

// A stored text as keys, in the form that SendKeys takes.
QString KeysOf(const QString& stored);

// The same for a text in Devanagari.
QString KeysOf(const char16_t* seen);

// The federation that buys the society's milk, as it is stored.
QString Federation();

inline const QString Enter = QStringLiteral("{ENTER}");
inline const QString Escape = QStringLiteral("{ESC}");
inline const QString ShowReport = QStringLiteral("%i"); // the button that shows a report

// The keys of a delivery from the member number on: member, litres, fat, and past the rate to the save
// button.
QString DeliveryKeys(const char* member, const char* liters, const char* fat);

// The parts of the tour, in order. Each begins on the screen where the one before ends.

// From the title screen to a shift of deliveries, at the counter.
void PlayMorning(Tour& tour);

// The settings and the slips, and the member's frame of the counter; ends at the menu.
void PlayPaper(Tour& tour);

// From the menu through the gate, absent members, the back office and a reprint; ends at the list of reports.
void PlayBackOffice(Tour& tour);

// Four reports from the list of reports, and back to it.
void PlayReports(Tour& tour);

// A period of the money, from the list of reports on: a chart, advances, a receipt, installments, and the
// payments of all members against the reckoning; ends on the list of transactions.
void PlayMoney(Tour& tour);

// Slips, registers, statement and balances of that period; ends at the list of reports.
void PlayMoneyPaper(Tour& tour);

// From the list of reports: customers, and a shift's sales with the society's own measure; ends on the list
// of transactions.
void PlaySales(Tour& tour);

// Gain and loss, lists of milk, comparison, cash book, bank book and the bonus of a year, against sums of the
// raw rows; ends on the list of tools.
void PlayBooks(Tour& tour);

// A backup and a restore, from the list of tools; ends on the list of reports.
void PlayBackup(Tour& tour);

// From the menu to a delivery that a scale fills; ends at the counter.
void PlayScale(Tour& tour);

// From the counter out of the program.
void PlayLeaving(Tour& tour);
