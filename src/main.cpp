#include "Screens.h"
#include "core/start/Program.h"
#include "platform/forms/ModalStack.h"
#include "platform/forms/ProgramWindow.h"
#include "platform/shell/Privacy.h"
#include "platform/text/FileRights.h"

int main(int argc, char* argv[])
{
    FileRights::KeepPrivate();
    Privacy::ForbidCores();
    Application application(argc, argv);
    RegisterScreens();
    ShowBoxesInTheWindow();
    const int exitCode = RunProgram();
    ProgramWindow::Leave();
    return exitCode;
}
