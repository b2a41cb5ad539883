#pragma once

#include "tests/collection/CounterTest.h"

// The morning has four deliveries already.
class GateTest : public CounterTest {
protected:
    GateTest()
    {
        AddMilk(1, 1, "rama", "gaaya", 5, 4.5, 35, 175);
        AddMilk(2, 2, "saIta", "mhOsa", 2.5, 8, 49, 122.5);
        AddMilk(3, 3, "gaNaoSa", "gaaya", 7, 4, 32, 224);
        AddMilk(4, 3, "gaNaoSa", "mhOsa", 2.5, 7, 45, 112.5);
    }

    void AddMilk(int number, int member, const char* name, const char* animal, double liters, double fat,
        double rate, double amount)
    {
        AddDelivery("15/04/2026", "sakaL", number, member, QString::fromLatin1(name),
            QString::fromLatin1(animal), liters, fat, rate, amount);
    }

    // The numbers in the list, from the top down.
    static std::string Listed(Clerk& clerk)
    {
        const DataGrid& grid = Grid(clerk, "DataGridInwards");
        std::string numbers;
        for (int row = 0; row < grid.Rows(); ++row)
            numbers += grid.Cell(row, 0).toStdString();
        return numbers;
    }

    // At the gate with the search on and the focus on the collection number.
    void Searching(const std::function<void(Clerk&)>& script)
    {
        AtTheGate([&](Clerk& clerk) {
            clerk.Press("chkSerachMode");
            PressAndSelect(clerk, "txtCollectionNo");
            script(clerk);
        });
    }

    // With the mouse into a field, whose text is to be typed over.
    static void PressAndSelect(Clerk& clerk, const char* field) { clerk.Press(QString::fromLatin1(field)); }

    static std::string ColourOf(Clerk& clerk, const char* control, QPalette::ColorRole role)
    {
        return clerk.Top()
            .Find(QString::fromLatin1(control))
            ->Widget()
            ->palette()
            .color(QPalette::Active, role)
            .name()
            .toStdString();
    }
};
