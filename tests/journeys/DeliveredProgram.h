#pragma once

#include "tests/journeys/Processes.h"
#include "tests/journeys/ProgramTest.h"

// The program as it is delivered, in a process of its own, on the books of a fresh society.
class DeliveredProgram : public ProgramTest {
protected:
    void SetUp() override;

    // Starts it and returns when it has the books open, which is after it has the lock.
    std::unique_ptr<QProcess> StartTheProgram();

    // What another program needs in its environment to find the same books.
    QStringList Environment() const;

    static void Kill(QProcess& process);

private:
    QTemporaryDir m_data;
};
