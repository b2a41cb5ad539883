#include "sales/DaySummary.h"

#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/forms/Pieces.h"
#include "sales/SalesShift.h"
#include "society/Words.h"

#include <QFrame>
#include <QGridLayout>

using namespace Pieces;

DaySummary::Figures::Figures(Screen* screen, const char* litersName, const char* amountName)
    : liters(screen, litersName)
    , amount(screen, amountName)
{
}

void DaySummary::Figures::Show(const Sum& sum)
{
    liters.SetFigure(Format(sum.liters, u"#####0.000"));
    amount.SetFigure(Format(sum.amount.Number(), u"#####0.00"));
}

DaySummary::DaySummary(Screen* screen)
    : m_rokhCow(screen, "lblRokhCowSaleLiter", "lblRokhCowSaleAmt")
    , m_rokhBuff(screen, "lblRokhBuffSaleLiter", "lblRokhBuffSaleAmt")
    , m_udharCow(screen, "lblUdharCowSaleLiter", "lblUdharCowSaleAmt")
    , m_udharBuff(screen, "lblUdharBuffSaleLiter", "lblUdharBuffSaleAmt")
{
}

void DaySummary::Show(const SalesShift& shift)
{
    Sum rokhCow;
    Sum rokhBuff;
    Sum udharCow;
    Sum udharBuff;
    for (Recordset sale(gCn,
             Sql(u"SELECT SalesType,Animal,Liters,Amount FROM MilkSales WHERE CompanyId=",
                 gAppState.gCompanyId, u" AND SalesDate=", SqlDay(shift.date), u" AND SalesTime=",
                 Quoted(shift.time)));
         !sale.Eof(); sale.MoveNext()) {
        const QString type = sale[u"SalesType"].Text();
        const bool isRokh = type == Word::LocalSale || type == Word::Cash;
        const bool isCow = sale[u"Animal"].Text() == Word::Cow;
        Sum& sum = isRokh ? (isCow ? rokhCow : rokhBuff) : (isCow ? udharCow : udharBuff);
        sum.liters += sale[u"Liters"].Number();
        sum.amount += Currency(sale[u"Amount"].Number());
    }
    m_rokhCow.Show(rokhCow);
    m_rokhBuff.Show(rokhBuff);
    m_udharCow.Show(udharCow);
    m_udharBuff.Show(udharBuff);
}

void DaySummary::ShowNone()
{
    for (Figures* figures : {&m_rokhCow, &m_rokhBuff, &m_udharCow, &m_udharBuff})
        figures->Show({});
}

QWidget* DaySummary::LaidOut()
{
    auto* sheet = Sheet();
    auto* grid = new QGridLayout(sheet);
    grid->setContentsMargins(16, 4, 16, 6);
    grid->setHorizontalSpacing(14);
    grid->setVerticalSpacing(0);
    constexpr int groupWidth = 5; // title, animal, litres, amount, and the gap between the groups
    const auto put = [&](int column, const Caption& title, const Figures& cow, const Figures& buff) {
        for (const auto& [caption, at] :
            {std::pair(Shivaji(u"ilaTsa-"), column + 2), std::pair(Shivaji(u"r@kma"), column + 3)}) {
            QLabel* head = Heading(caption, Look::Size::Small);
            head->setAlignment(Qt::AlignRight);
            grid->addWidget(head, 0, at);
            grid->setColumnStretch(at, 1);
        }
        grid->addWidget(Heading(title, Look::Size::Normal, true), 1, column);
        int row = 1;
        for (const auto& [animal, figures] :
            {std::pair(Shivaji(Word::Cow), &cow), std::pair(Shivaji(Word::Buffalo), &buff)}) {
            grid->addWidget(Heading(animal), row, column + 1);
            grid->addWidget(Figure(figures->liters, Look::Size::Large), row, column + 2);
            grid->addWidget(Figure(figures->amount, Look::Size::Large), row++, column + 3);
        }
    };
    put(0, Shivaji(Word::LocalSale), m_rokhCow, m_rokhBuff);
    put(groupWidth, Shivaji(Word::FederationSale), m_udharCow, m_udharBuff);
    grid->setColumnMinimumWidth(groupWidth - 1, 20);
    return sheet;
}
