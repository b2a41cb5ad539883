#include "ModalStack.h"
#include "Program.h"
#include "Screens.h"

int main(int argc, char* argv[])
{
    Application application(argc, argv);
    RegisterScreens();
    return RunProgram();
}
