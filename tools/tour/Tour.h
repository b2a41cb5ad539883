#pragma once

#include "Clerk.h"

#include <QString>
#include <QStringList>

// A walk through the program by keys alone: each step is a picture, and what the steps left in the books is
// checked and written down.
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

    // Saves summary.txt; false if a check went wrong or a file couldn't be written.
    bool Finish();

    Clerk& TheClerk() { return m_clerk; }

private:
    Clerk& m_clerk;
    QString m_folder;
    QStringList m_summary;
    int m_pictures = 0;
    int m_wrong = 0;
};

// A text of the system as keys to type, for SendKeys and the clerk.
QString KeysOf(const QString& stored);

// The morning that the tour plays.
void PlayMorning(Tour& tour);
