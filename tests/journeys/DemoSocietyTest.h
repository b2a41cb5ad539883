#pragma once

#include "tests/journeys/ProgramTest.h"

// The demonstration society, in the program.
class DemoSocietyTest : public ProgramTest {
protected:
    DemoSocietyTest();

    // A stored text as the keys that type it.
    static QString KeysOf(const QString& stored);

    int Count(const char* from) { return One("select count(*) from " + QString::fromUtf8(from)).toInt(); }
};
