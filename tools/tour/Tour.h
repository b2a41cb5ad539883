#pragma once

#include "tools/clerk/Clerk.h"

#include <QString>
#include <QStringList>

// A walk through the program by keys, and by the mouse where a screen gives no key: steps leave pictures, and
// what they left in the books is checked and written down.
class Tour {
public:
    // `folder` takes the pictures and the summary; it is made if it isn't there.
    Tour(Clerk& clerk, const QString& folder);

    // Types keys and saves a numbered picture of what stands then.
    void Step(const QString& name, const QString& keys);

    // Types keys without a picture.
    void Type(const QString& keys) { m_clerk.Type(keys); }

    // Writes down a value of the walk and whether it is the expected one.
    void Check(const QString& what, const QString& found, const QString& expected);

    // Writes down the rows of a query, a line each, and whether they are the expected ones.
    void CheckRows(const QString& what, const QString& query, const QStringList& expected);

    // Writes down what a field or a label of the screen on top reads, and whether it is expected.
    void CheckReads(const QString& control, const QString& expected);

    // Writes down the values of a field in a list of the screen on top, from the top down with blanks between
    // them, and whether they are the expected ones.
    void CheckColumn(const QString& list, QStringView field, const QString& expected);

    // Takes a picture of the report that is shown, looks for a text in it (as the system spells it) that
    // stands there so many times, saves it as a PDF by keys under the picture's name, checks the file, and
    // leaves the report.
    void KeepReport(const QString& name, const QString& text, int times);

    // Writes down what can't be played on this machine.
    void LeaveOut(const QString& what) { m_summary.append(QStringLiteral("left out ") + what); }

    // Saves summary.txt; false if a check went wrong or a file couldn't be written.
    bool Finish();

    Clerk& TheClerk() { return m_clerk; }

private:
    Clerk& m_clerk;
    QString NextPicture(const QString& name);
    void NotePicture(const QString& file);
    void CheckFile(const QString& what, const QString& path);

    QString m_folder; // its whole path
    QStringList m_summary;
    int m_pictures = 0;
    int m_wrong = 0;
};

// A text of the system as keys to type, for SendKeys and the clerk.
QString KeysOf(const QString& stored);

// The same for a text as it is seen.
QString KeysOf(const char16_t* seen);

inline const QString Enter = QStringLiteral("{ENTER}");
inline const QString Escape = QStringLiteral("{ESC}");

// The keys from the number of a delivery on: member, litres, fat, and over the rate to the button.
QString DeliveryKeys(const char* member, const char* liters, const char* fat);

// The parts of the tour, in their order. Each begins where the one before it ends.

// From the title to a shift of deliveries, at the counter.
void PlayMorning(Tour& tour);

// The settings and the slips, the member's frame of the counter; back to the menu.
void PlayPaper(Tour& tour);

// From the menu: the gate, absent members, the back office and a reprint; back to the list of the reports.
void PlayBackOffice(Tour& tour);

// From the list of the reports through four of them and back.
void PlayReports(Tour& tour);

// From the menu to a delivery that a scale fills; ends at the counter.
void PlayScale(Tour& tour);

// From the counter out of the program.
void PlayLeaving(Tour& tour);
