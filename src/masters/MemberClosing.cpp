#include "masters/MemberClosing.h"

#include "core/state/AppState.h"
#include "platform/database/Sql.h"
#include "society/Queries.h"
#include "society/Words.h"

#include <cmath>

namespace {

float SingleSum(const QString& query)
{
    return static_cast<float>(Figure(query));
}

double UchalPaid(double memberNo)
{
    return Figure(Sql(u"Select sum(Amount) as UchalPaid From TransactionsDetails Where CompanyId=",
        gAppState.gCompanyId, u" And Memberno=", memberNo));
}

// By how much the balance has changed in the member's favour since the opening.
float Movement(double memberNo)
{
    const int company = gAppState.gCompanyId;
    const float trAmount =
        SingleSum(Sql(u"Select sum(Amount) as TrAmount From Milkcollections Where CompanyId=", company,
            u" And MemberNo=", memberNo));
    const float payAmount =
        SingleSum(Sql(u"Select Sum(NetAmount) as PayAmount From MilkPayments Where CompanyId=", company,
            u" And MemberNo=", memberNo));
    const auto uchalPaid = static_cast<float>(UchalPaid(memberNo));
    const float uchalReceived =
        SingleSum(Sql(u"Select sum(Amount) as UchalReceived From AdvanceReceipt Where CompanyId=", company,
            u" And MemberNo=", memberNo, u" And AdvanceType<>", Quoted(Word::UchalKapat)));
    const float thevAmount =
        SingleSum(Sql(u"Select sum(Amount) as ThevAmount From MilkPaymentsDetails Where CompanyId=", company,
            u" And MemberNo=", memberNo, u" And (AdvanceType=", Quoted(Word::BuffThev), u" or AdvanceType=",
            Quoted(Word::CowThev), u" or AdvanceType=", Quoted(Word::Thev), u")"));
    return trAmount - payAmount - uchalPaid - thevAmount + uchalReceived;
}

}

QStringView Direction::Letter(QStringView word)
{
    return word == Due ? u"D" : u"C";
}

QStringView Direction::Word(QStringView letter)
{
    return letter == u"C" ? Payable : letter == u"D" ? Due : QStringView();
}

MemberClosing::Balance MemberClosing::BalanceOf(double memberNo, double opening, QStringView openingWord)
{
    const double signedOpening = openingWord == Direction::Due ? -opening : std::abs(opening);
    const double closing = signedOpening + static_cast<double>(Movement(memberNo));
    return {std::abs(closing), closing >= 0 ? Direction::Payable : Direction::Due};
}

double MemberClosing::UchalOf(double memberNo, double opening)
{
    return opening + UchalPaid(memberNo)
        - Figure(Sql(u"Select sum(Amount) as UchalReceived From AdvanceReceipt Where CompanyId=",
            gAppState.gCompanyId, u" And MemberNo=", memberNo));
}

double MemberClosing::ThevOf(double memberNo, double opening, QStringView advanceType)
{
    return opening
        + Figure(Sql(u"Select Sum(Amount) as ThevAmount From MilkPaymentsDetails Where CompanyId=",
            gAppState.gCompanyId, u" And MemberNo=", memberNo, u" And AdvanceType=", Quoted(advanceType)));
}
