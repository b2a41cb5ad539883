#pragma once

#include "collection/frmDailyCollection.h"
#include "tests/collection/CounterTest.h"

// A clerk in the back office, with the members of the counter: 1 brings cow milk, 2 buffalo milk, 3 both.
class DailyCollectionTest : public CounterTest {
protected:
    static constexpr const char* Fields[] = {"txtMemberNo", "cmbMemberName", "MasKCollectionDate",
        "cmbCollectionTime", "txtCollectionNo", "txtAnimal", "txtLiters", "txtFat", "txtRate", "txtAmount"};

    // Plays on the screen as it opens, with the focus on the button that adds.
    void InTheOffice(const std::function<void(Clerk&)>& script) { On<frmDailyCollection>(script); }

    // Plays while adding, with the focus on the member's number.
    void Adding(const std::function<void(Clerk&)>& script) { After("%n", script); }

    // Plays while adding the morning of the 15th for a member, with the focus on the collection number.
    void AddingFor(int member, const std::function<void(Clerk&)>& script)
    {
        After(("%n" + std::to_string(member) + "{ENTER}{ENTER}15042026{ENTER}1{ENTER}").c_str(), script);
    }

    // Plays with keys typed on the screen as it opens.
    void After(const char* keys, const std::function<void(Clerk&)>& script)
    {
        InTheOffice([&](Clerk& clerk) {
            Type(clerk, keys);
            script(clerk);
        });
    }

    // Goes to a field with the mouse and types in place of what it holds.
    static void Change(Clerk& clerk, const char* field, const char* keys)
    {
        clerk.Press(QString::fromLatin1(field));
        Type(clerk, keys);
    }

    // Types keys on the screen opened over the one that is open, until the last of them has closed it.
    static void OverTheCounter(Clerk& clerk, const char* keys)
    {
        clerk.Do([] {
            frmDailyCollection office;
            office.ShowModal();
        });
        Type(clerk, keys);
    }

    // All rows of the books, each with its day and shift.
    QStringList Days()
    {
        return Rows("select CollectionDate,CollectionTime,CollectionNo,MemberNo,Animal,Liters,Fat,"
                    "Rate,Amount from MilkCollections order by CollectionDate,CollectionNo");
    }

    static void ExpectIdle(Clerk& clerk, const char* focus)
    {
        EXPECT_EQ(Focus(clerk), focus);
        EXPECT_EQ(Reads(clerk, "cmdAdd"), "&navaIna");
        EXPECT_EQ(Reads(clerk, "cmdModify"), "ba&dla");
        EXPECT_EQ(Reads(clerk, "cmdDelete"), "&KaoDNao...");
        for (const char* button : {"cmdAdd", "cmdModify", "cmdDelete", "cmdCancel", "cmdExit"})
            EXPECT_TRUE(CanEnter(clerk, button)) << button;
        for (const char* field : Fields)
            EXPECT_FALSE(CanEnter(clerk, field)) << field;
        for (const char* empty :
            {"txtMemberNo", "cmbMemberName", "cmbCollectionTime", "txtCollectionNo", "txtAnimal"})
            EXPECT_EQ(Reads(clerk, empty), "") << empty;
        EXPECT_EQ(Reads(clerk, "MasKCollectionDate"), "__/__/____");
        for (const char* figure : {"txtLiters", "txtFat", "txtRate", "txtAmount"})
            EXPECT_EQ(Reads(clerk, figure), "0") << figure;
    }
};
