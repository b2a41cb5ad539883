#pragma once

#include "core/menu/ScreenDirectory.h"
#include "platform/forms/Screen.h"

#include <QStringList>

// Stands in for screens of other rooms as long as it lives: each opens empty, under its name.
class StandInScreens {
public:
    enum class Leave { ByEsc, AtOnce };

    explicit StandInScreens(const QStringList& names, Leave leave = Leave::ByEsc) : m_names(names)
    {
        for (const QString& name : m_names)
            ScreenDirectory::Add(name, [name, leave] { return std::make_unique<frmStandIn>(name, leave); });
    }
    StandInScreens(const StandInScreens&) = delete;
    StandInScreens& operator=(const StandInScreens&) = delete;
    ~StandInScreens()
    {
        for (const QString& name : m_names)
            ScreenDirectory::Add(name, {});
    }

private:
    class frmStandIn final : public Screen {
    public:
        frmStandIn(const QString& name, Leave leave) : Screen(qUtf8Printable(name)), m_leave(leave) { }

    private:
        void Shown() override
        {
            if (m_leave == Leave::AtOnce)
                Close();
        }

        Leave m_leave;
    };

    QStringList m_names;
};
