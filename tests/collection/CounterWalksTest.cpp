// Walks over the counters by keyboard alone: on, back, and over rows that are there already.

#include "tests/collection/EachCounterTest.h"

#include "platform/database/Sql.h"
#include "rates/LookupFatRate.h"
#include "tests/support/FakeSerialPort.h"

#include <map>
#include <random>

namespace {

using namespace std::chrono_literals;

// Three deliveries of the morning, each with the rate of the chart; the day before has a chart of its own.
class CounterWalksTest : public EachCounterTest {
protected:
    CounterWalksTest()
    {
        Set("RepeatCollection", "haoya");
        gCn.RunScript("create table Fat140426 as select Fat, CowRate + 1 as CowRate, "
                      "BuffRate + 1 as BuffRate from Fat010426");
        Run("insert into FatDates(FromDate,FatFileName) values('14/04/2026','Fat140426')");
        AddPriced(1, 1, "rama", "gaaya", 5, 4.5);
        AddPriced(2, 2, "saIta", "mhOsa", 2, 8);
        AddPriced(3, 3, "gaNaoSa", "gaaya", 2, 4.5);
    }

    void AddPriced(int number, int member, const char* name, const char* animal, double liters, double fat)
    {
        const QDate day(2026, 4, 15);
        const double rate = LookupFatRate(day, fat, QString::fromLatin1(animal)).rate;
        AddDelivery("15/04/2026", "sakaL", number, member, QString::fromLatin1(name),
            QString::fromLatin1(animal), liters, fat, rate, liters * rate);
    }

    // A tester that is silent, beside a scale that it makes weigh a second time.
    void UseSilentTester()
    {
        gAppState.gWeighScale = "UDFREAD";
        gAppState.gAutoFat = "haoya";
        Run("update PortTable set LReceiverCommand='RD'");
        Ports.Replies.insert("RD", {{QByteArray("12345 06.5"), 1ms}});
    }

    // The first delivery in the books whose rate isn't the chart's, or whose amount isn't made from it.
    QString Mispriced()
    {
        for (Recordset row(gCn, "select * from MilkCollections"); !row.Eof(); row.MoveNext()) {
            const double rate = row[u"Rate"].Number();
            const FatRate chart =
                LookupFatRate(row[u"CollectionDate"].Date(), row[u"Fat"].Number(), row[u"Animal"].Text());
            const QString amount = Format(row[u"Liters"].Number() * rate, u"0.00");
            if (rate != chart.rate || Format(row[u"Amount"].Number(), u"0.00") != amount)
                return row[u"CollectionNo"].Text();
        }
        return {};
    }

    // A key for the control in focus: mostly one that leads on, and often any other. A rate is never typed.
    std::string NextKey(const std::string& focus)
    {
        const std::map<std::string, std::vector<std::string>> entries{{"maskDate", {"14042026", "15042026"}},
            {"txtTime", {"1", "2"}}, {"txtCollectionNo", {"2", "{UP}"}},
            {"txtMemberNo", {"1", "2", "3", "{F9}"}}, {"txtAnimal", {"1", "2"}},
            {"txtLiters", {"5", ".5", "{BS}"}}, {"txtFat", {"4.5", "8", "{BS}"}}};
        const auto entry = entries.find(focus);
        switch (m_random() % 6) {
        case 0:
        case 1:
            return entry == entries.end() ? "{ENTER}" : AnyOf(entry->second);
        case 2:
            return AnyOf({"+{TAB}", "{DOWN}", "{HOME}", "{END}", "{TAB}", "%i"});
        default:
            return "{ENTER}";
        }
    }

    FakeSerialPorts Ports;

private:
    std::string AnyOf(const std::vector<std::string>& keys) { return keys[m_random() % keys.size()]; }

    std::mt19937 m_random{20260415};
};

INSTANTIATE_TEST_SUITE_P(AtEach, CounterWalksTest, Counters(), CounterName);

TEST_P(CounterWalksTest, NoWayByKeyboardSavesARateOrAnAmountThatIsNotThatOfTheLine)
{
    int saved = 0;
    for (int walk = 0; walk < 8 && !HasFailure(); ++walk) {
        if (walk == 5)
            UseSilentTester();
        std::string keys;
        InTheShift([&](Clerk& clerk) {
            for (int step = 0; step < 200; ++step) {
                const bool isAsked = clerk.ScreenName() == u"frmMessages";
                const std::string focus = isAsked ? "frmMessages" : Focus(clerk);
                const bool isSearching = clerk.ScreenName() == u"frmSearchCollections"; // F9 has led there
                const std::string key = isAsked ? "{ENTER}" : isSearching ? "{ESC}" : NextKey(focus);
                keys += focus + ' ' + key + '\n';
                const QStringList before = Books();
                Type(clerk, key.c_str());
                if (Books() == before)
                    continue;
                ++saved;
                ASSERT_EQ(Mispriced(), QString()) << keys;
            }
        });
        EXPECT_EQ(Error(), "") << keys;
    }
    EXPECT_GT(saved, 20);
}

}
