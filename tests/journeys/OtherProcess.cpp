// A program beside the tests: the whole of Vetrolan on the books of a folder, with a clerk of its own.
//
//   other_process DRIVES            starts, says which screen it has come to, and leaves
//   other_process DRIVES ACTION N   plays an action and dies at its N-th write
//   other_process DRIVES keys       types each line of its standard input, and says the screen that it led to
//
// What the plain boxes say goes to the standard output; none of them waits.

#include "Screens.h"
#include "core/start/Program.h"
#include "platform/forms/ModalStack.h"
#include "platform/shell/AppFolder.h"
#include "platform/shell/World.h"
#include "tests/journeys/Actions.h"
#include "tests/support/FaultyDisk.h"
#include "tools/clerk/Clerk.h"

#include <QTextStream>

namespace {

void Say(const char* what, const QString& text)
{
    QTextStream(stdout) << what << ' ' << text << Qt::endl;
}

class SpokenBox final : public MessageBox {
public:
    void Show(const QString& text, const QString&) override { Say("box", text); }
};

// The same morning as in the tests, so that the same rows are written.
class MorningClock final : public Clock {
public:
    QDateTime Now() const override { return {QDate(2026, 4, 15), QTime(6, 5)}; }
};

// Plays on the program; an error that it doesn't catch itself is told to whoever started this process.
int PlayProgram(const std::function<void(Clerk&)>& script)
{
    int exitCode = -1;
    Clerk clerk;
    if (const auto failure = clerk.Play([&] { exitCode = RunProgram(); }, script))
        Say("uncaught", failure->Happened());
    return exitCode;
}

int StartAndLeave()
{
    return PlayProgram([](Clerk& hands) {
        Say("screen", hands.ScreenName());
        hands.Type(QStringLiteral("%x"));
    });
}

// Whoever started it sees what it has saved, meddles with the books, or kills it between two lines.
int TypeWhatIsSaid()
{
    return PlayProgram([](Clerk& hands) {
        QTextStream lines(stdin);
        for (QString keys = lines.readLine(); !keys.isNull(); keys = lines.readLine()) {
            hands.Type(keys);
            Say("screen", hands.ScreenName());
        }
    });
}

int DieAtWrite(const Action& action, int n)
{
    FaultyDisk::InstallForCopies();
    PlayProgram([&](Clerk& hands) {
        hands.Type(OpeningKeys() + action.way);
        FaultyDisk::Reset();
        FaultyDisk::KillAt(n);
        hands.Type(action.keys);
        FaultyDisk::Reset();
        Say("survived", hands.ScreenName());
    });
    return 0;
}

}

int main(int argc, char* argv[])
{
    Application application(argc, argv);
    const QStringList arguments = Application::arguments();
    if (arguments.size() < 2 || arguments.size() > 4)
        return 2;
    SpokenBox box;
    MorningClock clock;
    World::Current().messageBox = &box;
    World::Current().clock = &clock;
    SetDrivesRoot(arguments[1]);
    RegisterScreens();
    switch (arguments.size()) {
    case 2:
        return StartAndLeave();
    case 3:
        return TypeWhatIsSaid();
    default:
        return DieAtWrite(ActionOf(arguments[2]), arguments[3].toInt());
    }
}
