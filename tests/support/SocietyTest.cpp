#include "tests/support/SocietyTest.h"

#include "core/start/MdlAccounts.h"
#include "core/start/Program.h"
#include "platform/database/Sql.h"
#include "platform/forms/ProgramWindow.h"
#include "platform/shell/AppFolder.h"
#include "platform/text/Shivaji01.h"
#include "tools/setup/Society.h"

#include <QDir>
#include <QLabel>

bool FakeCalculator::Start(const QString& program, bool maximised)
{
    Started.append(program + (maximised ? QStringLiteral(" maximised") : QStringLiteral(" normal")));
    return There;
}

QString FakeInputBox::Ask(const QString& prompt, const QString& proposed, const QString&)
{
    Asked.append(prompt + u'|' + proposed);
    return Answers.isEmpty() ? QString() : Answers.takeFirst();
}

SocietyTest::SocietyTest()
{
    SetDrivesRoot(m_drives.path());
    World::Current() = {&TheClock, &TheCalculator, &TheBox, &TheInputBox, World::Real().fileSystem};
    const QString folder = LocalPath(Paths::AppFolder);
    QDir().mkpath(folder);
    SocietyPlan plan;
    plan.name = QStringLiteral("श्री गणेश दूध संस्था");
    plan.year = QStringLiteral("2026-2027");
    plan.password = QStringLiteral("Doodh#26");
    plan.now = TheClock.Time;
    CopySociety(folder, plan);
    RegisterPlaces();
    LoadAppState();
    gAppState.gAppDate = TheClock.Time.date();
}

SocietyTest::~SocietyTest()
{
    gCn.Close();
    gAppState = AppState();
    SetDrivesRoot({});
    ProgramWindow::Leave(); // the line of a check may have opened it
}

std::string SocietyTest::Label(const Clerk& clerk, const char* label)
{
    const auto* found = clerk.Top().findChild<QLabel*>(QString::fromUtf8(label));
    return found ? found->text().toStdString() : std::string("no label ") + label;
}

void SocietyTest::AddMember(int number, const QString& name, const QString& animal)
{
    gCn.Execute(Sql(
        u"insert into MembersMaster(CompanyId,MemberNo,MemberName,AccountId,Address,City,Animal,PaymentType,"
        u"BankName,BankAccountNo,OpeningBalance,OpeningDorC,ClosingBalance,ClosingDorC,CowOpeningThev,"
        u"CowClosingThev,BuffOpeningThev,BuffClosingThev,OpeningUchal,ClosingUchal,CowOpeningLits,"
        u"CowClosingLits,BuffOpeningLits,BuffClosingLits) values(",
        gAppState.gCompanyId, u",", number, u",'", name, u"',0,'','','", animal,
        u"','raoK','','',0,'C',0,'C',0,0,0,0,0,0,0,0,0,0)"));
}

QString SocietyTest::One(const QString& query)
{
    const Recordset rows(gCn, query);
    return rows.Eof() ? QString() : rows.At(0).Text();
}

QStringList SocietyTest::Rows(const QString& query)
{
    QStringList lines;
    for (Recordset rows(gCn, query); !rows.Eof(); rows.MoveNext()) {
        QStringList fields;
        for (int at = 0; at < rows.Columns(); ++at)
            fields.append(rows.At(at).IsNull() ? QStringLiteral("NULL") : rows.At(at).Text());
        lines.append(fields.join(u'|'));
    }
    return lines;
}

QString SocietyTest::FolderFile(const QString& name) const
{
    return LocalAppFile(name);
}

QString Seen(const QString& stored)
{
    return Shivaji01::ToUnicode(stored);
}
