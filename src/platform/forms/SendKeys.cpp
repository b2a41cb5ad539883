#include "platform/forms/SendKeys.h"

#include "platform/forms/ModalStack.h"

#include <QHash>

void SendKeys(const QString& keys)
{
    ModalStack::Current().Send(keys);
}

namespace {

int NamedKey(const QString& name)
{
    static const QHash<QString, int> keys = {{QStringLiteral("TAB"), Qt::Key_Tab},
        {QStringLiteral("ENTER"), Qt::Key_Return}, {QStringLiteral("ESC"), Qt::Key_Escape},
        {QStringLiteral("HOME"), Qt::Key_Home}, {QStringLiteral("END"), Qt::Key_End},
        {QStringLiteral("LEFT"), Qt::Key_Left}, {QStringLiteral("RIGHT"), Qt::Key_Right},
        {QStringLiteral("UP"), Qt::Key_Up}, {QStringLiteral("DOWN"), Qt::Key_Down},
        {QStringLiteral("BS"), Qt::Key_Backspace}, {QStringLiteral("DEL"), Qt::Key_Delete},
        {QStringLiteral("PGUP"), Qt::Key_PageUp}, {QStringLiteral("PGDN"), Qt::Key_PageDown}};
    const QString upper = name.toUpper();
    if (upper.size() > 1 && upper[0] == u'F')
        if (const int number = upper.mid(1).toInt(); number >= 1 && number <= 12)
            return Qt::Key_F1 + number - 1;
    return keys.value(upper, 0);
}

KeyStroke StrokeOf(const QString& inBraces)
{
    if (inBraces.size() == 1)
        return {inBraces[0].toUpper().unicode(), Qt::NoModifier, inBraces};
    const int key = NamedKey(inBraces);
    Q_ASSERT_X(key != 0, "SendKeys", qPrintable(inBraces));
    return {key, Qt::NoModifier, {}};
}

}

std::vector<KeyStroke> ParseKeys(const QString& keys)
{
    std::vector<KeyStroke> strokes;
    Qt::KeyboardModifiers modifiers;
    for (qsizetype at = 0; at < keys.size(); ++at) {
        const QChar c = keys[at];
        if (c == u'+' || c == u'^' || c == u'%') {
            modifiers |= c == u'+' ? Qt::ShiftModifier : c == u'^' ? Qt::ControlModifier : Qt::AltModifier;
            continue;
        }
        KeyStroke stroke;
        if (c == u'{') {
            const qsizetype end = keys.indexOf(u'}', at + 2);
            Q_ASSERT(end > 0);
            stroke = StrokeOf(keys.mid(at + 1, end - at - 1));
            at = end;
        } else {
            stroke = {c.toUpper().unicode(), Qt::NoModifier, QString(c)};
        }
        stroke.modifiers = modifiers;
        if (stroke.key == Qt::Key_Tab && modifiers.testFlag(Qt::ShiftModifier))
            stroke.key = Qt::Key_Backtab;
        strokes.push_back(stroke);
        modifiers = {};
    }
    return strokes;
}
