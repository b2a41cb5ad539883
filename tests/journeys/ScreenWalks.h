#pragma once

#include "tests/support/FakeReportWindow.h"
#include "tests/support/SocietyTest.h"

#include <map>
#include <random>

// Opens a screen of its own until it is left.
template <class S> void Show()
{
    S screen;
    screen.ShowModal();
}

// Walks without sense over the screens of the money and of the milk that is sold: a walk is five throws of
// keys, each of them a move, a figure, an order, or a stretch that leads somewhere. A screen that was left is
// opened again, and what has to hold is looked at then. The dice always fall the same way.
class ScreenWalks : public SocietyTest {
protected:
    ScreenWalks();
    ~ScreenWalks() override;

    void OverTheFatRates(int walks);
    void OverTheSlips(int walks);
    void OverTheRegisters(int walks);
    void OverTheLookUp(int walks);
    void OverTheSpan(int walks);
    void OverTheVouchers(int walks);
    void OverTheInstallments(int walks);
    void OverThePayments(int walks);
    void OverTheCustomers(int walks);
    void OverTheSales(int walks);
    void OverTheBonus(int walks);

    struct Walked {
        const char* name;
        std::function<void()> open;
        std::vector<const char*> phrases;
        std::function<void()> check; // once it was left
        std::function<void()> look = {}; // after each throw
        bool mayEnd = false; // the program, with a run-time error
    };
    void Walk(const Walked& screen, int walks);

    // The rows that a screen leaves alone: all of the books but those of the tables that it is for.
    std::string Kept(const QStringList& written = {});

    FakeReportWindow TheWindow;

private:
    QString NextKeys(const Walked& screen);
    int Throw(std::size_t sides) { return static_cast<int>(m_dice() % sides); }
    template <class List> const auto& AnyOf(const List& list)
    {
        return list[static_cast<std::size_t>(Throw(std::size(list)))];
    }

    void ForgetCharts();
    void FillUnpaidBooks();
    void ForgetPayments();
    void ExpectSoundRates();
    void ExpectSoundVouchers();
    void ExpectSoundCustomers();
    void ExpectSoundSales();
    int ExpectSoundBonus();

    std::mt19937 m_dice{20260415};
};
