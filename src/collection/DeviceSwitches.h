#pragma once

#include "platform/forms/Button.h"
#include "platform/forms/Field.h"

class QLayout;

// The switches of the scale and of the fat tester beside the deliveries. They hold for this run of the
// program.
class DeviceSwitches {
public:
    explicit DeviceSwitches(Screen* screen);

    // Shows what is switched on.
    void Show();

    // A field that waits for a device may be left without a value for one place only: the switch of that
    // device. Tells whether the clerk goes there; leaving the switch then leads back to the field, since the
    // line isn't to be saved without its value.
    bool IsLeftForScale(Field& field, const Control* goingTo);
    bool IsLeftForTester(Field& field, const Control* goingTo);

    // A device and its switch in a line.
    QLayout* ScaleLine();
    QLayout* TesterLine();

private:
    Button cmdAutoLiter;
    Button cmdAutoFat;
    Field* m_waiting = nullptr;

    void cmdAutoLiter_Click();
    void cmdAutoFat_Click();
    void Switch_LostFocus();
    bool IsLeftFor(const Button& device, QStringView setting, Field& field, const Control* goingTo);
};
