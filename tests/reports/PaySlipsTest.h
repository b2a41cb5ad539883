#pragma once

#include "tests/reports/PaymentsTest.h"

#include "reports/frmReportMilkPayments.h"

// The slips of a payment date, with three members.
class PaySlipsTest : public PaymentsTest {
protected:
    PaySlipsTest()
    {
        AddMember(1, "rama");
        AddMember(5, "saIta");
        AddMember(9, "gaNaoSa");
    }

    // Prints the slips of all members for the 20th, or for another date.
    void Print(const char* keys = "20042026{ENTER}1{ENTER}{ENTER}%i")
    {
        Type<frmReportMilkPayments>(keys);
        EXPECT_FALSE(Failure);
    }

    // The day lines of a condition.
    QStringList Days(const char* condition)
    {
        return Rows(QStringLiteral("select CollectionDate,MemberNo,MemberName,Animal,LitersM,FatM,RateM,"
                                   "AmountM,LitersE,FatE,RateE,AmountE from MilkCollectionsME where ")
            + QString::fromUtf8(condition));
    }

    // The lines beside the days.
    QStringList Pairs(int member)
    {
        return Rows(QStringLiteral("select CollectionDate,Label1,Value1 from KapatDetails where MemberNo=%1 "
                                   "order by CollectionDate")
                        .arg(member));
    }
};
