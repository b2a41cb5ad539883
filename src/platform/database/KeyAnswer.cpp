#include "platform/database/KeyAnswer.h"

#include <utility>

namespace {

bool g_hasSaved = false;

}

KeyAnswer::KeyAnswer() : m_hadSaved(std::exchange(g_hasSaved, false)) { }

KeyAnswer::~KeyAnswer()
{
    g_hasSaved = g_hasSaved || m_hadSaved;
}

void KeyAnswer::NoteSaved()
{
    g_hasSaved = true;
}

bool KeyAnswer::HasSaved()
{
    return g_hasSaved;
}
