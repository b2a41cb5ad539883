#pragma once

#include "tests/payments/PaymentsTest.h"

// A clerk at a run over the members 1, 2 and 5, who have milk of 02/04/2026, and 4, who has none.
class BulkPaymentTest : public PaymentsTest {
protected:
    BulkPaymentTest()
    {
        Run("delete * from MembersMaster");
        for (const int member : {1, 2, 4, 5})
            AddMember(member, QStringLiteral("naava") + QString::number(member));
        for (const int member : {1, 2, 5})
            AddMilk(member, "02/04/2026", "gaaya", 10, 100 * member);
    }

    // At the fields of a run.
    void AtFields(const std::function<void(Clerk&)>& script)
    {
        Play([&](Clerk& clerk) {
            Type(clerk, "{DOWN}{DOWN}{ENTER}");
            ASSERT_EQ(Focus(clerk), "maskFromDate1");
            script(clerk);
        });
    }
};
