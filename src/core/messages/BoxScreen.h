#pragma once

#include "platform/forms/Screen.h"
#include "platform/shell/FreshKeys.h"

// A card that interrupts the work of another screen for an answer. It takes only keys that are pressed after
// it was painted: what the clerk had typed ahead was meant for something else.
class BoxScreen : public Screen {
public:
    explicit BoxScreen(const char* name);

protected:
    void Load() override;

private:
    FreshKeys m_keys;
};
