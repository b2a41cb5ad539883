#include "vouchers/AmountInWords.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"

#include <cmath>
#include <vector>

namespace {

constexpr QStringView Hundred = u"Sao"; // शे
constexpr QStringView Thousand = u" hjaar"; // हजार
constexpr QStringView ThousandAfterLakhs = u" Hajaar"; // another spelling, beside lakhs only
constexpr QStringView Lakh = u" laaK"; // लाख
constexpr QStringView Rupees = u" $pyao  "; // रुपये
constexpr QStringView Paise = u" pOsao"; // पैसे

// Some digits of an amount that have one word, and what is said behind it.
struct Group {
    int digits;
    QStringView suffix;
};

// The groups of an amount of so many digits, from the left; none if it can't be said.
std::vector<Group> GroupsOf(qsizetype digits)
{
    switch (digits) {
    case 1:
        return {{1, {}}};
    case 2:
        return {{2, {}}};
    case 3:
        return {{1, Hundred}, {2, {}}};
    case 4:
        return {{1, Thousand}, {1, Hundred}, {2, {}}};
    case 5:
        return {{2, Thousand}, {1, Hundred}, {2, {}}};
    case 6:
        return {{1, Lakh}, {2, ThousandAfterLakhs}, {1, Hundred}, {2, {}}};
    case 7:
        return {{2, Lakh}, {2, ThousandAfterLakhs}, {1, Hundred}, {2, {}}};
    default:
        return {};
    }
}

// Without a sign and without decimals; empty for an empty amount.
QString WholeRupees(const QString& amount)
{
    return amount.trimmed().isEmpty() ? QString() : ShortestDecimal(std::abs(std::trunc(Val(amount))));
}

// With five digits a hundreds digit of 0 is never said, whatever the table has for 0.
bool IsLeftOut(const Group& group, QStringView digits, qsizetype length)
{
    return length == 5 && group.suffix == Hundred && digits == u"0";
}

}

QString RupeeWords(const QString& amount)
{
    const QString rupees = WholeRupees(amount);
    QString words;
    qsizetype at = 0;
    for (const Group& group : GroupsOf(rupees.size())) {
        const QString digits = rupees.mid(at, group.digits);
        const QStringView blank = at == 0 ? QStringView() : u" ";
        at += group.digits;
        const Recordset word(gCn, Sql(u"select no1,word1 from rswords where no1=", digits));
        if (!word.Eof() && !IsLeftOut(group, digits, rupees.size()))
            words += blank % word[u"word1"].Text() % group.suffix;
    }
    return words;
}

QString PaiseWords(const QString& amount)
{
    const QString paise = Format(Val(amount), u"0.00").right(2);
    const Recordset word(gCn, Sql(u"select * from rswords where no1=", paise));
    return word.Eof() ? QString() : word[u"word1"].Text();
}

QString AmountInWords(const QString& amount)
{
    const QString paise = PaiseWords(amount);
    const QString rupees = RupeeWords(amount) % Rupees;
    return paise.isEmpty() ? rupees : QString(rupees % paise % Paise);
}
