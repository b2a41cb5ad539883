#include "core/messages/BoxScreen.h"

#include "platform/forms/ModalStack.h"

BoxScreen::BoxScreen(const char* name) : Screen(name, Shape::Card), m_keys(*this) { }

void BoxScreen::Load()
{
    ModalStack::Current().ForgetTypedAhead();
}
