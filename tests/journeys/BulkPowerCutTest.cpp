#include "platform/shell/AppFolder.h"
#include "tests/journeys/Actions.h"
#include "tests/journeys/Processes.h"
#include "tests/journeys/ProgramTest.h"
#include "tests/support/FaultyDisk.h"

#include <QDir>
#include <QFile>

#include <csignal>

namespace {

// The run over many members, cut at each of its writes: the members before are paid whole, the one at hand
// not at all, and the next run goes on.
class BulkPowerCutTest : public ProgramTest {
protected:
    void SetUp() override
    {
        FaultyDisk::Reset();
        FaultyDisk::Install();
        Reopen();
        FillBooks();
        Run("insert into MilkCollections(CompanyId,CollectionDate,CollectionTime,CollectionNo,MemberNo,"
            "MemberName,Animal,Liters,Fat,Rate,Amount) "
            "values(1,'13/04/2026','sakaL',1,3,'gaNaoSa','gaaya',5,4.5,35,175.45)");
        Run("update AutoSettings set DecimalPayment='AddThev',FixedKapat=2");
        gCn.Close();
        ASSERT_TRUE(QFile::copy(FolderFile(Database), m_kept.filePath(Database)));

        m_steps.append(Books());
        for (const char* last : {"1", "2", "3"}) {
            Renew();
            QString way = Way();
            way.chop(QStringLiteral("3{ENTER}").size());
            Play(way + QLatin1String(last) + QStringLiteral("{ENTER}"), Keys());
            m_steps.append(Books());
        }
        FaultyDisk::Reset();
        Renew();
        Start([this](Clerk& clerk) {
            clerk.Type(OpeningKeys() + Way());
            FaultyDisk::Reset();
            clerk.Type(Keys());
            m_writes = FaultyDisk::Count();
        });
        ASSERT_GT(m_writes, 3);
        for (qsizetype step = 1; step < m_steps.size(); ++step)
            ASSERT_NE(m_steps[step - 1], m_steps[step]);
    }

    void TearDown() override { FaultyDisk::Reset(); }

    static QString Way() { return ActionOf(QStringLiteral("PaidMany")).way; }
    static QString Keys() { return ActionOf(QStringLiteral("PaidMany")).keys; }

    void Renew()
    {
        gCn.Close();
        for (const QString& name :
            QDir(LocalPath(Paths::AppFolder)).entryList({Database + u'*'}, QDir::Files))
            ASSERT_TRUE(QFile::remove(FolderFile(name)));
        ASSERT_TRUE(QFile::copy(m_kept.filePath(Database), FolderFile(Database)));
    }

    void Play(const QString& way, const QString& keys)
    {
        Start([&](Clerk& clerk) { clerk.Type(OpeningKeys() + way + keys); });
    }

    // What the payments have written so far.
    QStringList Books()
    {
        Reopen();
        EXPECT_EQ(Integrity(), "ok");
        QStringList rows;
        for (const char* table : {"MilkPayments", "MilkPaymentsDetails", "AdvanceReceipt", "MembersMaster"})
            rows += Rows(QStringLiteral("select * from ") + QLatin1String(table));
        gCn.Close();
        return rows;
    }

    // How many members are paid whole; -1 if one is paid by half.
    qsizetype Paid() { return m_steps.indexOf(Books()); }

    // The clerk starts the run once more, and it pays the rest.
    void ExpectTheRestIsPaid()
    {
        Play(Way(), Keys());
        EXPECT_EQ(Books(), m_steps.last());
        TheBox.Shown.clear();
    }

    const QString Database = QStringLiteral("Morvelta.mdb");
    QList<QStringList> m_steps; // the books with none, one, two and three of the members paid
    int m_writes = 0;

private:
    QTemporaryDir m_kept;
};

TEST_F(BulkPowerCutTest, OnAFullDiskTheMembersBeforeArePaidWhole)
{
    qsizetype paid = 0;
    for (int n = 1; n <= m_writes && !HasFailure(); ++n) {
        SCOPED_TRACE("full from write " + std::to_string(n));
        Renew();
        EXPECT_EQ(Start([&](Clerk& clerk) {
            clerk.Type(OpeningKeys() + Way());
            FaultyDisk::Reset();
            FaultyDisk::FullFrom(n);
            clerk.Type(Keys());
        }),
            1);
        FaultyDisk::Reset();
        TheBox.Shown.clear();
        EXPECT_GE(Paid(), paid);
        paid = Paid();
        ExpectTheRestIsPaid();
    }
    EXPECT_GE(paid, 2);
}

TEST_F(BulkPowerCutTest, KilledAtAnyWriteTheMembersBeforeArePaidWholeAndTheNextRunGoesOn)
{
    qsizetype paid = 0;
    for (int n = 1; n <= m_writes && !HasFailure(); ++n) {
        SCOPED_TRACE("killed at write " + std::to_string(n));
        Renew();
        const auto other =
            Processes::Start("other_process", {Drives(), QStringLiteral("PaidMany"), QString::number(n)});
        ASSERT_TRUE(Processes::WaitForEnd(*other));
        EXPECT_EQ(other->exitCode(), SIGKILL);
        EXPECT_GE(Paid(), paid);
        paid = Paid();
        ExpectTheRestIsPaid();
    }
    EXPECT_GE(paid, 2);
}

}
