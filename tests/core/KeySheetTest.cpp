#include "Keys.h"

#include <gtest/gtest.h>

#include <QFile>

namespace {

// The key sheet as it is printed: a table of every screen's keys.
QString TheSheet()
{
    QString sheet = QStringLiteral("# The keys\n\nMade from the program's own list of keys; "
                                   "`VETROLAN_RENEW=1 ctest --preset check -R KeySheet` writes it anew.\n");
    for (const Keys::Sheet& screen : Keys::Sheets()) {
        sheet += QStringLiteral("\n## %1\n\n| key | what it does |\n|---|---|\n")
                     .arg(screen.name.Seen().trimmed());
        for (const KeyHint& hint : Keys::Of(screen.screen))
            sheet += QStringLiteral("| %1 | %2 |\n").arg(hint.key, hint.action.Seen().trimmed());
    }
    return sheet;
}

}

TEST(KeySheet, ThePrintedSheetIsWhatTheProgramAnswers)
{
    QFile file(QStringLiteral(KEY_SHEET));
    if (qEnvironmentVariableIsSet("VETROLAN_RENEW")) {
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(TheSheet().toUtf8());
        file.close();
    }
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(QString::fromUtf8(file.readAll()), TheSheet())
        << "VETROLAN_RENEW=1 ctest --preset check -R KeySheet writes docs/keys.md anew";
}
