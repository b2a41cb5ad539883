// The bonus, with the figures of a large year and a long name.

#include "bonus/frmBonusPayments.h"
#include "tests/journeys/ReadableTest.h"

using ReadableBonusTest = ReadableTest;

TEST_F(ReadableBonusTest, FromTheQuestionsToTheCorrectedMembers)
{
    Run("update MilkCollections set Liters=29999.999 where MemberNo=3");
    Run("update MembersMaster set MemberName='ica. saaO. laxmaIbaa[- saaopanarava doSapaaMDo' where "
        "MemberNo=3");
    Run("insert into TransactionsMaster(CompanyId,TranDate,TranId,TranType,DAccountName,CAccountName,Amount,"
        "BillNo,Narration) values(1,'14/04/2026',1,'pomaonT','ica. saaO. laxmaIbaa[- saaopanarava "
        "doSapaaMDo',"
        "'raoK',99999.99,']cala',']cala idlaI.')");
    On<frmBonusPayments>([](Clerk& clerk) {
        ExpectReadable(clerk, "as it opens");
        TypeAndLook(clerk,
            {"01042026{ENTER}", "30042026{ENTER}", "1{ENTER}", "{ENTER}", "3{ENTER}", "4.55{ENTER}",
                "5.55{ENTER}", " {ENTER}", "{ENTER}", "3{ENTER}", "{ENTER}", "19999.999{ENTER}",
                "19999.999{ENTER}", "{ENTER}", "99999.99{ENTER}", "{ENTER}", "{F5}"});
    });
    EXPECT_FALSE(Failure) << Failure->Text().toStdString();
}
