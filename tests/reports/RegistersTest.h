#pragma once

#include "tests/reports/PaymentsTest.h"

#include "reports/frmReportMilkPaymentsRegister.h"

// The registers and balances in one of their modes, with three members.
class RegistersTest : public PaymentsTest {
protected:
    RegistersTest()
    {
        AddMember(1, "rama");
        AddMember(5, "saIta");
        AddMember(9, "gaNaoSa");
    }

    // Opens the screen in a mode and types; the period is the second ten days of April, if nothing else is
    // typed.
    void Print(const char* mode, const char* keys = "11042026{ENTER}{ENTER}1{ENTER}{ENTER}%i")
    {
        gAppState.gReportMode = QString::fromLatin1(mode);
        Type<frmReportMilkPaymentsRegister>(keys);
        EXPECT_FALSE(Failure) << mode;
    }

    void InMode(const char* mode, const std::function<void(Clerk&)>& script)
    {
        gAppState.gReportMode = QString::fromLatin1(mode);
        On<frmReportMilkPaymentsRegister>(script);
        EXPECT_FALSE(Failure) << mode;
    }
};
