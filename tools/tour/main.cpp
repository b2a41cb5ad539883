#include "AppFolder.h"
#include "ModalStack.h"
#include "Program.h"
#include "RunTimeError.h"
#include "Screens.h"
#include "Society.h"
#include "Tour.h"
#include "World.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

// The morning of the tour, so that its pictures are the same each time.
class MorningClock final : public Clock {
public:
    QDateTime Now() const override { return QDateTime(QDate(2026, 6, 1), QTime(6, 5)); }
};

void MakeItsOwnSociety(const QString& drives)
{
    SetDrivesRoot(drives);
    const QString folder = LocalPath(AppFolder);
    QDir().mkpath(folder);
    SocietyPlan plan;
    plan.name = QStringLiteral("श्री गणेश सहकारी दूध उत्पादक संस्था, मसूर");
    plan.year = QStringLiteral("2026-2027");
    plan.password = QStringLiteral("Tour-2026");
    plan.demo = true;
    MakeSociety(folder, plan);
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
    Application::setQuitOnLastWindowClosed(false);
    const QTemporaryDir drives;
    MorningClock clock;
    World::Current().clock = &clock;
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
    const auto failure = clerk.Play([&] { exitCode = RunProgram(); }, [&](Clerk&) { PlayMorning(tour); });
    if (failure)
        tour.Check(QStringLiteral("the tour"), failure->Text(), QStringLiteral("no failure"));
    tour.Check(QStringLiteral("exit code"), QString::number(exitCode), QStringLiteral("0"));
    if (!tour.Finish()) {
        err << "The tour went wrong: see summary.txt in " << argv[1] << '\n';
        return 1;
    }
    return 0;
}
