#include "tests/masters/MasterTest.h"

QStringList Open(const Clerk& clerk, const QStringList& controls)
{
    QStringList open;
    for (const QString& control : controls)
        if (clerk.CanEnter(control))
            open.append(control);
    return open;
}

QString TitleOf(const Clerk& clerk)
{
    return clerk.Top().Title().Text();
}

QString Typed(const QString& stored)
{
    QString keys;
    for (QChar c : stored) {
        if (QStringView(u"+^%{").contains(c))
            keys += "{" + c + "}";
        else
            keys += c;
    }
    return keys;
}

void TypeEach(Clerk& clerk, const QStringList& keys)
{
    for (const QString& each : keys)
        clerk.Type(each + "{ENTER}");
}

void CallUp(Clerk& clerk, int number)
{
    clerk.Type("%d" + QString::number(number) + "{ENTER}");
}

void GoTo(Clerk& clerk, const QString& field)
{
    clerk.Press(field);
    clerk.Type("^a");
}

void GoOn(Clerk& clerk, const QString& expected)
{
    EXPECT_EQ(clerk.Message(), expected);
    clerk.Type("{ENTER}");
}
