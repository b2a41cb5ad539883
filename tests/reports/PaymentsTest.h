#pragma once

#include "core/preview/TemplateReport.h"
#include "tests/reports/ReportsTest.h"
#include "tests/support/EachPainting.h"

#include <QEvent>
#include <QLabel>

// A society with rows of payments, advances and repayments, as the screens that write them leave them.
class PaymentsTest : public ReportsTest {
protected:
    // A row of MilkPayments.
    struct Payment {
        int member = 1;
        const char* name = "rama";
        const char* from = "11/04/2026";
        const char* to = "20/04/2026";
        const char* date = "20/04/2026";
        int tranId = 1;
        const char* animal = "daonhI";
        double litersCow = 100;
        double litersBuff = 50.5;
        double cowAmount = 2500;
        double buffAmount = 1800.5;
        double thevCow = 10;
        double thevBuff = 10.1;
        double uchal = 828;
        double netAmount = 3452.4;
        double previousBalance = 500;
        double currentBalance = 0.45;
        double fixedKapat = 5;
        double previousAdvance = 500;
        int company = 1;
    };
    void Pay(const Payment& payment);

    // A row of MilkPaymentsDetails, TransactionsDetails or AdvanceReceipt.
    void AddHead(const char* table, const char* date, int member, const char* type, double amount,
        int company = 1, int tranId = 0);

    void SetDuration(const char* duration) { gAppState.gPaymentDuration = QString::fromUtf8(duration); }
    void LetMembersRepeat() { Run("update AutoSettings set RepeatCollection='haoya'"); }
};

// Writes down what is painted of the bar and the member in hand while a report is staged: "9 % 1 राम".
class PaintedStaging final : public QObject {
public:
    explicit PaintedStaging(const Screen& screen)
        : m_percent(screen.findChild<QLabel*>(QStringLiteral("lblPercent")))
        , m_message(screen.findChild<QLabel*>(QStringLiteral("lblMessage")))
        , m_member(screen.findChild<QLabel*>(QStringLiteral("lblMember")))
    {
        m_percent->installEventFilter(this);
    }

    QStringList Seen;
    QStringList Messages;

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            Seen.append(m_percent->text() + u' ' + m_member->text());
            Messages.append(m_message->text());
        }
        return false;
    }

    // Whether any of it is shown now.
    bool IsShown() const { return m_percent->isVisible() || m_message->isVisible() || m_member->isVisible(); }

private:
    const EachPainting m_each;
    QLabel* m_percent;
    QLabel* m_message;
    QLabel* m_member;
};

// Looks at what is shown in the moment in which a report is printed, in place of printing it.
class AtThePrint final {
public:
    explicit AtThePrint(std::function<void()> look)
        : m_engine(std::exchange(
            TemplateReport::Engine(), [look = std::move(look)](const TemplateReport::Run&) { look(); }))
    {
    }
    ~AtThePrint() { TemplateReport::Engine() = m_engine; }
    Q_DISABLE_COPY_MOVE(AtThePrint)

private:
    std::function<void(const TemplateReport::Run&)> m_engine;
};

// Literals in the books' encoding as lines to compare.
QStringList Lines(std::initializer_list<const char*> lines);
