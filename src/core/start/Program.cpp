#include "core/start/Program.h"

#include "core/messages/InputBox.h"
#include "core/messages/Messages.h"
#include "core/messages/PlainBox.h"
#include "core/preview/ReportHandover.h"
#include "core/start/BooksOpening.h"
#include "core/start/MdlAccounts.h"
#include "core/start/ProgramIcon.h"
#include "core/state/AppState.h"
#include "platform/database/DataSource.h"
#include "platform/forms/Look.h"
#include "platform/forms/ModalStack.h"
#include "platform/serial/PortDevice.h"
#include "platform/shell/AppFolder.h"
#include "platform/shell/Fonts.h"
#include "platform/shell/Privacy.h"
#include "platform/shell/SingleInstance.h"
#include "platform/shell/World.h"
#include "platform/text/RunTimeError.h"

#include <QApplication>
#include <QDir>

#include <optional>

namespace {

void ChooseFont()
{
    const QString family = DevanagariFontFamily();
    Look::Apply(*static_cast<QApplication*>(QApplication::instance()), family);
    if (family.isEmpty())
        ShowPlain(QStringLiteral("No Devanagari font was found on this computer, so Marathi can't be read.\n"
                                 "Install Noto Sans Devanagari or Lohit Devanagari and start again."));
}

}

void RegisterPlaces()
{
    DataSource::Register(QStringLiteral("VetrolanDSN"), LocalAppFile(u"Morvelta.mdb"));
    SetPortLinksFolder(LocalPath(Paths::AppFolder));
}

void ShowBoxesInTheWindow()
{
    static PlainBoxCards boxes;
    static InputBoxCards prompts;
    World::Current().messageBox = &boxes;
    World::Current().inputBox = &prompts;
}

int RunProgram()
{
    QApplication::setWindowIcon(ProgramIcon());
    ChooseFont();
    const QString folder = LocalPath(Paths::AppFolder);
    std::optional<SingleInstance> instance; // held until the books are closed
    try {
        const bool wasLeftBehind = SingleInstance::IsLeftBehind(folder);
        if (QDir(folder).exists())
            instance.emplace(folder);
        if (instance && !instance->Taken()) {
            ShowPlain(Sentences(u"हिशेबाची वही आधीच उघडी आहे. उघडलेला कार्यक्रम वापरा.",
                QStringLiteral("The books are open in another window of this program.")));
            return 1;
        }
        if (wasLeftBehind)
            CheckNextOpening();
        Privacy::KeepToOwner(folder);
        RegisterPlaces();
        {
            const ReportHandover reports;
            AppMain();
        }
        gCn.Close();
        return 0;
    } catch (const RunTimeError& error) {
        gCn.Close();
        ModalStack::Current().Reset(); // the box that shows the error is a screen, too
        ShowPlain(error.Text());
        return 1;
    }
}
