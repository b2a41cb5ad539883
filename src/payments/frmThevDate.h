#pragma once

#include "platform/forms/Button.h"
#include "platform/forms/DateField.h"
#include "society/SocietyScreen.h"

// The span of days that the deposits are reported for. It is also what the whole system takes for the year.
class frmThevDate final : public SocietyScreen {
public:
    frmThevDate();

    static Keys::Places KeyPlaces();

private:
    DateField maskFromDate{this, "maskFromDate"};
    DateField MaskEdBox1{this, "MaskEdBox1"};
    Button Command1{this, "Command1", Shivaji(u"&saovh"), &frmThevDate::Command1_Click};
    Button Command2{this, "Command2", Shivaji(u"&baahor"), &frmThevDate::Command2_Click};

    void Load() override;

    void Command1_Click();
    void Command2_Click();

    void LayOut();
};
