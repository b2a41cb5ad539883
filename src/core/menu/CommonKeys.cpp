#include "core/menu/CommonKeys.h"

#include "core/menu/KeyboardTutor.h"
#include "core/messages/Messages.h"
#include "platform/shell/AppFolder.h"
#include "platform/shell/World.h"

#include <QKeyEvent>

void CommonKeys::Calculator(bool maximised)
{
    if (!World::Current().calculator->Start(AppFolder.toString() + u"calc.EXE", maximised))
        ShowPlain(QStringLiteral("या संगणकावर कॅलक्युलेटर सापडला नाही."));
}

void CommonKeys::Tutor()
{
    frmKeyboardTutor tutor;
    tutor.ShowModal();
}

bool CommonKeys::Calculator(const QKeyEvent& key)
{
    if (key.key() == Qt::Key_F2)
        Calculator();
    return key.key() == Qt::Key_F2;
}

bool CommonKeys::Tutor(const QKeyEvent& key)
{
    if (key.key() == Qt::Key_F12)
        Tutor();
    return key.key() == Qt::Key_F12;
}
