// The sales, with large figures and a long name.

#include "sales/frmMilkSales.h"
#include "tests/journeys/ReadableTest.h"

using ReadableSalesTest = ReadableTest;

TEST_F(ReadableSalesTest, ASaleFromTheDateToTheSaveWithOurMeasure)
{
    Run("insert into CustomersMaster(CompanyId,CustomerNo,CustomerName,Animal,CustomerType) "
        "values(1,104,'EaI mahalaxmaI sahkarI dUQa saMGa','daonhI','saMGa ivaËI')");
    Run("insert into "
        "MilkSales(CompanyId,SalesDate,SalesTime,SalesType,SalesNo,CustomerNo,CustomerName,Animal,"
        "Liters,Fat,Rate,Amount,OurLiters) values(1,'15/04/2026','sakaL','saMGa ivaËI',999,104,"
        "'EaI mahalaxmaI sahkarI dUQa saMGa','mhOsa',99999.999,10.5,60,5999999.94,99999.999)");
    On<frmMilkSales>([](Clerk& clerk) {
        ExpectReadable(clerk, "as it opens");
        TypeAndLook(clerk,
            {"15042026{ENTER}", "1{ENTER}", "{ENTER}", "EaI{ENTER}", "2{ENTER}", "99999.999{F9}",
                "99999.999{ENTER}", "{ENTER}", "29.99{ENTER}", "60{ENTER}", "999.99{ENTER}", "{ENTER}",
                "29.9{ENTER}", "60{ENTER}", "{ENTER}", "{ENTER}", "{UP}{ENTER}"});
        EXPECT_EQ(Reads(clerk, "txtAmount"), "5999999.94");
    });
    EXPECT_FALSE(Failure) << Failure->Text().toStdString();
}
