#include "tests/journeys/Actions.h"

#include "core/state/AppState.h"
#include "platform/database/Sql.h"

#include <algorithm>

namespace {

const QString ToTheMembers = "{ENTER}{ENTER}";
const QString ToTheRates = "{ENTER}{DOWN}{DOWN}{ENTER}%d";
const QString ToTheCounter = "{DOWN}{ENTER}{ENTER}";
const QString ToTheNumber = QString(ToTheCounter + "{ENTER}1{ENTER}");
const QString ToTheDays = "{DOWN}{ENTER}{DOWN}{DOWN}{ENTER}";
const QString ToTheFrame = QString(ToTheNumber + "{ENTER}1{F7}14042026{ENTER}15042026{ENTER}");
const QString Yes = "%h";

void Execute(const char* statement)
{
    gCn.Execute(QString::fromLatin1(statement));
}

void InsertDeliveries()
{
    const QString columns =
        "(CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,MemberName,Animal,"
        "Liters,Fat,Rate,Amount,TranId,ActualCollectionTime) values(1,";
    for (const char* values : {"'14/04/2026','sakaL',1,1,'rama','gaaya',5,4.5,35,175,0,'6.01')",
             "'15/04/2026','sakaL',1,1,'rama','gaaya',6,4.5,35,210,0,'6.02')",
             "'15/04/2026','sakaL',2,2,'saIta','mhOsa',4,7.1,47.65,190.6,0,'6.03')"})
        gCn.Execute("insert into MilkCollections" + columns + QString::fromLatin1(values));
    gCn.Execute(Sql(u"insert into MilkCollectionsTemp select * from MilkCollections where CollectionNo=2"));
}

}

const std::vector<Action>& Actions()
{
    static const std::vector<Action> actions = {
        {"NewDelivery", ToTheNumber + "{ENTER}3{ENTER}1{ENTER}6.4{ENTER}4.1{ENTER}{ENTER}", "{ENTER}"},
        {"ChangedDelivery", ToTheNumber + "1{ENTER}{ENTER}9.5{ENTER}{ENTER}{ENTER}", "{ENTER}"},
        {"DeletedDelivery", ToTheNumber + "1{ENTER}", "{F10}"},
        {"DeliveryAtTheGate", "{F8}{ENTER}1{ENTER}{ENTER}3{ENTER}1{ENTER}6.4{ENTER}4.1{ENTER}{ENTER}",
            "{ENTER}"},
        {"OpenedCounter", "{DOWN}{ENTER}", "{ENTER}"},
        {"OpenedShift", ToTheCounter + "{ENTER}1", "{ENTER}"},
        {"PeriodOfAMember", ToTheFrame + "1{ENTER}{ENTER}", "{ENTER}"},
        {"NewDay", ToTheDays + "%n1{ENTER}{ENTER}16042026{ENTER}2{ENTER}{ENTER}{ENTER}5{ENTER}4.5{ENTER}",
            "{ENTER}"},
        {"ChangedDay", ToTheDays + "%d1{ENTER}{ENTER}15042026{ENTER}1{ENTER}1{ENTER}{ENTER}7.5{ENTER}", "%s"},
        {"DeletedDay", ToTheDays + "%k1{ENTER}{ENTER}14042026{ENTER}1{ENTER}1{ENTER}", "{ENTER}"},
        {"Settings",
            "{F7}{ENTER}{ENTER}2{ENTER}45{ENTER}46.5{ENTER}3{ENTER} {ENTER}4{ENTER}0.75{ENTER}"
            ".8{ENTER}49{ENTER}59.5{ENTER}53{ENTER}",
            "{ENTER}"},
        {"NewChart", ToTheRates + "16042026{ENTER}", "%s"},
        {"ReplacedChart", ToTheRates + "{ENTER}4.5{ENTER}31{ENTER}21{ENTER}{ENTER}{ENTER}{ENTER}", "%s"},
        {"ReRating", ToTheRates + "15042026{ENTER}{F5}8{ENTER}7{ENTER}{ENTER}%s", Yes},
        {"NewMember", ToTheMembers + "%n{ENTER}gaIta{ENTER}{ENTER}{ENTER}3{ENTER}1{ENTER}250.5{ENTER}{ENTER}",
            "%s"},
        {"NewVillage", ToTheMembers + "%n{ENTER}gaIta{ENTER}{ENTER}vaDgaava{ENTER}", Yes},
        {"ChangedMember", ToTheMembers + "%d1{ENTER}ramaa{ENTER}%s", Yes},
        {"DeletedMember", ToTheMembers + "%K1{ENTER}{ENTER}", Yes},
    };
    return actions;
}

const Action& ActionOf(const QString& name)
{
    const auto at = std::find_if(
        Actions().begin(), Actions().end(), [&](const Action& action) { return action.name == name; });
    Q_ASSERT(at != Actions().end());
    return *at;
}

QString OpeningKeys()
{
    return "{ENTER}{ENTER}15042026{ENTER}{ENTER}";
}

void InsertMember(int number, const QString& name, const QString& animal)
{
    gCn.Execute(Sql(
        u"insert into MembersMaster(CompanyId,MemberNo,MemberName,AccountId,Address,City,Animal,PaymentType,"
        u"BankName,BankAccountNo,OpeningBalance,OpeningDorC,ClosingBalance,ClosingDorC,CowOpeningThev,"
        u"CowClosingThev,BuffOpeningThev,BuffClosingThev,OpeningUchal,ClosingUchal,CowOpeningLits,"
        u"CowClosingLits,BuffOpeningLits,BuffClosingLits) values(1,",
        number, u",'", name, u"',0,'','','", animal, u"','raoK','','',0,'C',0,'C',0,0,0,0,0,0,0,0,0,0)"));
}

void FillBooks()
{
    InsertMember(1, "rama", "gaaya");
    InsertMember(2, "saIta", "mhOsa");
    InsertMember(3, "gaNaoSa", "daonhI");
    InsertDeliveries();
    Execute(
        "insert into CustomersMaster(CompanyId,CustomerNo,CustomerName,Animal,CustomerType,CowOpeningLits,"
        "CowClosingLits,BuffOpeningLits,BuffClosingLits) "
        "values(1,1,'ha^Tola','daonhI','sqaainak ivaËI',1000,123456.75,500.5,98765.25)");
    Execute("update AutoSettings set PurchaseEntry='Collection'");
    Execute("insert into "
            "MilkPayments(CompanyId,FromDate,ToDate,PaymentDate,TranId,MemberNo,MemberName,NetAmount) "
            "values(1,'01/04/2026','10/04/2026','11/04/2026',1,1,'rama',100)");
    Execute("insert into MilkPaymentsDetails(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount) "
            "values(1,'11/04/2026',1,1,'gaaya zova',5)");
    Execute(
        "insert into TransactionsMaster(CompanyId,TranDate,TranId,TranType,DAccountName,CAccountName,Amount) "
        "values(1,'12/04/2026',1,'P','rama','raoK',40)");
    Execute(
        "insert into TransactionsMaster(CompanyId,TranDate,TranId,TranType,DAccountName,CAccountName,Amount) "
        "values(1,'12/04/2026',2,'R','raoK','rama',30)");
    Execute("insert into TransactionsDetails(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount) "
            "values(1,'12/04/2026',1,1,']cala',40)");
    Execute("insert into AdvanceReceipt(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount) "
            "values(1,'13/04/2026',1,1,']cala',30)");
}
