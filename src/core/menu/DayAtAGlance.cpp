#include "core/menu/DayAtAGlance.h"

#include "core/start/BooksOpening.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/forms/Look.h"
#include "platform/text/Dates.h"
#include "platform/text/Numbers.h"

#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>

#include <iterator>

namespace {

// The shifts as the books spell them, and as they are read.
struct Shift {
    QStringView time;
    QStringView seen;
    const char* litres = nullptr; // the names of their labels
    const char* amount = nullptr;
};
constexpr Shift Shifts[] = {{u"sakaL", u"सकाळ", "lblMorningLiters", "lblMorningAmount"},
    {u"saMQyaakaL", u"संध्याकाळ", "lblEveningLiters", "lblEveningAmount"}};

QLabel* Text(const QString& text, Qt::Alignment align, bool bold = false)
{
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(align | Qt::AlignVCenter);
    if (bold)
        label->setFont(Look::Font(Look::Size::Normal, true));
    return label;
}

}

DayAtAGlance::DayAtAGlance() : m_day(Text({}, Qt::AlignLeft, true)), m_backup(Text({}, Qt::AlignLeft))
{
    setFrameShape(QFrame::NoFrame);
    setAutoFillBackground(true);
    QPalette paper = palette();
    paper.setColor(QPalette::Window, QColor(Look::Quiet));
    setPalette(paper);

    m_day->setObjectName(QStringLiteral("lblWorkingDay"));
    m_backup->setObjectName(QStringLiteral("lblLastBackup"));

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(16, 12, 16, 12);
    grid->setHorizontalSpacing(18);
    grid->setVerticalSpacing(6);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 1);
    int row = 0;
    grid->addWidget(m_day, row++, 0, 1, 3);
    grid->addWidget(Text(QStringLiteral("लिटर"), Qt::AlignRight), row, 1);
    grid->addWidget(Text(QStringLiteral("रुपये"), Qt::AlignRight), row++, 2);
    for (int shift = 0; shift < static_cast<int>(std::size(Shifts)); ++shift) {
        m_litres[shift] = Text({}, Qt::AlignRight, true);
        m_amount[shift] = Text({}, Qt::AlignRight, true);
        m_litres[shift]->setObjectName(QLatin1String(Shifts[shift].litres));
        m_amount[shift]->setObjectName(QLatin1String(Shifts[shift].amount));
        grid->addWidget(Text(Shifts[shift].seen.toString(), Qt::AlignLeft), row, 0);
        grid->addWidget(m_litres[shift], row, 1);
        grid->addWidget(m_amount[shift], row++, 2);
    }
    grid->addWidget(m_backup, row, 0, 1, 3);
}

void DayAtAGlance::Show()
{
    m_day->setText(gAppState.gAppDate.isValid()
            ? QStringLiteral("कामाचा दिवस  ") + DateText(gAppState.gAppDate)
            : QString());
    ShowShifts();
    ShowBackup();
}

void DayAtAGlance::ShowShifts()
{
    for (int shift = 0; shift < static_cast<int>(std::size(Shifts)); ++shift) {
        double litres = 0;
        double amount = 0;
        if (gAppState.gAppDate.isValid()) {
            const Recordset sums(gCn,
                Sql(u"select sum(Liters),sum(Amount) from MilkCollections where CollectionDate=#",
                    gAppState.gAppDate.toString(QStringLiteral("MM/dd/yyyy")), u"# and CollectionTime=",
                    Quoted(Shifts[shift].time), u" and CompanyId=", gAppState.gCompanyId));
            litres = sums.At(0).Number();
            amount = sums.At(1).Number();
        }
        m_litres[shift]->setText(Format(litres, u"#######0.000"));
        m_amount[shift]->setText(Format(amount, u"#########0.00"));
    }
}

void DayAtAGlance::ShowBackup()
{
    const QString newest = NewestBackup();
    m_backup->setText(newest.isEmpty()
            ? QStringLiteral("बॅकअप अजून घेतलेला नाही")
            : QStringLiteral("शेवटचा बॅकअप  ") + DateText(QFileInfo(newest).lastModified().date()));
}
