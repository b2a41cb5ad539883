#include "tests/journeys/Actions.h"

#include "core/state/AppState.h"
#include "platform/database/Sql.h"

namespace {

const QString ToTheMembers = QStringLiteral("{ENTER}{ENTER}");
const QString ToTheCustomers = QStringLiteral("{ENTER}{DOWN}{ENTER}");
const QString ToTheRates = QStringLiteral("{ENTER}{DOWN}{DOWN}{ENTER}%d");
const QString ToTheCounter = QStringLiteral("{DOWN}{ENTER}{ENTER}");
const QString ToTheNumber = QString(ToTheCounter + QStringLiteral("{ENTER}1{ENTER}"));
const QString ToTheDays = QStringLiteral("{DOWN}{ENTER}{DOWN}{DOWN}{ENTER}");
const QString ToTheFrame =
    QString(ToTheNumber + QStringLiteral("{ENTER}1{F7}14042026{ENTER}15042026{ENTER}"));
const QString ToAnAdvance = QStringLiteral(
    "{F4}%n15042026{ENTER}{ENTER}1{ENTER}{ENTER}KaV{ENTER}100{ENTER}{ENTER}]cala{ENTER}50{ENTER}");
const QString ToTheSlips = QStringLiteral("{DOWN}{DOWN}{ENTER}{DOWN}{DOWN}{ENTER}");
const QString ToTheRegister = QStringLiteral("{DOWN}{DOWN}{ENTER}{DOWN}{DOWN}{DOWN}{DOWN}{ENTER}");
const QString ToTheStatement =
    QStringLiteral("{DOWN}{DOWN}{ENTER}{DOWN}{DOWN}{DOWN}{DOWN}{DOWN}{DOWN}{DOWN}{ENTER}");
const QString ToThePurchases = QString(
    QStringLiteral("{DOWN}{DOWN}{ENTER}") + QStringLiteral("{DOWN}").repeated(9) + QStringLiteral("{ENTER}"));
const QString ToTheComparison = QString(QStringLiteral("{DOWN}{DOWN}{ENTER}")
    + QStringLiteral("{DOWN}").repeated(11) + QStringLiteral("{ENTER}"));
const QString ToTheCashBook = QString(QStringLiteral("{DOWN}{DOWN}{ENTER}")
    + QStringLiteral("{DOWN}").repeated(14) + QStringLiteral("{ENTER}"));
const QString ToTheGainAndLoss =
    QStringLiteral("{DOWN}{DOWN}{ENTER}{DOWN}{DOWN}{DOWN}{DOWN}{DOWN}{DOWN}{DOWN}{DOWN}{ENTER}");
const QString ToTheBalances = QStringLiteral("{DOWN}{DOWN}{DOWN}{ENTER}{ENTER}");
const QString ToTheInstallments = QStringLiteral("{DOWN}{ENTER}{DOWN}{DOWN}{DOWN}{DOWN}{ENTER}");
const QString ToThePayments = QStringLiteral("{DOWN}{ENTER}{DOWN}{DOWN}{DOWN}{DOWN}{DOWN}{ENTER}");
const QString ToOnePayment = QString(ToThePayments + QStringLiteral("{DOWN}{ENTER}{ENTER}"));
const QString ToTheSales = QStringLiteral("{DOWN}{ENTER}{DOWN}{DOWN}{DOWN}{DOWN}{DOWN}{DOWN}{ENTER}");
const QString ToASale = QString(ToTheSales + QStringLiteral("{ENTER}1{ENTER}"));
const QString ToTheBackup = QStringLiteral("{ESC}{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}");
const QString ToTheBonus = // below "backup", which the list opens beside
    QStringLiteral("{DOWN}{DOWN}{DOWN}{DOWN}{ENTER}{DOWN}{ENTER}");
const QString ToTheRun = QString(ToTheBonus
    + QStringLiteral("01042026{ENTER}30042026{ENTER}1{ENTER}{ENTER}3{ENTER}.5{ENTER}.75{ENTER}{ENTER}"));
const QString ToTheSpan = QStringLiteral("{DOWN}{DOWN}{DOWN}{DOWN}{ENTER}{DOWN}{DOWN}{ENTER}");
const QString Yes = QStringLiteral("%h");

void Execute(const char* statement)
{
    gCn.Execute(QString::fromUtf8(statement));
}

void InsertDeliveries()
{
    const QString columns =
        QStringLiteral("(CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,MemberName,Animal,"
                       "Liters,Fat,Rate,Amount,TranId,ActualCollectionTime) values(1,");
    for (const char* values : {"'14/04/2026','sakaL',1,1,'rama','gaaya',5,4.5,35,175,0,'6.01')",
             "'15/04/2026','sakaL',1,1,'rama','gaaya',6,4.5,35,210,0,'6.02')",
             "'15/04/2026','sakaL',2,2,'saIta','mhOsa',4,7.1,47.65,190.6,0,'6.03')"})
        gCn.Execute(QStringLiteral("insert into MilkCollections") + columns + QString::fromLatin1(values));
    gCn.Execute(Sql(u"insert into MilkCollectionsTemp select * from MilkCollections where CollectionNo=2"));
}

}

const std::vector<Action>& Actions()
{
    static const std::vector<Action> actions = {
        {QStringLiteral("NewDelivery"),
            ToTheNumber + QStringLiteral("{ENTER}3{ENTER}1{ENTER}6.4{ENTER}4.1{ENTER}{ENTER}"),
            QStringLiteral("{ENTER}")},
        {QStringLiteral("ChangedDelivery"),
            ToTheNumber + QStringLiteral("1{ENTER}{ENTER}9.5{ENTER}{ENTER}{ENTER}"),
            QStringLiteral("{ENTER}")},
        {QStringLiteral("DeletedDelivery"), ToTheNumber + QStringLiteral("1{ENTER}"),
            QStringLiteral("{F10}")},
        {QStringLiteral("DeliveryAtTheGate"),
            QStringLiteral("{F8}{ENTER}1{ENTER}{ENTER}3{ENTER}1{ENTER}6.4{ENTER}4.1{ENTER}{ENTER}"),
            QStringLiteral("{ENTER}")},
        {QStringLiteral("OpenedCounter"), QStringLiteral("{DOWN}{ENTER}"), QStringLiteral("{ENTER}")},
        {QStringLiteral("OpenedShift"), ToTheCounter + QStringLiteral("{ENTER}1"), QStringLiteral("{ENTER}")},
        {QStringLiteral("PeriodOfAMember"), ToTheFrame + QStringLiteral("1{ENTER}{ENTER}"),
            QStringLiteral("{ENTER}")},
        {QStringLiteral("NewDay"),
            ToTheDays
                + QStringLiteral("%n1{ENTER}{ENTER}16042026{ENTER}2{ENTER}{ENTER}{ENTER}5{ENTER}4.5{ENTER}"),
            QStringLiteral("{ENTER}")},
        {QStringLiteral("ChangedDay"),
            ToTheDays + QStringLiteral("%d1{ENTER}{ENTER}15042026{ENTER}1{ENTER}1{ENTER}{ENTER}7.5{ENTER}"),
            QStringLiteral("%s")},
        {QStringLiteral("DeletedDay"),
            ToTheDays + QStringLiteral("%k1{ENTER}{ENTER}14042026{ENTER}1{ENTER}1{ENTER}"),
            QStringLiteral("{ENTER}")},
        {QStringLiteral("Settings"),
            QStringLiteral("{F7}{ENTER}{ENTER}2{ENTER}45{ENTER}46.5{ENTER}3{ENTER} {ENTER}4{ENTER}0.75{ENTER}"
                           ".8{ENTER}49{ENTER}59.5{ENTER}53{ENTER}"),
            QStringLiteral("{ENTER}")},
        {QStringLiteral("NewChart"), ToTheRates + QStringLiteral("16042026{ENTER}"), QStringLiteral("%s")},
        {QStringLiteral("ReplacedChart"),
            ToTheRates + QStringLiteral("{ENTER}4.5{ENTER}31{ENTER}21{ENTER}{ENTER}{ENTER}{ENTER}"),
            QStringLiteral("%s")},
        {QStringLiteral("ChangedRow"),
            ToTheRates + QStringLiteral("{ENTER}4.5{ENTER}31{ENTER}21{ENTER}{ENTER}{ENTER}"),
            QStringLiteral("{ENTER}")},
        {QStringLiteral("RateForEachPercent"), ToTheRates + QStringLiteral("{ENTER}{F5}8{ENTER}7{ENTER}"),
            QStringLiteral("{ENTER}")},
        {QStringLiteral("CancelledChart"), ToTheRates + QStringLiteral("{ENTER}"), QStringLiteral("%r")},
        {QStringLiteral("ReRating"),
            ToTheRates + QStringLiteral("15042026{ENTER}{F5}8{ENTER}7{ENTER}{ENTER}%s"), Yes},
        {QStringLiteral("WorkedOutPayment"), ToOnePayment + QStringLiteral("%n11042026{ENTER}{ENTER}1"),
            QStringLiteral("{ENTER}")},
        {QStringLiteral("StagedPayment"), ToOnePayment + QStringLiteral("%n11042026{ENTER}{ENTER}1{ENTER}"),
            QStringLiteral("%s")},
        {QStringLiteral("SavedPayment"), ToOnePayment + QStringLiteral("%n11042026{ENTER}{ENTER}1{ENTER}%s"),
            Yes},
        {QStringLiteral("ReversedPayment"), ToOnePayment + QStringLiteral("%k01042026{ENTER}1{ENTER}"),
            QStringLiteral("{ENTER}")},
        {QStringLiteral("ExtraRate"), ToOnePayment + QStringLiteral("{F5}2.5"), QStringLiteral("{F5}")},
        {QStringLiteral("InstallmentsTicked"), ToThePayments + QStringLiteral("+{TAB}"), QStringLiteral(" ")},
        {QStringLiteral("NewInstallment"), ToTheInstallments + QStringLiteral("1{ENTER}{ENTER}50"),
            QStringLiteral("{ENTER}")},
        {QStringLiteral("OpenedSales"), ToTheSales.chopped(7), QStringLiteral("{ENTER}")},
        {QStringLiteral("OpenedShiftOfSales"), ToTheSales + QStringLiteral("{ENTER}1"),
            QStringLiteral("{ENTER}")},
        {QStringLiteral("NewSale"),
            ToASale
                + QStringLiteral(
                    "{ENTER}ha{^}Tola{ENTER}1{ENTER}6.4{F9}6.5{ENTER}{ENTER}4.2{ENTER}33{ENTER}8.5"
                    "{ENTER}{ENTER}4.1{ENTER}{ENTER}{ENTER}"),
            QStringLiteral("{ENTER}")},
        {QStringLiteral("ChangedSale"),
            ToASale + QStringLiteral("{UP}{ENTER}{ENTER}{ENTER}9.5{ENTER}{ENTER}{ENTER}{ENTER}"),
            QStringLiteral("{ENTER}")},
        {QStringLiteral("DeletedSale"), ToASale + QStringLiteral("{UP}{ENTER}"), QStringLiteral("{F10}")},
        {QStringLiteral("OpenedBonus"), ToTheBonus.chopped(7), QStringLiteral("{ENTER}")},
        {QStringLiteral("RateOfTheBonus"),
            ToTheBonus + QStringLiteral("01042026{ENTER}30042026{ENTER}1{ENTER}{ENTER}3{ENTER}"),
            QStringLiteral("7")},
        {QStringLiteral("BonusOfMany"), ToTheRun, QStringLiteral("{ENTER}")},
        {QStringLiteral("CorrectedBonus"),
            ToTheRun + QStringLiteral("{ENTER}1{ENTER}{ENTER}5{ENTER}6{ENTER}7{ENTER}8{ENTER}"),
            QStringLiteral("{ENTER}")},
        {QStringLiteral("NewMember"),
            ToTheMembers
                + QStringLiteral("%n{ENTER}gaIta{ENTER}{ENTER}{ENTER}3{ENTER}1{ENTER}250.5{ENTER}{ENTER}"),
            QStringLiteral("%s")},
        {QStringLiteral("NewVillage"),
            ToTheMembers + QStringLiteral("%n{ENTER}gaIta{ENTER}{ENTER}vaDgaava{ENTER}"), Yes},
        {QStringLiteral("ChangedMember"), ToTheMembers + QStringLiteral("%d1{ENTER}ramaa{ENTER}%s"), Yes},
        {QStringLiteral("NewCustomer"),
            ToTheCustomers + QStringLiteral("%n{ENTER}gaIta{ENTER}3{ENTER}2{ENTER}10.5{ENTER}20{ENTER}"),
            QStringLiteral("{ENTER}")},
        {QStringLiteral("ChangedCustomer"), ToTheCustomers + QStringLiteral("%d1{ENTER}gaaolaa{ENTER}%s"),
            Yes},
        {QStringLiteral("DeletedCustomer"), ToTheCustomers + QStringLiteral("%k1{ENTER}{ENTER}"), Yes},
        {QStringLiteral("StagedSlips"), ToTheSlips + QStringLiteral("11042026{ENTER}1{ENTER}{ENTER}"),
            QStringLiteral("%i")},
        {QStringLiteral("StagedRegister"),
            ToTheRegister + QStringLiteral("01042026{ENTER}{ENTER}1{ENTER}{ENTER}"), QStringLiteral("%i")},
        {QStringLiteral("StagedStatement"),
            ToTheStatement + QStringLiteral("01042026{ENTER}15042026{ENTER}1{ENTER}"), QStringLiteral("%i")},
        {QStringLiteral("StagedBalances"),
            ToTheBalances + QStringLiteral("01042026{ENTER}15042026{ENTER}1{ENTER}{ENTER}"),
            QStringLiteral("%i")},
        {QStringLiteral("StagedPurchases"), ToThePurchases + QStringLiteral("14042026{ENTER}15042026{ENTER}"),
            QStringLiteral("%i")},
        {QStringLiteral("StagedComparison"),
            ToTheComparison + QStringLiteral("14042026{ENTER}15042026{ENTER}dUQa saMGa{ENTER}"),
            QStringLiteral("%i")},
        {QStringLiteral("StagedCashBook"), ToTheCashBook + QStringLiteral("12042026{ENTER}15042026{ENTER}"),
            QStringLiteral("%i")},
        {QStringLiteral("StagedGainAndLoss"),
            ToTheGainAndLoss + QStringLiteral("14042026{ENTER}15042026{ENTER}{ENTER}"),
            QStringLiteral("{ENTER}")},
        {QStringLiteral("DeletedMember"), ToTheMembers + QStringLiteral("%K1{ENTER}{ENTER}"), Yes},
        {QStringLiteral("HeadOfAnAdvance"), ToAnAdvance, QStringLiteral("{ENTER}")},
        {QStringLiteral("NewAdvance"), ToAnAdvance + QStringLiteral("{ENTER}{F4}"),
            QStringLiteral("{ENTER}")},
        {QStringLiteral("StagedAdvance"), ToAnAdvance + QStringLiteral("{ENTER}{F4}{ENTER}%hgaNaoSa{ENTER}"),
            QStringLiteral("{ENTER}")},
        {QStringLiteral("ChangedAdvance"),
            QStringLiteral("{F4}%d{ENTER}{ENTER}{ENTER}]cala{ENTER}70{ENTER}{ENTER}{F4}{ENTER}"), Yes},
        {QStringLiteral("DeletedAdvance"), QStringLiteral("{F4}%k{ENTER}{ENTER}"), Yes},
        {QStringLiteral("NewReceipt"),
            QStringLiteral("{F4}{DOWN}%n15042026{ENTER}{ENTER}1{ENTER}{ENTER}40{ENTER}"),
            QStringLiteral("{ENTER}")},
        {QStringLiteral("StagedReceipt"),
            QStringLiteral(
                "{F4}{DOWN}%n15042026{ENTER}{ENTER}1{ENTER}{ENTER}40{ENTER}{ENTER}%hgaNaoSa{ENTER}"),
            QStringLiteral("{ENTER}")},
        {QStringLiteral("ChangedReceipt"),
            ToTheCounter + QStringLiteral("{F6}{DOWN}%d{ENTER}{ENTER}{ENTER}60{ENTER}{ENTER}"), Yes},
        {QStringLiteral("DeletedReceipt"), ToTheCounter + QStringLiteral("{F6}{DOWN}%k{ENTER}{ENTER}"), Yes},
    };
    return actions;
}

const std::vector<Action>& Runs()
{
    static const std::vector<Action> runs = {
        {QStringLiteral("PaidMany"),
            ToThePayments + QStringLiteral("{DOWN}{DOWN}{ENTER}11042026{ENTER}{ENTER}1{ENTER}3{ENTER}"),
            QStringLiteral("{ENTER}")},
    };
    return runs;
}

const std::vector<Action>& Copyings()
{
    static const std::vector<Action> copyings = {
        {QStringLiteral("RegularBackup"), ToTheBackup, QStringLiteral("{ENTER}")},
        {QStringLiteral("HistoryBackup"), QStringLiteral("{ESC}2{ENTER}{ENTER}{ENTER}{ENTER}{ENTER}"),
            QStringLiteral("{ENTER}")},
        {QStringLiteral("Restore"), ToTheBackup + QStringLiteral("{TAB}"), QStringLiteral("{ENTER}")},
    };
    return copyings;
}

const std::vector<Action>& Leavings()
{
    static const std::vector<Action> leavings = {
        {QStringLiteral("DepositSpan"), ToTheSpan + QStringLiteral("01052026{ENTER}30042027{ENTER}"),
            QStringLiteral("{ENTER}")},
    };
    return leavings;
}

const Action& ActionOf(const QString& name)
{
    for (const std::vector<Action>* list : {&Actions(), &Runs(), &Copyings(), &Leavings()})
        for (const Action& action : *list)
            if (action.name == name)
                return action;
    qFatal("no such action: %s", qPrintable(name));
}

QString OpeningKeys()
{
    return QStringLiteral("{ENTER}{ENTER}15042026{ENTER}{ENTER}");
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
    InsertMember(1, QStringLiteral("rama"), QStringLiteral("gaaya"));
    InsertMember(2, QStringLiteral("saIta"), QStringLiteral("mhOsa"));
    InsertMember(3, QStringLiteral("gaNaoSa"), QStringLiteral("daonhI"));
    InsertDeliveries();
    Execute(
        "insert into CustomersMaster(CompanyId,CustomerNo,CustomerName,Animal,CustomerType,CowOpeningLits,"
        "CowClosingLits,BuffOpeningLits,BuffClosingLits) "
        "values(1,1,'ha^Tola','daonhI','sqaainak ivaËI',1000,123456.75,500.5,98765.25)");
    for (const char* sale : {"1,'15/04/2026','sakaL','raoK',1,0,'raoK','gaaya',1.5,4.2,48,72,1.5,0,0,0,0)",
             "1,'15/04/2026','sakaL','sqaainak ivaËI',2,1,'ha^Tola','mhOsa',12345.678,7.1,58,716049.32,12340,"
             "8.5,7.2,48.25,595405)",
             "1,'14/04/2026','sakaL','raoK',1,0,'raoK','mhOsa',2,7,58,116,2,0,0,0,0)"})
        gCn.Execute(QStringLiteral("insert into MilkSales(CompanyId,SalesDate,SalesTime,SalesType,SalesNo,"
                                   "CustomerNo,CustomerName,Animal,Liters,Fat,Rate,Amount,OurLiters,SNF,"
                                   "OurFat,OurRate,OurAmount) values(")
            + QString::fromUtf8(sale));
    Execute("insert into MilkSalesTemp select * from MilkSales where SalesDate=#04/14/2026#");
    Execute("insert into BonusPayments(CompanyId,SerialNo,MemberNo) values(1,1,99)");
    Execute("update AutoSettings set PurchaseEntry='Collection'");
    Execute("insert into "
            "MilkPayments(CompanyId,FromDate,ToDate,PaymentDate,TranId,MemberNo,MemberName,NetAmount) "
            "values(1,'01/04/2026','10/04/2026','11/04/2026',1,1,'rama',100)");
    Execute("insert into MilkPaymentsDetails(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount) "
            "values(1,'11/04/2026',1,1,'gaaya zova',5)");
    Execute("insert into TransactionsMaster(CompanyId,TranDate,TranId,TranType,DAccountName,CAccountName,"
            "Amount,BillNo,Narration) "
            "values(1,'12/04/2026',1,'pomaonT','rama','raoK',40,']cala',']cala idlaI.')");
    Execute("insert into TransactionsMaster(CompanyId,TranDate,TranId,TranType,DAccountName,CAccountName,"
            "Amount,BillNo,Narration) "
            "values(1,'12/04/2026',2,'irsaIT','raoK','rama',30,']cala jamaa',']cala jamaa JaalaI.')");
    Execute("insert into TransactionsDetails(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount) "
            "values(1,'12/04/2026',1,1,']cala',40)");
    Execute("insert into AdvanceReceipt(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount) "
            "values(1,'12/04/2026',2,1,'Uchal Receipt',30)");
    Execute("insert into AccountsMaster values(1,9,'dUQa saMGa','Debtors','saMGa',0,'D',0,'D')");
    Execute("insert into MilkSales values(1,'15/04/2026','sakaL','saMGa ivaËI',1,2,'dUQa saMGa','gaaya',"
            "100,4.1,40,4000,101.5,8.5,4.25,41,4161.5)");
}
