#pragma once

#include "collection/frmCollectionGate.h"
#include "collection/frmMilkCollections.h"
#include "core/preview/TemplateReport.h"
#include "tests/support/SocietyTest.h"
#include "tests/support/StandInScreens.h"

#include <QLabel>

// A society with three members at its counter: 1 brings cow milk, 2 buffalo milk, 3 both. It is the morning
// of 15/04/2026; the delivered chart gives 35.00 for a cow's 4.5 and 49.00 for a buffalo's 8.0.
class CounterTest : public SocietyTest {
protected:
    CounterTest()
    {
        AddMember(1, "rama", "gaaya");
        AddMember(2, "saIta", "mhOsa");
        AddMember(3, "gaNaoSa", "daonhI");
        TemplateReport::Engine() = [this](const TemplateReport::Run& run) { Printed.push_back(run); };
    }
    ~CounterTest() override { TemplateReport::Engine() = m_engine; }

    // What the counters have sent to the printer or to the screen.
    std::vector<TemplateReport::Run> Printed;

    // Lets the counters print through the report controls again, as they do for a clerk.
    void PrintForReal() { TemplateReport::Engine() = m_engine; }

    // Plays on the counter as it opens, with the focus on the date.
    void AtTheCounter(const std::function<void(Clerk&)>& script) { On<frmMilkCollections>(script); }

    // Plays with a shift open and the focus on the collection number.
    void InTheMorning(const std::function<void(Clerk&)>& script)
    {
        On<frmMilkCollections>([&](Clerk& clerk) {
            Type(clerk, "{ENTER}1{ENTER}");
            script(clerk);
        });
    }

    // The same at the gate.
    void AtTheGate(const std::function<void(Clerk&)>& script)
    {
        On<frmCollectionGate>([&](Clerk& clerk) {
            Type(clerk, "{ENTER}1{ENTER}");
            script(clerk);
        });
    }

    static const QLabel& LabelOf(Clerk& clerk, const char* label)
    {
        return *clerk.Top().findChild<QLabel*>(QString::fromLatin1(label));
    }
    static const DataGrid& Grid(Clerk& clerk, const char* grid)
    {
        return dynamic_cast<const DataGrid&>(*clerk.Top().Find(QString::fromLatin1(grid)));
    }

    // The cells of a row of a grid as they are seen, separated by '|'.
    static std::string Line(const DataGrid& grid, int row);

    // The captions of a grid's columns, the same way.
    static std::string Heads(const DataGrid& grid);

    // The widths of its columns but the one that takes what is left, in pixels.
    static std::vector<int> Widths(const DataGrid& grid);

    // 'r' for each column whose head and cells stand at the right, 'l' for each other.
    static std::string Alignments(const DataGrid& grid);

    static bool Shows(Clerk& clerk, const char* label) { return !LabelOf(clerk, label).isHidden(); }

    // From the number field through the line and back to it: a member with one animal.
    static void Deliver(Clerk& clerk, int member, const char* liters, const char* fat)
    {
        clerk.Type(QStringLiteral("{ENTER}%1{ENTER}%2{ENTER}%3{ENTER}{ENTER}{ENTER}")
                       .arg(member)
                       .arg(QString::fromLatin1(liters), QString::fromLatin1(fat)));
    }

    // The same for a member with both; animal 1 or 2.
    static void DeliverOf(Clerk& clerk, int member, int animal, const char* liters, const char* fat)
    {
        clerk.Type(QStringLiteral("{ENTER}%1{ENTER}%2{ENTER}%3{ENTER}%4{ENTER}{ENTER}{ENTER}")
                       .arg(member)
                       .arg(animal)
                       .arg(QString::fromLatin1(liters), QString::fromLatin1(fat)));
    }

    // A delivery that is in the books already.
    void AddDelivery(const QString& date, const QString& shift, int number, int member, const QString& name,
        const QString& animal, double liters, double fat, double rate, double amount);

    // One that member 1 made in the morning of the 15th: 5 litres of 4.5.
    void AddMorningDelivery(int number)
    {
        AddDelivery("15/04/2026", "sakaL", number, 1, "rama", "gaaya", 5, 4.5, 35, 175);
    }

    void Set(const char* setting, const char* value);

    QStringList Books() { return Lines("MilkCollections"); }
    QStringList Copy() { return Lines("MilkCollectionsTemp"); }

    // What a test compares lists of lines with.
    static QStringList Of(std::initializer_list<const char*> lines);

private:
    const std::function<void(const TemplateReport::Run&)> m_engine = TemplateReport::Engine();
    StandInScreens m_screens{{"frmMembers", "frmUchalVouchers", "frmAbsenseMemberCollection"}};
    StandInScreens m_dayLines{{"frmReportMilkPS"}, StandInScreens::Leave::AtOnce};

    QStringList Lines(const QString& table);
};
