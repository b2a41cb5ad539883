#include "bench/ProgramPlay.h"

#include "bench/BenchSociety.h"
#include "bench/CounterPlay.h"
#include "bench/ReportPlay.h"
#include "bench/Timing.h"
#include "core/menu/ScreenDirectory.h"
#include "core/start/Program.h"
#include "core/state/AppState.h"
#include "platform/database/Recordset.h"
#include "platform/database/Sql.h"
#include "platform/forms/ModalStack.h"
#include "platform/shell/AppFolder.h"
#include "tools/clerk/Clerk.h"

#include <QFile>

#include <algorithm>
#include <cstdio>
#include <ctime>

namespace {

constexpr int SlipsShift = 200;

// Notes that a screen has been painted.
class PaintWatch final : public QObject {
public:
    explicit PaintWatch(QStringView screen) : m_screen(screen) { qApp->installEventFilter(this); }
    bool IsPainted() const { return m_isPainted; }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && watched->objectName() == m_screen)
            m_isPainted = true;
        return false;
    }

private:
    QStringView m_screen;
    bool m_isPainted = false;
};

// Prints the memory of this process: "VmHWM" is the peak, "VmRSS" the present use.
void PrintMemory()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:") || line.startsWith("VmRSS:"))
            std::printf("%s\n", line.constData());
    }
    std::fflush(stdout);
}

// Goes through the opening screens to the menu.
void GoToMenu(Clerk& clerk)
{
    std::optional<PaintWatch> menu; // lives on the program's thread
    clerk.Do([&] { menu.emplace(u"MainMenuFrm"); });
    clerk.Type(QStringLiteral("{ENTER}{ENTER}"));
    for (int turns = 0; turns < 1000 && !menu->IsPainted(); ++turns)
        clerk.Do([] {});
    Require(menu->IsPainted(), "The menu is painted.");
    clerk.Do([&] { menu.reset(); });
}

void OpenCounter(Clerk& clerk, const QDate& day)
{
    clerk.Type(QStringLiteral("{ESC}")); // leaves the question for the working day
    clerk.Do([day] {
        gAppState.gAppDate = day;
        ScreenDirectory::Open(QStringLiteral("frmMilkCollections"), {});
    });
}

void RequireRows(const QDate& day, int rows)
{
    const Recordset found(gCn,
        Sql(u"select count(*) from MilkCollections where CollectionDate=#",
            day.toString(QStringLiteral("MM/dd/yyyy")), u"#"));
    Require(found.At(0).Number() == rows, "All deliveries of the day are in the books.");
}

void RemoveRows(const QDate& day)
{
    gCn.Execute(Sql(u"delete * from MilkCollections where CollectionDate=#",
        day.toString(QStringLiteral("MM/dd/yyyy")), u"#"));
}

void PlayShift(Clerk& clerk, const QString& opening)
{
    clerk.Type(opening);
    for (int member = 1; member <= SocietyMembers; ++member)
        clerk.Type(DeliveryKeys(member) + QStringLiteral("{ENTER}"));
}

// Times keys, each from its press until the program is at rest and, if a screen was opened, that screen has
// been painted.
class KeyTimes {
public:
    explicit KeyTimes(Clerk& clerk) : m_clerk(clerk) { }

    // Returns the seconds of the key.
    double Press(const QString& key)
    {
        const QString before = m_clerk.ScreenName();
        std::optional<PaintWatch> slip; // lives on the program's thread
        m_clerk.Do([&] { slip.emplace(SlipScreen); });
        const double busyBefore = ProcessorSeconds();
        const double seconds = SecondsOf([&] {
            m_clerk.Type(key);
            RestRounds();
            const bool isOpened = before != SlipScreen && m_clerk.ScreenName() == SlipScreen;
            for (int turns = 0; isOpened && turns < 1000 && !slip->IsPainted(); ++turns)
                m_clerk.Do([] {});
        });
        Require(m_clerk.ScreenName() != SlipScreen || slip->IsPainted(), "The slip is painted.");
        m_busiest = std::max(m_busiest, ProcessorSeconds() - busyBefore);
        m_clerk.Do([&] { slip.reset(); });
        if (seconds > m_longest) {
            m_longest = seconds;
            m_longestKey = key;
            m_longestNumber = m_pressed;
        }
        m_pressed += 1;
        return seconds;
    }

    void PressEach(const QString& keys)
    {
        for (const QString& key : SingleKeys(keys))
            Press(key);
    }

    void PrintLongest() const
    {
        std::printf("longest: %.6f s (%s, key %d), on the processor at most %.6f s\n", m_longest,
            m_longestKey.toUtf8().constData(), m_longestNumber + 1, m_busiest);
    }

    static constexpr QStringView SlipScreen = u"frmReportPreview";

private:
    // The processor time of this process, which other users of the machine don't affect.
    static double ProcessorSeconds()
    {
        timespec spent{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &spent);
        return static_cast<double>(spent.tv_sec) + static_cast<double>(spent.tv_nsec) * 1e-9;
    }

    // Handles what a key leaves for later: keys that it sends, layouts, painting.
    void RestRounds()
    {
        for (int round = 0; round < 3; ++round)
            m_clerk.Do([] {});
    }

    // "a{ENTER}b" as "a", "{ENTER}", "b".
    static QStringList SingleKeys(const QString& keys)
    {
        QStringList single;
        for (qsizetype at = 0; at < keys.size(); at += single.back().size()) {
            const qsizetype length = keys[at] == u'{' ? keys.indexOf(u'}', at) - at + 1 : 1;
            single.append(keys.mid(at, length));
        }
        return single;
    }

    Clerk& m_clerk;
    double m_longest = 0;
    double m_busiest = 0;
    QString m_longestKey;
    int m_longestNumber = 0;
    int m_pressed = 0;
};

// The script ends with screens open, which Play returns as a failure; only the result of the script counts.
int Play(const QString& drives, const std::function<void(Clerk&)>& script)
{
    SetDrivesRoot(drives);
    SilentBox box;
    World::Current().messageBox = &box;
    bool isDone = false;
    Clerk clerk;
    const auto failure = clerk.Play([] { RunProgram(); },
        [&](Clerk& self) {
            script(self);
            isDone = true;
        });
    if (isDone)
        return 0;
    for (const QString& text : box.Shown + QStringList(failure ? failure->Text() : QString()))
        std::fprintf(stderr, "%s\n", text.toUtf8().constData());
    return 1;
}

}

int PlayStart(const QString& drives)
{
    return Play(drives, [](Clerk& clerk) {
        GoToMenu(clerk);
        std::printf("menu\n");
        PrintMemory();
    });
}

int PlayDay(const QString& drives)
{
    return Play(drives, [](Clerk& clerk) {
        GoToMenu(clerk);
        OpenCounter(clerk, PlayedDay);
        PlayShift(clerk, QStringLiteral("{ENTER}1{ENTER}"));
        PlayShift(clerk, QStringLiteral("+{TAB}2{ENTER}"));
        RequireRows(PlayedDay, 2 * SocietyMembers);
        PrintMemory();
    });
}

int PlaySlips(const QString& drives)
{
    return Play(drives, [](Clerk& clerk) {
        GoToMenu(clerk);
        clerk.Do([] { RemoveRows(SlipsDay); }); // of the shift that was played before
        clerk.Do([] { gCn.Execute(QStringLiteral("update AutoSettings set PrintStatus='f@t sËIna'")); });
        OpenCounter(clerk, SlipsDay);
        clerk.Type(QStringLiteral("{ENTER}1{ENTER}"));
        KeyTimes times(clerk);
        Samples saves;
        for (int member = 1; member <= SlipsShift; ++member) {
            times.PressEach(DeliveryKeys(member));
            saves.Add(times.Press(QStringLiteral("{ENTER}")));
            Require(clerk.ScreenName() == KeyTimes::SlipScreen, "The slip is on the screen.");
            times.Press(QStringLiteral("{ESC}"));
            Require(clerk.ScreenName() == u"frmMilkCollections", "Esc closes the slip.");
        }
        clerk.Do([] { gCn.Execute(QStringLiteral("update AutoSettings set PrintStatus='naahI'")); });
        RequireRows(SlipsDay, SlipsShift);
        times.PrintLongest();
        std::printf("usual: %.6f s\n95 of 100: %.6f s\n", saves.Quantile(0.5), saves.Quantile(0.95));
        std::fflush(stdout);
    });
}

int PlayReport(const QString& drives)
{
    return Play(drives, [&drives](Clerk& clerk) {
        GoToMenu(clerk);
        clerk.Do([&drives] {
            const std::unique_ptr<Report> report = BeginList(OpenForReports());
            Require(report->SavePdf(drives + QStringLiteral("/memory.pdf")).Done(), "The PDF is saved.");
        });
        PrintMemory();
    });
}
