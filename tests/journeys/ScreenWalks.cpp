#include "tests/journeys/ScreenWalks.h"

#include "payments/frmInstallment.h"
#include "payments/frmThevDate.h"
#include "platform/database/Sql.h"
#include "platform/shell/AppFolder.h"
#include "platform/text/Numbers.h"
#include "rates/frmNewFatRates.h"
#include "reports/frmReportMilkPayments.h"
#include "reports/frmReportMilkPaymentsRegister.h"
#include "tests/journeys/Actions.h"
#include "tests/support/BooksFile.h"
#include "vouchers/frmSelectInwards.h"
#include "vouchers/frmUchalVouchers.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr int ThrowsOfAWalk = 5;
constexpr int WalksOfAnOpening = 12; // at most

}

ScreenWalks::ScreenWalks()
{
    ReportSurroundings::Current() = {
        &TheWindow, nullptr, [](const QString& path) { return LocalPath(path); }};
    FillBooks();
    Run("insert into "
        "MilkPayments(CompanyId,FromDate,ToDate,PaymentDate,TranId,MemberNo,MemberName,Animal,Liters,"
        "Amount,Kapat,NetAmount,TotalUchal,LitersCow,LitersBuff,CowAmount,BuffAmount) "
        "values(1,'01/04/2026','10/04/2026','10/04/2026',1,2,'saIta','gaaya',10,350,50,300,50,10,0,350,0)");
    Run("insert into AdvanceReceipt(CompanyId,TranDate,TranId,MemberNo,AdvanceType,Amount) "
        "values(1,'10/04/2026',2,2,'Uchal Kapat',50)");
    for (int number = 3; number <= 20; ++number)
        Run(Sql(
            u"insert into TransactionsMaster(CompanyId,TranDate,TranId,TranType,DAccountName,CAccountName,"
            u"Amount,BillNo,Narration) values(",
            Values(1, u"12/04/2026", number, number % 2 == 0 ? u"irsaIT" : u"pomaonT", u"rama", u"raoK",
                number * 10.5, number % 2 == 0 ? u"]cala jamaa" : u"]cala", u""),
            u")"));
}

ScreenWalks::~ScreenWalks()
{
    TheWindow.Shown.clear();
    ReportControl::CloseConnections();
    ReportSurroundings::Current() = {};
}

QString ScreenWalks::NextKeys(const Walked& screen)
{
    static constexpr const char* moves[] = {"{ENTER}", "{ENTER}", "{ENTER}", "{TAB}", "+{TAB}", "{DOWN}",
        "{UP}", "{LEFT}", "{RIGHT}", "{HOME}", "{END}", "{PGUP}", "{PGDN}", "{BS}", "{DEL}", "n", "a", ".",
        "-"};
    static constexpr const char* orders[] = {"%n", "%s", "%h", "%k", "%r", "%d", "%i", "%b", "{F2}", "{F4}",
        "{F5}", "{ESC}", " ", "^a", "^v", "%{DOWN}"};
    const int kind = Throw(100);
    if (kind < 45)
        return QLatin1String(AnyOf(moves));
    if (kind < 65)
        return QString(QChar(u'0' + Throw(10))) + (Throw(3) > 0 ? QString("{ENTER}") : QString());
    return QString::fromUtf8(kind < 75 ? AnyOf(orders) : AnyOf(screen.phrases));
}

void ScreenWalks::Walk(const Walked& screen, int walks)
{
    int walked = 0;
    while (walked < walks && !HasFailure()) {
        QString typed;
        TheWindow.Shown.clear();
        Failure = TheClerk.Play(screen.open, [&](Clerk& clerk) {
            const int end = std::min(walks, walked + WalksOfAnOpening);
            for (; walked < end && !clerk.ScreenName().isEmpty(); ++walked)
                for (int at = 0; at < ThrowsOfAWalk && !clerk.ScreenName().isEmpty(); ++at) {
                    const QString keys = NextKeys(screen);
                    typed += keys;
                    clerk.Type(keys);
                    if (screen.look)
                        screen.look();
                }
        });
        EXPECT_TRUE(!Failure || screen.mayEnd) << screen.name << ": " << Failure->what() << '\n'
                                               << typed.right(400).toStdString();
        screen.check();
        EXPECT_EQ(BooksFile::IntegrityOf(gCn.Handle()), "ok") << screen.name;
    }
}

std::string ScreenWalks::Kept(const QStringList& written)
{
    QStringList rows;
    for (const char* table : {"MilkCollections", "MilkPayments", "MilkPaymentsDetails", "AdvanceReceipt",
             "TransactionsMaster", "TransactionsDetails", "MembersMaster", "InstallmentTable", "FatDates",
             "AutoSettings", "MilkSales", "CustomersMaster", "AccountsMaster"})
        if (!written.contains(table))
            rows += Rows(QString("select * from ") + table);
    return rows.join(u'\n').toStdString();
}

// The chart

// The first one alone is left, so that the day of the newest doesn't run away.
void ScreenWalks::ForgetCharts()
{
    const QString first = One("select min(FromDate) from FatDates");
    for (Recordset chart(gCn, "select * from FatDates"); !chart.Eof(); chart.MoveNext())
        if (chart[u"FromDate"].Text() != first)
            gCn.RunScript("drop table " + chart[u"FatFileName"].Text());
    Run("delete * from FatDates where FatFileName<>'Fat010426'");
}

// Each chart has its table, and each delivery's amount is its litres at its rate, rounded by the counter and
// not by a re-rating.
void ScreenWalks::ExpectSoundRates()
{
    for (Recordset chart(gCn, "select * from FatDates"); !chart.Eof(); chart.MoveNext())
        EXPECT_NE(One("select count(*) from " + chart[u"FatFileName"].Text()), "");
    for (Recordset row(gCn, "select * from MilkCollections"); !row.Eof(); row.MoveNext())
        EXPECT_NEAR(row[u"Amount"].Number(), row[u"Liters"].Number() * row[u"Rate"].Number(), 0.005001);
}

void ScreenWalks::OverTheFatRates(int walks)
{
    Run("delete * from MilkPayments"); // so that deliveries are re-rated
    const QString members = Rows("select * from MembersMaster").join(u'\n');
    int saved = 0;
    int rated = 0;
    QStringList deliveries;
    Walk({"frmNewFatRates", Show<frmNewFatRates>,
             {"%d{ENTER}", "%d15042026{ENTER}", "%d14042026{ENTER}",
                 "4.5{ENTER}31{ENTER}21{ENTER}{ENTER}{ENTER}", "{F5}8{ENTER}7{ENTER}{ENTER}", "{F5}", "%s",
                 "%s%h", "%s%h", "%r", "4{ENTER}", "%d15042026{ENTER}{F5}8.37{ENTER}7{ENTER}{ENTER}%s%h",
                 "%d15042026{ENTER}4.5{ENTER}31.5{ENTER}21{ENTER}{ENTER}%s%h"},
             [&] {
                 saved += One("select count(*) from FatDates").toInt() - 1;
                 const QStringList now =
                     Rows("select Rate from MilkCollections order by CollectionDate,Liters");
                 rated += now == deliveries ? 0 : 1;
                 deliveries = now;
                 ExpectSoundRates();
                 EXPECT_TRUE(Rows("select * from MembersMaster").join(u'\n') == members);
                 ForgetCharts();
             }},
        walks);
    EXPECT_GT(saved, walks / 100);
    EXPECT_GT(rated, walks / 200);
}

// The reports, which write into their work tables alone

void ScreenWalks::OverTheSlips(int walks)
{
    const std::string kept = Kept();
    std::size_t printed = 0;
    Walk({"frmReportMilkPayments", Show<frmReportMilkPayments>,
             {"11042026{ENTER}", "11042026{ENTER}1{ENTER}{ENTER}%i", "{ENTER}1{ENTER}3{ENTER}", "%i", "%b",
                 "+{TAB}+{TAB}+{TAB}11042026{ENTER}", "12042026{ENTER}"},
             [&] {
                 printed += TheWindow.Shown.size();
                 EXPECT_TRUE(Kept() == kept);
             }},
        walks);
    EXPECT_GT(printed, 10U);
}

void ScreenWalks::OverTheRegisters(int walks)
{
    static constexpr const char* modes[] = {
        "PR", "TR", "UR", "UD", "UchalBalanceStatement", "ThevBalanceStatement", "N"};
    const std::string kept = Kept();
    std::size_t opened = 0;
    std::map<QString, std::size_t> printed;
    Walk({"frmReportMilkPaymentsRegister",
             [&opened] {
                 gAppState.gReportMode = QLatin1String(modes[opened++ % std::size(modes)]);
                 Show<frmReportMilkPaymentsRegister>();
             },
             {"01042026{ENTER}", "01042026{ENTER}{ENTER}1{ENTER}{ENTER}%i",
                 "01042026{ENTER}20042026{ENTER}1{ENTER}", "%i", "%b", "{ENTER}1{ENTER}3{ENTER}", "%1", "%2",

                 "+{TAB}+{TAB}+{TAB}+{TAB}01042026{ENTER}10042026{ENTER}1{ENTER}{ENTER}%i"},
             [&] {
                 printed[gAppState.gReportMode] += TheWindow.Shown.size();
                 EXPECT_TRUE(Kept() == kept);
             }},
        walks);
    for (const char* mode : modes)
        EXPECT_GT(printed[mode], 0U) << mode;
}

// The look-up and the span

void ScreenWalks::OverTheLookUp(int walks)
{
    static constexpr const char* modes[] = {"U", "UR", "T", "TQ", "I", "O", "U", "UR"};
    const std::string kept = Kept();
    int picked = 0;
    Walk({"frmSelectInwards",
             [this] {
                 gAppState.gReportMode = QLatin1String(AnyOf(modes));
                 gAppState.gSelectedVoucherDate = {};
                 Show<frmSelectInwards>();
             },
             {"+{TAB}", "+{TAB}+{TAB}12", "{DOWN}{DOWN}{ENTER}", "12042026", "{TAB}{TAB}1", "105", "{END}"},
             [&] {
                 EXPECT_TRUE(Kept() == kept);
                 if (!gAppState.gSelectedVoucherDate.isValid())
                     return;
                 ++picked;
                 EXPECT_EQ(gAppState.gSelectedVoucherDate, QDate(2026, 4, 12));
                 EXPECT_EQ(Rows(Sql(u"select TranId from TransactionsMaster where TranId=",
                                    gAppState.gSelectedVoucherNo))
                               .size(),
                     1);
             }},
        walks);
    EXPECT_GT(picked, 10);
}

void ScreenWalks::OverTheSpan(int walks)
{
    const std::string kept = Kept();
    int changes = 0;
    QString before;
    Walk({"frmThevDate", Show<frmThevDate>,
             {"01052026{ENTER}30042027{ENTER}{ENTER}", "01042026{ENTER}", "31032027{ENTER}", "%s", "%b",
                 "29022027{ENTER}", "+{TAB}{DEL}"},
             [&] {
                 EXPECT_TRUE(Kept() == kept);
                 EXPECT_TRUE(gAppState.gFromDate.isValid() && gAppState.gToDate.isValid());
                 const QString now = Rows("select FromDate,ToDate from CompanySelected").join(u'\n');
                 const QString state =
                     gAppState.gFromDate.toString("dd/MM/yyyy|") + gAppState.gToDate.toString("dd/MM/yyyy");
                 EXPECT_EQ(now.toStdString(), state.toStdString());
                 changes += now == before ? 0 : 1;
                 before = now;
             }},
        walks);
    EXPECT_GT(changes, 5);
}

// The vouchers

// Each advance is the sum of its heads, each receipt has its row, and what a voucher adds to one balance of a
// member it has taken from the other.
void ScreenWalks::ExpectSoundVouchers()
{
    std::map<QString, double> sums;
    const auto key = [](const Recordset& row) -> QString {
        return row[u"TranDate"].Text() + u' ' + row[u"TranId"].Text();
    };
    for (const char* table : {"TransactionsDetails", "AdvanceReceipt"})
        for (Recordset row(gCn, QString("select * from ") + table); !row.Eof(); row.MoveNext())
            sums[key(row)] += row[u"Amount"].Number();
    for (Recordset row(gCn, "select * from TransactionsMaster"); !row.Eof(); row.MoveNext())
        EXPECT_NEAR(row[u"Amount"].Number(), sums[key(row)], 0.001) << qPrintable(key(row));
    for (Recordset row(gCn, "select * from MembersMaster"); !row.Eof(); row.MoveNext())
        EXPECT_NEAR(row[u"ClosingBalance"].Number(), -row[u"ClosingUchal"].Number(), 0.001);
}

void ScreenWalks::OverTheVouchers(int walks)
{
    Run("delete * from TransactionsMaster where TranId>2");
    int changes = 0;
    QStringList before;
    Walk({"frmUchalVouchers", Show<frmUchalVouchers>,
             {"%r%n15042026{ENTER}{ENTER}1{ENTER}{ENTER}KaV{ENTER}12.35{ENTER}{ENTER}{F4}{ENTER}%n",
                 "%r%n15042026{ENTER}{ENTER}2{ENTER}{ENTER}4.05{ENTER}{ENTER}%n",
                 "%r%d{ENTER}{ENTER}{ENTER}]cala{ENTER}7.25{ENTER}{ENTER}{F4}{ENTER}%h%n",
                 "%r%d{ENTER}{ENTER}{ENTER}61.15{ENTER}{ENTER}%h", "%r%k{DOWN}{ENTER}{ENTER}%h", "%r", "%r%b",
                 "%r+{TAB}{DOWN}", "{F4}", "%r%k{END}{ENTER}{ENTER}%h"},
             [&] {
                 const QStringList now = Rows("select * from TransactionsMaster");
                 changes += now == before ? 0 : 1;
                 before = now;
                 ExpectSoundVouchers();
             }},
        walks);
    EXPECT_GT(changes, 5);
}

void ScreenWalks::OverTheInstallments(int walks)
{
    Run("update MembersMaster set ClosingUchal=12.5");
    int changes = 0;
    QStringList before;
    Walk({"frmInstallment", Show<frmInstallment>,
             {"1{ENTER}{ENTER}50{ENTER}", "{END}{DOWN}2{ENTER}{ENTER}75.5{ENTER}", "{RIGHT}{RIGHT}20{ENTER}",
                 "{DEL}", "{ESC}", "{ESC}{ESC}", "{END}{DOWN}"},
             [&] {
                 const QStringList now =
                     Rows("select MemberNo,Kapat from InstallmentTable order by MemberNo");
                 changes += now == before ? 0 : 1;
                 before = now;
                 QString last;
                 for (const QString& row : now) {
                     EXPECT_NE(row.section(u'|', 0, 0).toStdString(), last.toStdString()) << "a member twice";
                     EXPECT_GT(row.section(u'|', 0, 0).toDouble(), 0);
                     last = row.section(u'|', 0, 0);
                 }
                 EXPECT_EQ(One("select sum(ClosingUchal) from MembersMaster").toDouble(), 37.5);
                 Run("delete * from InstallmentTable where MemberNo>3");
             }},
        walks);
    EXPECT_GT(changes, 5);
}
