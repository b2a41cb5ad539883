#include "tests/journeys/OpenedScreens.h"

#include "platform/forms/Screen.h"

#include <QCoreApplication>
#include <QEvent>

OpenedScreens::OpenedScreens()
{
    QCoreApplication::instance()->installEventFilter(this);
}

OpenedScreens::~OpenedScreens()
{
    QCoreApplication::instance()->removeEventFilter(this);
}

QStringList OpenedScreens::Without(const std::set<QString>& names) const
{
    QStringList missing;
    for (const QString& name : names)
        if (!m_names.contains(name))
            missing.append(name);
    return missing;
}

bool OpenedScreens::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::Show)
        if (const auto* screen = dynamic_cast<const Screen*>(object))
            m_names.insert(screen->Name());
    return false;
}
