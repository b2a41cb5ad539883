#include "FileRights.h"
#include "ModalStack.h"
#include "Privacy.h"
#include "Program.h"
#include "Screens.h"

int main(int argc, char* argv[])
{
    FileRights::KeepPrivate();
    Privacy::ForbidCores();
    Application application(argc, argv);
    RegisterScreens();
    return RunProgram();
}
