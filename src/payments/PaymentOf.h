#pragma once

#include "core/state/AppState.h"
#include "platform/database/Sql.h"

#include <QDate>

// Whose payment it is, of which period, and on which date.
struct PaymentOf {
    double MemberNo = 0;
    QDate From;
    QDate To;
    QDate Bill;

    SqlText OfMember() const
    {
        return Sql(u" Where CompanyId=", gAppState.gCompanyId, u" And MemberNo=", MemberNo);
    }

    // The member's rows of the period in a table of vouchers, of repayments or of heads.
    SqlText InPeriod() const
    {
        return Sql(OfMember(), u" And TranDate>=", SqlDay(From), u" And TranDate<=", SqlDay(To));
    }

    // The member's deliveries of the period.
    SqlText Deliveries() const
    {
        return Sql(u" from MilkCollections", OfMember(), u" And CollectionDate>=", SqlDay(From),
            u" and CollectionDate<=", SqlDay(To));
    }

    // The member's payment of exactly this period.
    SqlText Payment() const
    {
        return Sql(OfMember(), u" And FromDate=", SqlDay(From), u" And Todate=", SqlDay(To));
    }

    bool operator==(const PaymentOf& other) const = default;
};
