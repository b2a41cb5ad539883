#pragma once

#include "tools/clerk/Clerk.h"

#include <QLabel>

// What the eye meets in a label of the screen on top.
inline QString LabelOf(Clerk& clerk, const char* name)
{
    const auto* label = clerk.Top().findChild<QLabel*>(QLatin1String(name));
    return label ? label->text() : QStringLiteral("no label %1").arg(QLatin1String(name));
}

// The background of a field or button of the screen on top.
inline QColor BackgroundOf(Clerk& clerk, const char* control)
{
    const Control* found = clerk.Top().Find(QString::fromLatin1(control));
    return found ? found->Widget()->palette().color(QPalette::Active, QPalette::Button) : QColor();
}
