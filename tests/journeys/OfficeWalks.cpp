#include "tests/journeys/OfficeWalks.h"

#include "collection/frmAbsenseMemberCollection.h"
#include "collection/frmDailyCollection.h"
#include "collection/frmSearchCollections.h"
#include "reports/frmReportMembersList.h"
#include "reports/frmReportMilkCollections.h"
#include "reports/frmReportMilkPS.h"
#include "reports/frmReportPaymentList.h"
#include "society/ReceiptLayouts.h"
#include "tests/collection/DayBook.h"
#include "utilities/frmAutoSettings.h"

#include <QSet>

namespace {

const QStringList Deliveries{"MilkCollections"};
const QStringList Settings{"AutoSettings"};

bool IsWord(const Recordset& row, QStringView column, const QStringList& words)
{
    return words.contains(row[column].Text());
}

}

void OfficeWalks::AddDelivery(const char* values)
{
    Run(QString("insert into MilkCollections(CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,"
                "MemberName,Animal,Liters,Fat,Rate,Amount) values(1,")
        + values + ')');
}

// The rows of a copy stand in the books, too.
void OfficeWalks::ExpectCopied(const QString& books, const QString& copy)
{
    const QStringList all = Rows("select * from " + books);
    for (const QString& row : Rows("select * from " + copy))
        EXPECT_TRUE(all.contains(row)) << row.toStdString();
}

// The days of a member

void OfficeWalks::OverTheDays(int walks)
{
    AddDelivery("'15/04/2026','saMQyaakaL',1,1,'rama','gaaya',5,4.5,35,175"); // the number of his morning
    const std::string kept = Kept(Deliveries);
    const QStringList copy = Rows("select * from MilkCollectionsTemp");
    const QStringList members = Rows("select MemberNo,MemberName from MembersMaster");
    DayBook days;
    Walk({"frmDailyCollection", Show<frmDailyCollection>,
             {"%r%n3{ENTER}{ENTER}16042026{ENTER}2{ENTER}{ENTER}1{ENTER}5{ENTER}4.5{ENTER}{ENTER}",
                 "%r%n1{ENTER}{ENTER}16042026{ENTER}1{ENTER}{ENTER}{ENTER}5.55{ENTER}4.1{ENTER}{ENTER}",
                 "%r%n1{ENTER}{ENTER}14042026{ENTER}1{ENTER}1{ENTER}{ENTER}6{ENTER}4.4{ENTER}{ENTER}",
                 "%r%n1{ENTER}{ENTER}15042026{ENTER}2{ENTER}1{ENTER}{ENTER}4{ENTER}4.3{ENTER}{ENTER}",
                 "%r%n2{ENTER}{ENTER}15042026{ENTER}1{ENTER}2{ENTER}{ENTER}2.125{ENTER}7.3{ENTER}{ENTER}",
                 "%r%n{ENTER}gaNaoSa{ENTER}15042026{ENTER}1{ENTER}{ENTER}2{ENTER}", "3.3{ENTER}6.9{ENTER}",
                 "%r%d1{ENTER}{ENTER}15042026{ENTER}1{ENTER}1{ENTER}{ENTER}7.5{ENTER}4.2{ENTER}%s",
                 "%r%d2{ENTER}{ENTER}15042026{ENTER}1{ENTER}2{ENTER}{ENTER}3.3{ENTER}7{ENTER}40.5{ENTER}%s",
                 "%r%k1{ENTER}{ENTER}14042026{ENTER}1{ENTER}1{ENTER}{ENTER}",
                 "%r%k2{ENTER}{ENTER}15042026{ENTER}1{ENTER}2{ENTER}{ENTER}",
                 "%r%k3{ENTER}{ENTER}16042026{ENTER}2{ENTER}1{ENTER}{ENTER}", "%r%n1{ENTER}+{TAB}{F5}",
                 "{DOWN}{ENTER}", "%r"},
             [&] {
                 EXPECT_TRUE(Kept(Deliveries) == kept);
                 EXPECT_EQ(Rows("select * from MilkCollectionsTemp"), copy);
                 for (const QString& member : Rows("select MemberNo,MemberName from MilkCollections"))
                     EXPECT_TRUE(members.contains(member)) << member.toStdString();
                 Run("delete * from MilkCollections where CollectionDate<#04/14/2026#"); // they stay small
                 Run("delete * from MilkCollections where CollectionDate>#04/16/2026#");
                 days.BeginAnew();
             },
             [&] { days.Look(); }},
        walks);
    EXPECT_GT(days.Entered, walks / 50);
    EXPECT_GT(days.Changed, walks / 100);
    EXPECT_GT(days.Deleted, walks / 100);
}

// Who doesn't come

// Who brought milk the day before the one in the field, and in its shift, and brings none now.
QStringList OfficeWalks::AbsentAtTheFields()
{
    const QDate today = QDate::fromString(TheClerk.Reads("MaskDate"), "dd/MM/yyyy");
    const QString time = TheClerk.Reads("txtTime");
    const auto brought = [&](const QDate& day) {
        QStringList members;
        for (Recordset row(gCn, "select * from MilkCollections"); !row.Eof(); row.MoveNext())
            if (row[u"CollectionDate"].Date() == day && row[u"CollectionTime"].Text() == time)
                members.append(row[u"MemberNo"].Text() + u'|' + row[u"MemberName"].Text());
        return members;
    };
    QStringList absent = brought(today.addDays(-1));
    for (const QString& member : brought(today))
        absent.removeAll(member);
    absent.sort();
    return absent;
}

void OfficeWalks::OverTheAbsent(int walks)
{
    AddDelivery("'14/04/2026','sakaL',2,3,'gaNaoSa','gaaya',5,4.5,35,175");
    AddDelivery("'14/04/2026','sakaL',3,3,'gaNaoSa','mhOsa',5,7.1,47.65,238.25");
    AddDelivery("'14/04/2026','saMQyaakaL',1,2,'saIta','mhOsa',5,7.1,47.65,238.25");
    const std::string kept = Kept();
    int lists = 0;
    QStringList before;
    Walk({"frmAbsenseMemberCollection", Show<frmAbsenseMemberCollection>,
             {"15042026{ENTER}1{ENTER}{ENTER}", "16042026{ENTER}1{ENTER}{ENTER}", "{ENTER}2{ENTER}{ENTER}",
                 "15042026{ENTER}2{ENTER}{ENTER}", "14042026{ENTER}", "+{TAB}+{TAB}", "{END}{UP}"},
             [&] {
                 EXPECT_TRUE(Kept() == kept);
                 Run("delete * from ShortMemberList");
                 before.clear();
             },
             [&] {
                 const QStringList now =
                     Rows("select MemberNo,MemberName from ShortMemberList order by MemberNo");
                 if (now == before || TheClerk.ScreenName() != u"frmAbsenseMemberCollection")
                     return;
                 EXPECT_EQ(now, AbsentAtTheFields());
                 before = now;
                 ++lists;
             }},
        walks);
    EXPECT_GT(lists, walks / 50);
}

// The slip that is printed again

void OfficeWalks::OverTheSearch(int walks)
{
    AddDelivery("'15/04/2026','sakaL',3,1,'rama','mhOsa',1.5,8,49,73.5");
    AddDelivery("'14/04/2026','saMQyaakaL',1,2,'saIta','mhOsa',5,7.1,47.65,238.25");
    const std::string kept = Kept();
    const QString slip =
        "select CollectionDate,CollectionTime,CollectionNo,MemberNo,MemberName,Animal,Liters,"
        "Fat,Rate,Amount from ";
    const QStringList books = Rows(slip + "MilkCollections");
    std::size_t printed = 0;
    std::size_t seen = 0;
    Walk({"frmSearchCollections", Show<frmSearchCollections>,
             {"{ENTER}1{ENTER}1{ENTER}{ENTER}%p", "{ENTER}1{ENTER}2{ENTER}{ENTER}{ENTER}",
                 "+{TAB}+{TAB}14042026{ENTER}2{ENTER}2{ENTER}{ENTER}%p", "{ENTER}saIta{ENTER}", "{DOWN}%p",
                 "%p", "+{TAB}+{TAB}15042026{ENTER}1{ENTER}", "+{TAB}+{TAB}"},
             [&] {
                 EXPECT_TRUE(Kept() == kept);
                 seen = 0;
             },
             [&] {
                 ExpectCopied("MilkCollections", "MilkCollectionsTemp");
                 EXPECT_LE(Rows("select distinct CollectionDate,CollectionTime,MemberNo from "
                                "MilkCollectionsTemp")
                               .size(),
                     1);
                 if (TheWindow.Shown.size() == seen)
                     return;
                 printed += TheWindow.Shown.size() - seen;
                 seen = TheWindow.Shown.size();
                 const QStringList row = Rows(slip + "MilkReceipt");
                 EXPECT_EQ(row.size(), 1);
                 EXPECT_TRUE(books.contains(row.join(u'\n'))) << row.join(u'\n').toStdString();
             }},
        walks);
    EXPECT_GT(printed, static_cast<std::size_t>(walks) / 50);
}

// The settings

// There is one row, with a word of its list in each column that has one, and the program goes by it.
void OfficeWalks::ExpectSoundSettings()
{
    EXPECT_EQ(Rows("select * from AutoSettings").size(), 1);
    const QStringList yesNo{"haoya", "naahI"};
    for (Recordset row(gCn, "select * from AutoSettings"); !row.Eof(); row.MoveNext()) {
        EXPECT_EQ(row[u"CompanyId"].Number(), 1);
        EXPECT_TRUE(IsWord(row, u"AutoLiters", yesNo));
        EXPECT_TRUE(IsWord(row, u"AutoFat", yesNo));
        EXPECT_TRUE(IsWord(row, u"RepeatCollection", yesNo));
        EXPECT_TRUE(IsWord(row, u"PrintStatus", {"naahI", "f@t sËIna", "haoya"}));
        EXPECT_TRUE(IsWord(row, u"MSRPrintStatus", {"saovh", "saovh va sËIna", "saovh va ip`MT"}));
        EXPECT_TRUE(IsWord(row, u"ReceiptType", ReceiptTypes()));
        EXPECT_TRUE(
            IsWord(row, u"PaymentDuration", {"1 idvasa", "7 idvasa", "10 idvasa", "15 idvasa", "1 maihnaa"}));
        EXPECT_TRUE(IsWord(row, u"PurchaseEntry", {"Collection", "Payment"}));
        EXPECT_TRUE(IsWord(row, u"UchalEntry", {"Sales", "Uchal"}));
        EXPECT_TRUE(IsWord(row, u"DecimalPayment", {"AddThev", "Payable", "PayIt", "Discount"}));
        EXPECT_TRUE(IsWord(row, u"FatRateType", {"f^T nausaar"}));
        EXPECT_GT(row[u"ThevKapatCow"].Number(), 0);
        EXPECT_GT(row[u"ThevKapatBuff"].Number(), 0);
        EXPECT_EQ(row[u"AutoLiters"].Text(), gAppState.gAutoLiters);
        EXPECT_EQ(row[u"AutoFat"].Text(), gAppState.gAutoFat);
        EXPECT_EQ(row[u"PaymentDuration"].Text(), gAppState.gPaymentDuration);
    }
}

void OfficeWalks::OverTheSettings(int walks)
{
    const std::string kept = Kept(Settings);
    int changes = 0;
    std::size_t printed = 0;
    QStringList before = Rows("select * from AutoSettings");
    Walk(
        {"frmAutoSettings", Show<frmAutoSettings>,
            {"%r{ENTER}{ENTER}2{ENTER}45{ENTER}46.5{ENTER}3{ENTER} {ENTER}4{ENTER}0.75{ENTER}.8{ENTER}49"
             "{ENTER}59.5{ENTER}53{ENTER}{ENTER}",
                "%r1{ENTER}2{ENTER}3{ENTER}38.25{ENTER}%s", "%r{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}1{ENTER}%s",
                "%r^{PGDN}2{ENTER}1.5{ENTER}2.25{ENTER}%s", "%r^{PGDN}3{ENTER}{DOWN}{ENTER} {ENTER} {DOWN}%s",
                "%r^{PGDN}^{PGDN}50{ENTER}60{ENTER}55{ENTER}{ENTER}", "%r+{TAB}{ENTER}", "^{PGDN}", "^{PGUP}",
                "%s", "%r", "0{ENTER}"},
            [&] {
                EXPECT_TRUE(Kept(Settings) == kept);
                printed += TheWindow.Shown.size();
            },
            [&] {
                const QStringList now = Rows("select * from AutoSettings");
                changes += now == before ? 0 : 1;
                before = now;
                ExpectSoundSettings();
            }},
        walks);
    EXPECT_GT(changes, walks / 50);
    EXPECT_GT(printed, static_cast<std::size_t>(walks) / 100);
}

// The lists

void OfficeWalks::OverTheMilkOfADay(int walks)
{
    const std::string kept = Kept();
    std::size_t printed = 0;
    Walk({"frmReportMilkCollections", Show<frmReportMilkCollections>,
             {"15042026{ENTER}", "15042026{ENTER}{ENTER}%i", "14042026{ENTER}gaa{ENTER}%i",
                 "15042026{ENTER}mhOsa{ENTER}%i", "%s", "%k", "%d", "%i", "%b", "+{TAB}+{TAB}", "%s%i"},
             [&] {
                 printed += TheWindow.Shown.size();
                 EXPECT_TRUE(Kept() == kept);
             },
             [&] {
                 ExpectCopied("MilkCollections", "MilkCollectionsTemp");
                 EXPECT_LE(Rows("select distinct CollectionDate from MilkCollectionsTemp").size(), 1);
             }},
        walks);
    EXPECT_GT(printed, static_cast<std::size_t>(walks) / 50);
}

void OfficeWalks::OverTheMilkOfOne(int walks)
{
    const std::string kept = Kept();
    const auto litres = [this](const char* query) { return One(query).toDouble(); };
    std::size_t printed = 0;
    int lists = 0;
    Walk({"frmReportMilkPS", Show<frmReportMilkPS>,
             {"14042026{ENTER}15042026{ENTER}{ENTER}rama{ENTER}%i",
                 "01042026{ENTER}30042026{ENTER}{ENTER}saIta{ENTER}%i",
                 "14042026{ENTER}15042026{ENTER}{DOWN}{ENTER}ha{^}Tola{ENTER}%i", "14042026{ENTER}",
                 "31042026{ENTER}", "%i", "%b", "{DOWN}{ENTER}{DOWN}{ENTER}%i", "+{TAB}+{TAB}+{TAB}"},
             [&] {
                 printed += TheWindow.Shown.size();
                 EXPECT_TRUE(Kept() == kept);
                 ExpectCopied("MilkCollections", "MilkCollectionsTemp");
                 ExpectCopied("MilkSales", "MilkSalesTemp");
                 if (TheWindow.Shown.empty())
                     return;
                 const double lines = litres("select sum(LitersM) from MilkCollectionsME")
                     + litres("select sum(LitersE) from MilkCollectionsME");
                 EXPECT_NEAR(lines,
                     litres("select sum(Liters) from MilkCollectionsTemp")
                         + litres("select sum(Liters) from MilkSalesTemp"),
                     0.0001);
                 lists += lines > 0 ? 1 : 0;
             }},
        walks);
    EXPECT_GT(printed, static_cast<std::size_t>(walks) / 50);
    EXPECT_GT(lists, walks / 250);
}

void OfficeWalks::OverTheListOfMembers(int walks)
{
    Run("update MembersMaster set City='vaDgaava' where MemberNo=1");
    Run("insert into CityMaster(CompanyId,CityName) values(1,'vaDgaava')");
    const std::string kept = Kept();
    std::size_t printed = 0;
    QSet<QString> lengths;
    Walk({"frmReportMembersList", Show<frmReportMembersList>,
             {"%1%i", "%2vaDgaava{ENTER}%i", "%2{BS}{ENTER}%i", "%3{ENTER}%i", "%3{DOWN}%i", "%i", "%b",
                 "%2vaD{ENTER}", "+{TAB}"},
             [&] {
                 printed += TheWindow.Shown.size();
                 EXPECT_TRUE(Kept() == kept);
             },
             [&] {
                 const QStringList listed =
                     Rows("select MemberNo,MemberName,City,Animal from MembersListReport");
                 const QStringList members =
                     Rows("select MemberNo,MemberName,City,Animal from MembersMaster");
                 const QSet<QString> each(listed.begin(), listed.end());
                 EXPECT_EQ(each.size(), listed.size()) << "a member twice";
                 EXPECT_TRUE(QSet<QString>(members.begin(), members.end()).contains(each));
                 lengths.insert(QString::number(listed.size()));
             }},
        walks);
    EXPECT_GT(printed, static_cast<std::size_t>(walks) / 50);
    EXPECT_GE(lengths.size(), 2) << "all of them, and some";
}

void OfficeWalks::OverTheListOfPayments(int walks)
{
    const std::string kept = Kept();
    QSet<QString> titles;
    std::size_t printed = 0;
    Walk({"frmReportPaymentList", Show<frmReportPaymentList>,
             {"11042026{ENTER}", "11042026{ENTER}{ENTER}{ENTER}", "10042026{ENTER}%i",
                 "11042026{ENTER}{DOWN}{ENTER}%i", "31042026{ENTER}", "{DOWN}%i", "%i", "%b", "+{TAB}+{TAB}"},
             [&] {
                 printed += TheWindow.Shown.size();
                 for (const QString& title : TheWindow.Titles())
                     titles.insert(title);
                 EXPECT_TRUE(Kept() == kept);
             }},
        walks);
    EXPECT_GT(printed, static_cast<std::size_t>(walks) / 50);
    EXPECT_EQ(titles.size(), 2) << "in cash, and by the bank";
}
