#pragma once

#include "core/preview/TemplateReport.h"
#include "sales/frmMilkSales.h"
#include "tests/support/SocietyTest.h"

// A clerk at the screen of sales on the morning of 15/04/2026. Local sale goes to customer 1, "ha^Tola", and
// the federation is customer 2, "saMGa"; both have 100 litres of each milk at the opening and 120 now.
class MilkSalesTest : public SocietyTest {
protected:
    MilkSalesTest();
    ~MilkSalesTest() override { TemplateReport::Engine() = m_engine; }

    void Play(const std::function<void(Clerk&)>& script) { On<frmMilkSales>(script); }

    // The same with the morning open and the focus on the number.
    void InTheMorning(const std::function<void(Clerk&)>& script);

    static constexpr const char* Hotel = "ha{^}Tola"; // as it is typed

    // Keys a sale from the number to the button, which isn't pressed; the rate is the proposed one unless one
    // is given. The name is given as keys, the animal as its figure.
    static void Key(Clerk& clerk, const char* name, const char* animal, const char* liters, const char* fat,
        const char* rate = "");

    // The same and saves it.
    static void Sell(Clerk& clerk, const char* name, const char* animal, const char* liters, const char* fat,
        const char* rate = "");

    void AddCustomer(int number, const QString& name, const QString& type, int company = 1);

    // A row of the books of 15/04/2026, at 48 rupees, with a measure of its own.
    void AddSale(int number, const QString& time, const QString& type, int customerNo, const QString& name,
        const QString& animal, double liters, int company = 1);

    // A delivery of the day.
    void AddDelivery(
        int number, const QString& time, const QString& animal, double liters, double fat, int company = 1);

    // "SalesNo|SalesType|CustomerNo|CustomerName|Animal|Liters|Fat|Rate|Amount" of the books and of the copy.
    QStringList Books();
    QStringList Copy();

    // The same of the list on the screen.
    static QStringList Listed(const Clerk& clerk);

    // "SalesNo|OurLiters|SNF|OurFat|OurRate|OurAmount".
    QStringList Ours();

    // "CowClosingLits|BuffClosingLits" of a customer.
    std::string Closing(int customer, int company = 1);

    // What was sent to the printer or to the screen.
    std::vector<TemplateReport::Run> Printed;

    // Lets receipts be printed as they are for a clerk.
    void PrintForReal() { TemplateReport::Engine() = m_engine; }

private:
    std::function<void(const TemplateReport::Run&)> m_engine = TemplateReport::Engine();
};
