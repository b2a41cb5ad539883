#include "core/menu/CommonKeys.h"

#include "core/menu/KeyboardTutor.h"
#include "core/messages/Messages.h"
#include "platform/shell/AppFolder.h"
#include "platform/shell/World.h"

#include <QKeyEvent>

bool CommonKeys::Calculator(const QKeyEvent& key, bool maximised)
{
    if (key.key() != Qt::Key_F2)
        return false;
    if (!World::Current().calculator->Start(AppFolder.toString() + u"calc.EXE", maximised))
        ShowPlain(QStringLiteral("या संगणकावर कॅलक्युलेटर सापडला नाही."));
    return true;
}

bool CommonKeys::Tutor(const QKeyEvent& key)
{
    if (key.key() != Qt::Key_F12)
        return false;
    frmKeyboardTutor tutor;
    tutor.ShowModal();
    return true;
}
