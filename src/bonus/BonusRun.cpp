#include "bonus/BonusRun.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/database/Transaction.h"
#include "society/Queries.h"
#include "society/Words.h"

#include <array>

namespace {

constexpr QStringView AdvanceGiven = u"]cala idlaI."; // उचल दिली: the narration of a voucher that gives one
constexpr int PauseRounds = 5000;

float Single(double value)
{
    return static_cast<float>(value);
}

SqlText InPeriod(const BonusParameters& of)
{
    return Sql(u" From MilkCollections Where CollectionDate >=", SqlDay(of.from), u" and CollectionDate<=",
        SqlDay(of.to));
}

SqlText InRange(const BonusParameters& of)
{
    return Sql(InPeriod(of), u" And MemberNo>=", of.fromAcNo, u" And MemberNo<=", of.toAcNo);
}

SqlText OfAnimal(QStringView animal)
{
    return Sql(u" And Animal=", Quoted(animal));
}

// The values that every row of a run begins with.
SqlText ParameterValues(const BonusParameters& of)
{
    return Values(
        gAppState.gCompanyId, of.from, of.to, of.fromAcNo, of.toAcNo, of.milkType, of.cowRate, of.buffRate);
}

// The advance is found by the member's present name, and what comes back by his number. A receipt of the
// first day itself doesn't count.
float AdvanceOf(const BonusParameters& of, double memberNo, const QString& memberName)
{
    const double given = Figure(
        Sql(u"Select Sum(Amount)as mUchalPaid From TransactionsMaster Where companyId=", gAppState.gCompanyId,
            u" And DAccountName=", Quoted(memberName), u" AND Narration=", Quoted(AdvanceGiven),
            u" AND (TranDate>=", SqlDay(of.from), u" And TranDate<=", SqlDay(of.to), u")"));
    const double received = Figure(Sql(u"Select Sum(Amount)as mUchalReceived From AdvanceReceipt Where "
                                       u"companyId=",
        gAppState.gCompanyId, u" And TranDate>", SqlDay(of.from), u" And TranDate<=", SqlDay(of.to),
        u" AND MemberNo=", memberNo));
    return Single(given - received);
}

MemberBonus BonusOf(const BonusParameters& of, double memberNo, const QString& memberName)
{
    MemberBonus bonus{memberNo, memberName};
    const SqlText ofMember = Sql(InPeriod(of), u" And MemberNo=", memberNo);
    bonus.cowLiters = Single(Figure(Sql(u"Select sum(Liters) as cowliters", ofMember, OfAnimal(Word::Cow))));
    bonus.buffLiters =
        Single(Figure(Sql(u"Select sum(Liters) as Buffliters", ofMember, OfAnimal(Word::Buffalo))));
    if (of.withAdvances)
        bonus.advance = AdvanceOf(of, memberNo, memberName);
    bonus.cowBonus = Single(bonus.cowLiters * of.cowRate);
    bonus.buffBonus = Single(bonus.buffLiters * of.buffRate);
    return bonus;
}

void Insert(const BonusParameters& of, int serialNo, const MemberBonus& bonus)
{
    gCn.Execute(Sql(u"Insert Into BonusPayments(CompanyId,FromDate,ToDate,FromAcNo,ToAcNo,MilkType,"
                    u"CowBonusRate,BuffBonusRate,SerialNo,MemberNo,MemberName,CurrentCowLiters,"
                    u"CurrentBuffLiters,TotalCowLiters,TotalBuffLiters,TotalCowBonus,TotalBuffBonus,"
                    u"TotalBonus,Advance) Values(",
        ParameterValues(of), u",",
        Values(serialNo, bonus.memberNo, bonus.memberName, bonus.cowLiters, bonus.buffLiters, bonus.cowLiters,
            bonus.buffLiters, bonus.cowBonus, bonus.buffBonus, bonus.Total(), bonus.advance),
        u")"));
}

// The clerk was to see each member pass by.
void Pause()
{
    for (int round = 0; round < PauseRounds; ++round) { }
}

// The form by account

void InsertAccount(QStringView table, const BonusParameters& of, int serialNo, double acNo,
    const QString& name, const QString& animal, double milk, double charges)
{
    gCn.Execute(Sql(u"Insert Into ", table,
        u"(CompanyId,FromDate,ToDate,FromAcNo,ToAcNo,Milktype,CowBonusRate,BuffBonusRate,SerialNo,AcNo,"
        u"AccountName,Animal,TotalMilk,BonusCharges) Values(",
        ParameterValues(of), u",", Values(serialNo, acNo, name, animal, milk, charges), u")"));
}

double RateOf(const BonusParameters& of, QStringView animal)
{
    return animal == Word::Cow ? of.cowRate : of.buffRate;
}

// A row for each delivery.
void WalkDeliveries(const BonusParameters& of)
{
    const SqlText wanted = of.milkType == Word::Both ? SqlText() : OfAnimal(of.milkType);
    int serialNo = 0;
    for (Recordset can(gCn, Sql(u"Select *", InRange(of), wanted, u" Order by CollectionDate,MemberNo"));
         !can.Eof(); can.MoveNext()) {
        const QString animal = can[u"Animal"].Text();
        const double liters = can[u"Liters"].Number();
        InsertAccount(u"BonusPayments", of, ++serialNo, can[u"MemberNo"].Number(), can[u"MemberName"].Text(),
            animal, liters, Val(Format(liters * RateOf(of, animal), u"#####0.00")));
    }
}

// Those of an account and an animal together.
void FoldAccounts(const BonusParameters& of)
{
    gCn.Execute(u"Delete * From BonusPaymentsTemp");
    int serialNo = 0;
    for (Recordset account(gCn, u"Select Distinct AcNo From BonusPayments"); !account.Eof();
         account.MoveNext()) {
        const double acNo = account[u"AcNo"].Number();
        const Recordset first(gCn, Sql(u"Select AccountName From BonusPayments Where AcNo=", acNo));
        for (const QStringView animal : {Word::Cow, Word::Buffalo}) {
            const Recordset sum(gCn,
                Sql(u"Select sum(TotalMilk)as tmilk From BonusPayments Where AcNo=", acNo, u" and Animal=",
                    Quoted(animal)));
            if (const FieldValue milk = sum[u"tmilk"]; !milk.IsNull())
                InsertAccount(u"BonusPaymentsTemp", of, ++serialNo, acNo, first[u"AccountName"].Text(),
                    animal.toString(), milk.Number(), milk.Number() * RateOf(of, animal));
        }
    }
}

void WriteTotals(const BonusParameters& of)
{
    const float cow =
        Single(Figure(Sql(u"Select sum(Liters) as cowliters", InRange(of), OfAnimal(Word::Cow))));
    const float buff =
        Single(Figure(Sql(u"Select sum(Liters) as Buffliters", InRange(of), OfAnimal(Word::Buffalo))));
    const float cowBonus = Single(cow * of.cowRate);
    const float buffBonus = Single(buff * of.buffRate);
    gCn.Execute(Sql(u"Update BonusPaymentstemp Set CurrentCowLiters=", cow, u", CurrentBuffLiters=", buff,
        u", TotalcowBonus=", cowBonus, u", TotalBuffBonus=", buffBonus, u",TotalBonus=",
        cowBonus + buffBonus));
}

void DeleteUnnumbered()
{
    gCn.Execute(u"Delete * From BonusPayments Where SerialNo=0");
}

}

void BonusRun::ByMember(
    const BonusParameters& parameters, const std::function<void(const MemberBonus&)>& done)
{
    Transaction run(gCn);
    gCn.Execute(u"Delete * From BonusPayments");
    int serialNo = 0;
    for (Recordset member(gCn,
             Sql(u"Select * From MembersMaster Where companyid=", gAppState.gCompanyId, u" And MemberNo>=",
                 parameters.fromAcNo, u" And MemberNo<=", parameters.toAcNo, u" Order by MemberNo"));
         !member.Eof(); member.MoveNext()) {
        const MemberBonus bonus =
            BonusOf(parameters, member[u"MemberNo"].Number(), member[u"MemberName"].Text());
        Insert(parameters, ++serialNo, bonus);
        Pause();
        done(bonus);
    }
    DeleteUnnumbered();
    run.Commit();
}

void BonusRun::ByAccount(const BonusParameters& parameters)
{
    Transaction run(gCn);
    gCn.Execute(u"Delete * From BonusPayments");
    WalkDeliveries(parameters);
    FoldAccounts(parameters);
    WriteTotals(parameters);
    gCn.Execute(u"Delete * From BonusPayments");
    gCn.Execute(u"Insert Into BonusPayments Select * From BonusPaymentsTemp");
    DeleteUnnumbered();
    run.Commit();
}

void BonusRun::Tidy()
{
    Transaction tidying(gCn);
    DeleteUnnumbered();
    tidying.Commit();
}

void BonusRun::Forget()
{
    Transaction forgetting(gCn);
    gCn.Execute(u"Delete * From BonusPayments");
    DeleteUnnumbered();
    forgetting.Commit();
}
