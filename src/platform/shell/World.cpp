#include "platform/shell/World.h"

#include "platform/shell/AppFolder.h"
#include "platform/shell/FreshKeys.h"
#include "platform/shell/MachineFileSystem.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFontMetrics>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QScreen>
#include <QStandardPaths>
#include <QVBoxLayout>

#include <algorithm>

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

    // Only Windows lets a program say how another one's window opens.
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

// A box breaks lines at blanks only: what is longer than a word gets places to break at.
QString BreakableText(QStringView text)
{
    constexpr int longestWord = 30;
    constexpr QChar breakHere(0x200B);

    QString breakable;
    int word = 0;
    for (const QChar c : text) {
        word = c.isSpace() ? 0 : word + 1;
        if (word > longestWord && !c.isLowSurrogate() && !c.isMark())
            breakable += breakHere;
        breakable += c;
    }
    return breakable;
}

// A box can't scroll, so that a long text would push its button off the screen: as much of it as fits into
// the space, with a mark where the end is left out.
QString FittingText(const QString& text, const QFontMetrics& metrics, QSize space)
{
    constexpr QChar leftOut(0x2026);
    const auto fits = [&](const QString& shown) {
        return metrics.boundingRect(QRect(0, 0, space.width(), 0), Qt::TextWordWrap, shown).height()
            <= space.height();
    };
    constexpr qsizetype longest = 5000;
    QString shown = BreakableText(QStringView(text).left(longest));
    if (text.size() <= longest && fits(shown))
        return shown;
    for (qsizetype length = std::min(text.size(), longest); length > 0;
         length -= std::max<qsizetype>(1, length / 20)) {
        shown = BreakableText(QStringView(text).left(length)) + leftOut;
        if (fits(shown))
            break;
    }
    return shown;
}

QFont ReadableFont()
{
    constexpr int smallest = 14;
    QFont font = QApplication::font();
    if (font.pointSize() < smallest)
        font.setPointSize(smallest);
    return font;
}

class PlatformMessageBox final : public MessageBox {
public:
    void Show(const QString& text, const QString& title) override
    {
        QMessageBox box(QMessageBox::NoIcon, title.isEmpty() ? QStringLiteral("Vetrolan") : title, QString(),
            QMessageBox::Ok, QApplication::activeWindow());
        box.setWindowModality(Qt::ApplicationModal);
        box.setTextFormat(Qt::PlainText);
        box.setFont(ReadableFont());
        SetText(box, text);
        box.button(QMessageBox::Ok)->setText(QStringLiteral("OK"));
        box.setDefaultButton(QMessageBox::Ok);
        box.setEscapeButton(QMessageBox::Ok);
        const FreshKeys keys(box);
        box.exec();
    }

private:
    // Left alone, a box wraps its text into a narrow and high column.
    static void SetText(QMessageBox& box, const QString& text)
    {
        const QSize screen = box.screen()->availableSize();
        const QSize space(screen.width() * 3 / 4, screen.height() * 2 / 3);
        const QFontMetrics metrics(box.font());
        box.setText(FittingText(text, metrics, space));
        const int natural = metrics.size(0, box.text()).width();
        if (auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label")))
            label->setMinimumWidth(std::min(natural, space.width()));
    }
};

// A prompt over a line. Enter goes on with what stands there, Esc leaves.
class PlatformInputBox final : public InputBox {
public:
    QString Ask(const QString& prompt, const QString& proposed, const QString& title) override
    {
        QDialog box(QApplication::activeWindow());
        box.setWindowTitle(title.isEmpty() ? QStringLiteral("Vetrolan") : title);
        box.setWindowModality(Qt::ApplicationModal);
        box.setFont(ReadableFont());
        auto* label = new QLabel;
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setText(BreakableText(prompt));
        auto* line = new QLineEdit(proposed);
        line->selectAll();
        line->setAccessibleName(prompt);
        auto* buttons = new QDialogButtonBox;
        auto* on = buttons->addButton(QStringLiteral("पुढे"), QDialogButtonBox::AcceptRole);
        buttons->addButton(QStringLiteral("रद्द"), QDialogButtonBox::RejectRole);
        on->setDefault(true);
        QObject::connect(buttons, &QDialogButtonBox::accepted, &box, &QDialog::accept);
        QObject::connect(buttons, &QDialogButtonBox::rejected, &box, &QDialog::reject);

        constexpr int letters = 40; // that are seen of the line
        line->setMinimumWidth(letters * QFontMetrics(box.font()).averageCharWidth());
        auto* column = new QVBoxLayout(&box);
        for (QWidget* part :
            {static_cast<QWidget*>(label), static_cast<QWidget*>(line), static_cast<QWidget*>(buttons)})
            column->addWidget(part);
        line->setFocus();
        const FreshKeys keys(box);
        return box.exec() == QDialog::Accepted ? line->text().trimmed() : QString();
    }
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
    static PlatformMessageBox messageBox;
    static PlatformInputBox inputBox;
    static MachineFileSystem fileSystem;
    return {&clock, &calculator, &messageBox, &inputBox, &fileSystem};
}
