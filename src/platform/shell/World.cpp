#include "platform/shell/World.h"

#include "platform/shell/AppFolder.h"
#include "platform/shell/MachineFileSystem.h"

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTextStream>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#endif

namespace {

class MachineClock final : public Clock {
public:
    QDateTime Now() const override { return QDateTime::currentDateTime(); }
};

class DesktopCalculator final : public Calculator {
public:
    bool Start(const QString& program, bool maximised) override
    {
        const QFileInfo own(LocalPath(program));
        if (own.isFile() && own.isExecutable() && Launch(own.filePath(), maximised))
            return true;
        for (const QString& name : Names()) {
            const QString found = QStandardPaths::findExecutable(name);
            if (!found.isEmpty() && Launch(found, maximised))
                return true;
        }
        return false;
    }

private:
    static QStringList Names()
    {
        return {QStringLiteral("gnome-calculator"), QStringLiteral("kcalc"), QStringLiteral("mate-calc"),
            QStringLiteral("galculator"), QStringLiteral("xcalc"), QStringLiteral("qalculate-gtk"),
            QStringLiteral("speedcrunch"), QStringLiteral("calc.exe")};
    }

    // Only on Windows can a program tell another one how to open its window.
    static bool Launch(const QString& path, [[maybe_unused]] bool maximised)
    {
        QProcess process;
        process.setProgram(path);
#ifdef Q_OS_WIN
        process.setCreateProcessArgumentsModifier([maximised](QProcess::CreateProcessArguments* arguments) {
            arguments->startupInfo->dwFlags |= STARTF_USESHOWWINDOW;
            arguments->startupInfo->wShowWindow = maximised ? SW_SHOWMAXIMIZED : SW_SHOWNORMAL;
        });
#endif
        return process.startDetached();
    }
};

// For tools, and until the program has a window: the text goes to standard error.
class ConsoleMessageBox final : public MessageBox {
public:
    void Show(const QString& text, const QString&) override { QTextStream(stderr) << text << Qt::endl; }
};

// There is nobody to ask, so the answer is empty.
class UnansweredInputBox final : public InputBox {
public:
    QString Ask(const QString&, const QString&, const QString&) override { return {}; }
};

}

World& World::Current()
{
    static World current = Real();
    return current;
}

World World::Real()
{
    static MachineClock clock;
    static DesktopCalculator calculator;
    static ConsoleMessageBox messageBox;
    static UnansweredInputBox inputBox;
    static MachineFileSystem fileSystem;
    return {&clock, &calculator, &messageBox, &inputBox, &fileSystem};
}
