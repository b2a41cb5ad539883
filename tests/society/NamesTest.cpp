#include "tests/support/SocietyTest.h"

#include "platform/database/Sql.h"
#include "society/Names.h"

#include <random>

namespace {

class NamesTest : public SocietyTest {
protected:
    static double NumberOf(const QString& name)
    {
        const Recordset member = MemberOfName(name);
        return member.Eof() ? 0 : member[u"MemberNo"].Number();
    }
};

// Syllables that two spellings show alike, each the other's.
constexpr std::pair<QStringView, QStringView> Syllables[] = {{u"$", u"ru"}, {u"É", u"rU"}, {u"Ì", u"kR"},
    {u"Ëa", u"k`a"}, {u"Sa", u"Xa"}, {u"Ea", u"S`a"}, {u"kÜ", u"kao"}, {u"[-", u"š"}, {u"A^", u"A\u0945"},
    {u"Ù", u"nna"}, {u"w", u"d\\Qa"}, {u"V", u"d\\ya"}, {u"~", u"%`a"}, {u">", u"@t"}, {u"&", u"jHa"},
    {u"xa", u"@Ya"}, {u"Ÿ", u"ija"}};

}

TEST_F(NamesTest, AMemberIsFoundByWhatIsRead)
{
    AddMember(3, "maa$tI");
    AddMember(5, QStringView(u"A\u0945D. paaTIla").toString());
    EXPECT_EQ(NumberOf("maarutI"), 3);
    EXPECT_EQ(NumberOf(" maarutI "), 3);
    EXPECT_EQ(NumberOf("A^D. paaTIla"), 5) << "a letter stored in two pieces";
    EXPECT_EQ(NumberOf("A^D.  paaTIla"), 5);
    EXPECT_EQ(NumberOf("maartI"), 0);
}

TEST_F(NamesTest, OfTwoThatReadTheSameTheOneThatIsSpelledSoIsFound)
{
    AddMember(1, "maarutI");
    AddMember(2, "maa$tI ");
    EXPECT_EQ(NumberOf("maa$tI"), 2);
    EXPECT_EQ(NumberOf("maarutI"), 1);
}

TEST_F(NamesTest, ANameOfBlanksIsNobodys)
{
    Run("insert into MembersMaster(CompanyId,MemberNo) values(1,9)");
    EXPECT_EQ(NumberOf(QString()), 0);
    EXPECT_EQ(NumberOf("  "), 0);
    EXPECT_EQ(NumberOf(QString(QChar(0x200D))), 0);
}

TEST_F(NamesTest, TheSpellingsOfANameAreItsOwnAndThoseThatReadTheSame)
{
    Run("delete * from CityMaster");
    for (const char* city : {"maa$tI", "kraD", "maarutI", "maa$tI"})
        Run(Sql(u"insert into CityMaster(CompanyId,CityName) values(1,'", QString::fromLatin1(city), u"')"));
    EXPECT_EQ(SpellingsOf(u"CityMaster", u"CityName", "maarutI"), QStringList({"maarutI", "maa$tI"}));
    EXPECT_EQ(SpellingsOf(u"CityMaster", u"CityName", "gaava"), QStringList("gaava"));
}

TEST_F(NamesTest, AnyMemberIsFoundByAnySpellingOfHisName)
{
    std::mt19937 random(305);
    std::uniform_int_distribution<std::size_t> any(0, std::size(Syllables) - 1);
    std::bernoulli_distribution turned(0.5);
    QStringList others;
    for (int number = 1; number <= 120; ++number) {
        QString name;
        QString other;
        for (std::size_t rest = number + 1, i = 0; i < 6; ++i) {
            // The first syllables count the members, so that no two names read the same.
            const std::size_t at = i < 3 ? rest % std::size(Syllables) : any(random);
            rest /= std::size(Syllables);
            const bool turn = turned(random);
            name += turn ? Syllables[at].second : Syllables[at].first;
            other += turn ? Syllables[at].first : Syllables[at].second;
        }
        AddMember(number, name);
        others += other;
    }
    for (int number = 1; number <= others.size(); ++number)
        EXPECT_EQ(NumberOf(others[number - 1]), number) << qPrintable(others[number - 1]);
}

TEST_F(NamesTest, AMemberIsFoundByNumberInAnyCompany)
{
    AddMember(3, "rama");
    Run("insert into MembersMaster(CompanyId,MemberNo,MemberName) values(2,9,'sakaarama')");
    EXPECT_EQ(MemberOfNumber(3)[u"MemberName"].Text(), "rama");
    EXPECT_EQ(MemberOfNumber(9)[u"MemberName"].Text(), "sakaarama");
    EXPECT_TRUE(MemberOfNumber(4).Eof());
}
