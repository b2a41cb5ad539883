#include "collection/ClosingFigures.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "society/Words.h"

void PostClosingBalance(QStringView name, double amount, PostAction action)
{
    const int company = gAppState.gCompanyId;
    Recordset member(gCn,
        Sql(u"SELECT * FROM MembersMaster WHERE CompanyId=", company, u" and trim(MemberName)=",
            Quoted(name)));
    if (member.Eof())
        return;
    const FieldValue closing = member[u"ClosingBalance"];
    double balance = 0;
    if (!closing.IsNull())
        balance = action == PostAction::Add ? closing.Number() + amount : closing.Number() - amount;
    member.Close();

    gCn.Execute(Sql(u"update MembersMaster set ClosingBalance=", balance, u",ClosingDorC=",
        Quoted(balance <= 0 ? u"D" : u"C"), u" where CompanyId=", company, u" and trim(MemberName)=",
        Quoted(name)));
}

namespace {

float SumOfLitres(QStringView column, QStringView animal, double memberNo)
{
    const Recordset sum(gCn,
        Sql(u"Select sum(Liters) as ", column, u" from MilkCollections Where CompanyId=",
            gAppState.gCompanyId, u" And Animal=", Quoted(animal), u" And MemberNo=", memberNo));
    return static_cast<float>(sum[column].Number());
}

}

void RefreshClosingLitres(double memberNo)
{
    const int company = gAppState.gCompanyId;
    float cow = 0;
    float buff = 0;
    {
        const Recordset opening(gCn,
            Sql(u"Select CowOpeningLits,BuffOpeningLits From MembersMaster where CompanyId=", company,
                u" And Memberno=", memberNo));
        if (!opening.Eof()) {
            cow = static_cast<float>(opening[u"CowOpeningLits"].Number());
            buff = static_cast<float>(opening[u"BuffOpeningLits"].Number());
        }
    }
    cow += SumOfLitres(u"CowLiters", Word::Cow, memberNo);
    buff += SumOfLitres(u"BuffLiters", Word::Buffalo, memberNo);
    gCn.Execute(Sql(u"Update MembersMaster Set CowClosingLits=", cow, u",BuffClosingLits=", buff,
        u" where CompanyId=", company, u" And Memberno=", memberNo));
}
