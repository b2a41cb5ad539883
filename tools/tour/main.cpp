#include "Screens.h"
#include "core/messages/PlainBox.h"
#include "core/start/Program.h"
#include "platform/database/Connection.h"
#include "platform/forms/ModalStack.h"
#include "platform/shell/AppFolder.h"
#include "platform/shell/World.h"
#include "platform/text/RunTimeError.h"
#include "tools/setup/Society.h"
#include "tools/tour/Tour.h"

#include <QDir>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

// A clock that stands at the morning of the tour, so that its pictures are always the same.
class MorningClock final : public Clock {
public:
    QDateTime Now() const override { return QDateTime(QDate(2026, 6, 1), QTime(6, 5)); }
};

// The program's own message box while the clerk can close it. If the tour has failed, nobody can.
class TourBox final : public MessageBox {
public:
    bool ClerkIsThere = true;

    void Show(const QString& text, const QString& title) override
    {
        if (ClerkIsThere)
            m_cards.Show(text, title);
        else
            QTextStream(stderr) << text << '\n';
    }

private:
    PlainBoxCards m_cards;
};

// Writes the name of the scale into the settings; no screen asks for it.
void ConnectScale(Connection& books)
{
    books.Execute(QStringLiteral("update AutoSettings set WeighScale='ELECTRO'"));
}

void MakeItsOwnSociety(const QString& drives)
{
    SetDrivesRoot(drives);
    const QString folder = LocalPath(Paths::AppFolder);
    QDir().mkpath(folder);
    SocietyPlan plan;
    plan.name = QStringLiteral("श्री गणेश सहकारी दूध उत्पादक संस्था, मसूर");
    plan.year = QStringLiteral("2026-2027");
    plan.password = QStringLiteral("Tour-2026");
    plan.demo = true;
    plan.now = MorningClock().Now();
    MakeSociety(folder, plan);
    RegisterPlaces();
    Connection books;
    books.Open(QStringLiteral("dsn=VetrolanDSN;pwd=") + plan.password);
    ConnectScale(books);
}

void Play(Tour& tour, TourBox& box)
{
    const auto leave = qScopeGuard([&box] { box.ClerkIsThere = false; });
    PlayMorning(tour);
    PlayPaper(tour);
    PlayBackOffice(tour);
    PlayReports(tour);
    PlayMoney(tour);
    PlayMoneyPaper(tour);
    PlaySales(tour);
    PlayBooks(tour);
    PlayBackup(tour);
    PlayScale(tour);
    PlayLeaving(tour);
}

}

int main(int argc, char* argv[])
{
    QTextStream err(stderr);
    if (argc != 2 || argv[1][0] == '-') {
        err << "usage: vetrolan-tour FOLDER\n";
        return 2;
    }
    Application application(argc, argv);
    const QTemporaryDir drives;
    MorningClock clock;
    TourBox box;
    World::Current().clock = &clock;
    World::Current().messageBox = &box;
    try {
        MakeItsOwnSociety(drives.path());
    } catch (const RunTimeError& error) {
        err << error.Text() << '\n';
        return 1;
    }
    RegisterScreens();

    Clerk clerk;
    Tour tour(clerk, QString::fromLocal8Bit(argv[1]));
    int exitCode = 1;
    const auto failure = clerk.Play([&] { exitCode = RunProgram(); }, [&](Clerk&) { Play(tour, box); });
    if (failure)
        tour.Check(QStringLiteral("the tour"), failure->Text(), QStringLiteral("no failure"));
    tour.Check(QStringLiteral("exit code"), QString::number(exitCode), QStringLiteral("0"));
    if (!tour.Finish()) {
        err << "The tour went wrong: see summary.txt in " << argv[1] << '\n';
        return 1;
    }
    return 0;
}
