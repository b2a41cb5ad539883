#pragma once

#include "tests/collection/CounterTest.h"

// Member 3 brought both kinds of milk on the 13th and the 14th; the morning of the 15th is open.
class MemberFrameTest : public CounterTest {
protected:
    MemberFrameTest()
    {
        AddMilk("13/04/2026", "sakaL", 4, "gaaya", 10, 4, 300);
        AddMilk("13/04/2026", "saMQyaakaL", 7, "gaaya", 5, 5, 175.5);
        AddMilk("14/04/2026", "sakaL", 2, "mhOsa", 2, 7, 90);
        AddMilk("14/04/2026", "saMQyaakaL", 1, "mhOsa", 6, 8, 294.25);
        AddMorningDelivery(1);
    }

    void AddMilk(const char* date, const char* shift, int number, const char* animal, double liters,
        double fat, double amount)
    {
        AddDelivery(QString::fromLatin1(date), QString::fromLatin1(shift), number, 3, "gaNaoSa",
            QString::fromLatin1(animal), liters, fat, 35, amount);
    }

    // With the frame open and the focus on its first date.
    void InTheFrame(const std::function<void(Clerk&)>& script)
    {
        InTheMorning([&](Clerk& clerk) {
            Type(clerk, "{ENTER}2{F7}");
            script(clerk);
        });
    }

    // The period of both days, and the member by number.
    static void Ask(Clerk& clerk, const char* member)
    {
        clerk.Type(QStringLiteral("13042026{ENTER}14042026{ENTER}%1{ENTER}{ENTER}{ENTER}")
                       .arg(QString::fromLatin1(member)));
    }

    static const DataGrid& Milk(Clerk& clerk) { return Grid(clerk, "DataGridMilk"); }
    static bool IsOpen(Clerk& clerk)
    {
        return clerk.Top().findChild<QWidget*>("FrameMilkCollection")->isVisible();
    }
    static std::string Labels(Clerk& clerk, std::initializer_list<const char*> names)
    {
        std::string all;
        for (const char* name : names)
            all += Label(clerk, name) + '|';
        return all;
    }
    static std::string Cow(Clerk& clerk)
    {
        return Labels(clerk,
            {"lblCowLitM", "lblCowLitE", "lblCowTotalLiters", "lblCowTotalM", "lblCowTotalE", "lblCowTotal",
                "lblCowAvgFatM", "lblCowAvgFatE", "lblCowTotalAvgFat"});
    }
    static std::string Buff(Clerk& clerk)
    {
        return Labels(clerk,
            {"lblBuffLitM", "lblBuffLitE", "lblBuffTotalLiters", "lblBuffTotalM", "lblBuffTotalE",
                "lblBuffTotal", "lblBuffAvgFatM", "lblBuffAvgFatE", "lblBuffTotalAvgFat"});
    }
};
