// A bonus over many deliveries, worked out a second time from the raw rows.

#include "tests/bonus/BonusPaymentsTest.h"

#include "platform/database/Sql.h"

#include <cmath>
#include <map>
#include <random>

namespace {

using BonusReckoningTest = BonusPaymentsTest;

TEST_F(BonusReckoningTest, EachMembersBonusComesOutOfTheRawRowsAgain)
{
    Run("delete * from MilkCollections");
    std::mt19937 dice(7);
    const auto roll = [&](int sides) { return static_cast<int>(dice() % static_cast<unsigned>(sides)); };
    for (int member = 100; member < 120; ++member)
        AddMember(member, QStringLiteral("saBaasad %1").arg(member));
    struct Milk {
        qint64 cow = 0; // thousandths of a litre
        qint64 buff = 0;
    };
    std::map<int, Milk> brought;
    for (int can = 0; can < 400; ++can) {
        const int member = 100 + roll(20);
        const bool isCow = roll(2) == 0;
        const int millilitres = 1 + roll(20000);
        const QDate day = QDate(2026, 3, 20).addDays(roll(60));
        AddDelivery(Format(day, u"dd/MM/yyyy").toLatin1().constData(), member, isCow ? "gaaya" : "mhOsa",
            millilitres / 1000.0);
        if (day >= QDate(2026, 4, 1) && day <= QDate(2026, 4, 30))
            (isCow ? brought[member].cow : brought[member].buff) += millilitres;
    }
    Play([&](Clerk& clerk) {
        Type(clerk,
            "01042026{ENTER}30042026{ENTER}100{ENTER}{ENTER}3{ENTER}0.37{ENTER}0.53{ENTER}{ENTER}{ENTER}");
        for (const int member : {101, 110}) {
            clerk.Type(
                QStringLiteral("%1{ENTER}{ENTER}11.5{ENTER}7.25{ENTER}30{ENTER}4{ENTER}{ENTER}").arg(member));
        }
    });
    EXPECT_FALSE(Failure);
    int serial = 0;
    for (Recordset row(gCn, "select * from BonusPayments order by SerialNo"); !row.Eof(); row.MoveNext()) {
        const int member = static_cast<int>(row[u"MemberNo"].Number());
        const Milk& milk = brought[member];
        EXPECT_EQ(row[u"SerialNo"].Number(), ++serial);
        EXPECT_EQ(member, 99 + serial);
        const bool isCorrected = member == 101 || member == 110;
        const double cow = static_cast<double>(milk.cow) / 1000 + (isCorrected ? 11.5 : 0);
        const double buff = static_cast<double>(milk.buff) / 1000 + (isCorrected ? 7.25 : 0);
        EXPECT_NEAR(row[u"CurrentCowLiters"].Number(), static_cast<double>(milk.cow) / 1000, 0.0005)
            << member;
        EXPECT_NEAR(row[u"TotalCowLiters"].Number(), cow, 0.0005) << member;
        EXPECT_NEAR(row[u"TotalBuffLiters"].Number(), buff, isCorrected ? 0.0051 : 0.0005) << member;
        EXPECT_NEAR(row[u"TotalCowBonus"].Number(), cow * 0.37, 0.0055) << member;
        EXPECT_NEAR(row[u"TotalBuffBonus"].Number(), buff * 0.53, 0.0085) << member;
        if (isCorrected) {
            const qint64 total = std::llround(row[u"TotalBonus"].Number() * 100);
            EXPECT_EQ(std::llround(row[u"RemainingBonus"].Number() * 100), total - 3000 + 400) << member;
        } else {
            EXPECT_TRUE(row[u"RemainingBonus"].IsNull()) << member;
        }
    }
    EXPECT_EQ(serial, 20);
}

}
