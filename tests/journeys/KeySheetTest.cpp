#include "tests/journeys/ProgramTest.h"

#include "core/menu/Keys.h"

#include <QFile>

namespace {

// The key sheet as it is printed: a table of every screen's keys.
QString TheSheet()
{
    QString sheet = "# The keys\n\nMade from the program's own list of keys; "
                    "`VETROLAN_RENEW=1 ctest --preset check -R KeySheet` writes it anew.\n";
    for (const Keys::Place& place : Keys::Sheet()) {
        sheet += QStringLiteral("\n## %1\n\n| key | what it does |\n|---|---|\n")
                     .arg(place.heading.Seen().trimmed());
        for (const KeyHint& hint : place.keys)
            sheet += QStringLiteral("| %1 | %2 |\n").arg(hint.key, hint.action.Seen().trimmed());
    }
    return sheet;
}

using KeySheetTest = ProgramTest;

}

TEST_F(KeySheetTest, ThePrintedSheetHoldsTheProgramsOwnListOfKeys)
{
    QFile file(QStringLiteral(KEY_SHEET));
    if (qEnvironmentVariableIsSet("VETROLAN_RENEW")) {
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(TheSheet().toUtf8());
        file.close();
    }
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll().toStdString(), TheSheet().toStdString())
        << "VETROLAN_RENEW=1 ctest --preset check -R KeySheet writes docs/keys.md anew";
}

TEST_F(KeySheetTest, EveryPlaceHasAHeadingAndKeysAndEveryKeyAnAction)
{
    for (const Keys::Place& place : Keys::Sheet()) {
        EXPECT_FALSE(place.heading.Seen().isEmpty() || place.keys.empty()) << qPrintable(place.name);
        for (const KeyHint& hint : place.keys)
            EXPECT_FALSE(hint.key.isEmpty() || hint.action.Seen().trimmed().isEmpty())
                << qPrintable(place.name);
    }
}
