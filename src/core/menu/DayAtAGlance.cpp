#include "core/menu/DayAtAGlance.h"

#include "core/start/BooksOpening.h"
#include "core/state/AppState.h"
#include "core/state/ShiftWords.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/forms/Layout.h"
#include "platform/forms/Look.h"
#include "platform/shell/World.h"
#include "platform/text/Dates.h"
#include "platform/text/Numbers.h"

#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>

#include <iterator>

namespace {

struct Shift {
    QStringView time;
    const char* litres = nullptr; // the names of their labels
    const char* amount = nullptr;
};
constexpr Shift Shifts[] = {{Word::Morning, "lblMorningLiters", "lblMorningAmount"},
    {Word::Evening, "lblEveningLiters", "lblEveningAmount"}};

constexpr qint64 DaysUntilBackup = 7;

// A day to come is a clock that was put back.
QString BackupLine(QDate made, qint64 days)
{
    if (days >= DaysUntilBackup)
        return QStringLiteral("बॅकअप %1 दिवस जुना आहे; नवीन घ्या").arg(days);
    QString age;
    if (days == 0)
        age = QStringLiteral(", आज");
    else if (days > 0)
        age = days == 1 ? QStringLiteral(", काल") : QStringLiteral(", %1 दिवसांपूर्वी").arg(days);
    return QStringLiteral("शेवटचा बॅकअप  ") + DateText(made) + age;
}

// A label whose text Show sets; tests find it by its name.
QLabel* Told(const char* name, Qt::Alignment align, bool bold)
{
    QLabel* label = Layout::Text({}, align, bold);
    label->setObjectName(QLatin1String(name));
    return label;
}

}

DayAtAGlance::DayAtAGlance()
    : m_day(Told("lblWorkingDay", Qt::AlignLeft, true))
    , m_payment(Told("lblLastPayment", Qt::AlignLeft, false))
    , m_backup(Told("lblLastBackup", Qt::AlignLeft, false))
{
    setFrameShape(QFrame::NoFrame);
    setAutoFillBackground(true);
    QPalette paper = palette();
    paper.setColor(QPalette::Window, QColor(Look::Quiet));
    setPalette(paper);

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(16, 12, 16, 12);
    grid->setHorizontalSpacing(18);
    grid->setVerticalSpacing(6);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 1);
    int row = 0;
    grid->addWidget(m_day, row++, 0, 1, 3);
    grid->addWidget(Layout::Text(::Plain(u"लिटर"), Qt::AlignRight), row, 1);
    grid->addWidget(Layout::Text(::Plain(u"रुपये"), Qt::AlignRight), row++, 2);
    for (int shift = 0; shift < static_cast<int>(std::size(Shifts)); ++shift) {
        m_litres[shift] = Told(Shifts[shift].litres, Qt::AlignRight, true);
        m_amount[shift] = Told(Shifts[shift].amount, Qt::AlignRight, true);
        grid->addWidget(Layout::Text(Shivaji(Shifts[shift].time)), row, 0);
        grid->addWidget(m_litres[shift], row, 1);
        grid->addWidget(m_amount[shift], row++, 2);
    }
    grid->addWidget(m_payment, row++, 0, 1, 3);
    grid->addWidget(m_backup, row, 0, 1, 3);
}

void DayAtAGlance::Show()
{
    m_day->setText(gAppState.gAppDate.isValid()
            ? QStringLiteral("कामाचा दिवस  ") + DateText(gAppState.gAppDate)
            : QString());
    ShowShifts();
    ShowPayment();
    ShowBackup();
}

void DayAtAGlance::ShowShifts()
{
    for (int shift = 0; shift < static_cast<int>(std::size(Shifts)); ++shift) {
        double litres = 0;
        double amount = 0;
        if (gAppState.gAppDate.isValid()) {
            const Recordset sums(gCn,
                Sql(u"select sum(Liters),sum(Amount) from MilkCollections where CollectionDate=",
                    SqlDay(gAppState.gAppDate), u" and CollectionTime=", Quoted(Shifts[shift].time),
                    u" and CompanyId=", gAppState.gCompanyId));
            litres = sums.At(0).Number();
            amount = sums.At(1).Number();
        }
        m_litres[shift]->setText(Format(litres, u"#######0.000"));
        m_amount[shift]->setText(Format(amount, u"#########0.00"));
    }
}

// The newest by the date of the bill; of several periods on one date, the one that ends last.
void DayAtAGlance::ShowPayment()
{
    const Recordset newest(gCn,
        Sql(u"select FromDate,ToDate from MilkPayments where CompanyId=", gAppState.gCompanyId,
            u" order by PaymentDate desc,ToDate desc"));
    m_payment->setText(newest.Eof()
            ? QStringLiteral("पेमेंट अजून झालेले नाही")
            : QStringLiteral("शेवटचे पेमेंट  %1 ते %2").arg(newest[u"FromDate"].Text(), newest[u"ToDate"].Text()));
}

void DayAtAGlance::ShowBackup()
{
    const QString newest = NewestBackup();
    const QDate made = QFileInfo(newest).lastModified().date();
    const qint64 days =
        newest.isEmpty() ? DaysUntilBackup : made.daysTo(World::Current().clock->Now().date());
    m_backup->setText(newest.isEmpty() ? QStringLiteral("बॅकअप अजून घेतलेला नाही") : BackupLine(made, days));
    QPalette ink = m_backup->palette();
    ink.setColor(QPalette::WindowText, QColor(days >= DaysUntilBackup ? Look::GuideInk : Look::Ink));
    m_backup->setPalette(ink);
}
