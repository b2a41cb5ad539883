#pragma once

#include "bonus/frmBonusPayments.h"
#include "tests/support/SocietyTest.h"

// A clerk at the bonus. Members 5, "rama", 12, "saIta", and 30, "gaNaoSa", brought milk in April 2026: the
// first 100 litres of cow's and 200 of buffalo's, the second 8 of buffalo's, the third none. The rates of the
// settings are 0.50 and 0.75.
class BonusPaymentsTest : public SocietyTest {
protected:
    BonusPaymentsTest();
    ~BonusPaymentsTest() override { TemplateReport::Engine() = m_engine; }

    void Play(const std::function<void(Clerk&)>& script) { On<frmBonusPayments>(script); }

    // Asks for April and members 5 to 30 and both kinds of milk, up to the button, which isn't pressed.
    static void Ask(Clerk& clerk);

    // The same, and plays on the members that it shows.
    void AfterTheRun(const std::function<void(Clerk&)>& script);

    void AddDelivery(const char* date, int member, const char* animal, double liters, int company = 1);
    void AddVoucher(
        const char* date, int number, const QString& member, double amount, const char* narration);
    void AddReceipt(const char* date, int member, double amount);

    // "SerialNo|MemberNo|MemberName|CurrentCow|CurrentBuff|TotalCow|TotalBuff|CowBonus|BuffBonus|Total|Advance".
    QStringList Built();

    // "PreviousCow|PreviousBuff|TotalCow|TotalBuff|CowBonus|BuffBonus|Total|Advance|Remaining|PreviousThev".
    std::string Corrected(int member);

    static bool Shows(Clerk& clerk, const char* control)
    {
        return clerk.Top().Find(QString::fromLatin1(control))->Visible();
    }

    std::vector<TemplateReport::Run> Printed;
    void PrintForReal() { TemplateReport::Engine() = m_engine; }

private:
    std::function<void(const TemplateReport::Run&)> m_engine = TemplateReport::Engine();
};
