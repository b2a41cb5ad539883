#include "core/menu/Keys.h"

#include "core/menu/CoreKeys.h"

#include <QKeyEvent>
#include <QKeySequence>

#include <algorithm>
#include <utility>

namespace {

Keys::Places& TheSheet()
{
    static Keys::Places sheet = CoreKeys();
    return sheet;
}

const Keys::Place* Find(const Keys::Places& places, QStringView name)
{
    const auto found = std::find_if(
        places.begin(), places.end(), [&](const Keys::Place& place) { return place.name == name; });
    return found == places.end() ? nullptr : &*found;
}

// The key with its modifiers that a hint names, such as "F3", "Shift+F3", "Ctrl+PgDn" or "↓".
QKeyCombination Named(QString name)
{
    static const std::pair<QString, QString> ofQt[] = {
        {QStringLiteral("PgDn"), QStringLiteral("PgDown")},
        {QStringLiteral("↑"), QStringLiteral("Up")},
        {QStringLiteral("↓"), QStringLiteral("Down")},
        {QStringLiteral("←"), QStringLiteral("Left")},
        {QStringLiteral("→"), QStringLiteral("Right")},
        {QStringLiteral("−"), QStringLiteral("-")},
    };
    for (const auto& [shown, known] : ofQt)
        name.replace(shown, known);
    const auto keys = QKeySequence::fromString(name);
    Q_ASSERT_X(keys.count() == 1, "Keys::Answer", qPrintable(name));
    return keys[0];
}

// Both Enters are one key, and so are plus with and without Shift.
int Meant(int key)
{
    if (key == Qt::Key_Return)
        return Qt::Key_Enter;
    return key == Qt::Key_Equal ? Qt::Key_Plus : key;
}

// Whether the key was pressed with the modifiers that are named; others may be held besides.
bool IsPressed(QKeyCombination named, const QKeyEvent& pressed)
{
    return Meant(pressed.key()) == Meant(named.key())
        && (pressed.modifiers() & named.keyboardModifiers()) == named.keyboardModifiers();
}

}

void Keys::Add(const Places& places)
{
    for (const Place& place : places)
        if (!Find(TheSheet(), place.name))
            TheSheet().push_back(place);
}

const Keys::Places& Keys::Sheet()
{
    return TheSheet();
}

const std::vector<KeyHint>& Keys::Of(const Places& places, const QString& place)
{
    static const std::vector<KeyHint> none;
    const Place* found = Find(places, place);
    Q_ASSERT_X(found, "Keys::Of", qPrintable(place));
    return found ? found->keys : none;
}

const std::vector<KeyHint>& Keys::Of(const QString& place)
{
    return Of(TheSheet(), place);
}

Caption Keys::Action(const std::vector<KeyHint>& keys, QStringView key)
{
    for (const KeyHint& hint : keys)
        if (hint.key == key)
            return hint.action;
    return {};
}

Caption Keys::Guide(const std::vector<KeyHint>& keys)
{
    QStringList parts;
    for (const KeyHint& hint : keys)
        parts.append(hint.key + QStringLiteral(" : ") + hint.action.Seen().trimmed());
    return Plain(parts.join(QStringLiteral("    ")));
}

Caption Keys::Guide(const QString& place)
{
    return Guide(Of(place));
}

// Of F3 and Shift+F3, both of which Shift+F3 presses, the one with the modifier is meant.
bool Keys::Answer(Screen& screen, const std::vector<KeyHint>& keys, const QKeyEvent& pressed)
{
    const Handler* meant = nullptr;
    bool isMeantWithModifiers = false;
    for (const KeyHint& hint : keys) {
        if (hint.pressed.AreNone())
            continue;
        const QStringList names = hint.key.split(u' ');
        for (qsizetype at = 0; at < names.size(); ++at) {
            const QKeyCombination named = Named(names[at]);
            const bool hasModifiers = named.keyboardModifiers() != Qt::NoModifier;
            if (!IsPressed(named, pressed) || (meant && (isMeantWithModifiers || !hasModifiers)))
                continue;
            meant = &hint.pressed.Of(static_cast<std::size_t>(at));
            isMeantWithModifiers = hasModifiers;
        }
    }
    if (meant)
        meant->Run(screen);
    return meant;
}
