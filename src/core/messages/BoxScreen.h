#pragma once

#include "platform/forms/Screen.h"
#include "platform/shell/FreshKeys.h"

// A card that is answered in the midst of some other screen's work. It takes only keys that were pressed
// after it was painted.
class BoxScreen : public Screen {
public:
    explicit BoxScreen(const char* name);

protected:
    void Load() override;

private:
    FreshKeys m_keys;
};
